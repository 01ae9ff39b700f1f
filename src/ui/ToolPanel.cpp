// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/ToolPanel.h"

#include <QCloseEvent>

namespace brinemark
{

ToolPanel::ToolPanel(QWidget *parent)
    : QDialog(parent, Qt::Tool)
{
}

void ToolPanel::closeEvent(QCloseEvent *event)
{
    event->accept();
    Q_EMIT closedByUser();
}

void ToolPanel::reject()
{
    close();
}

} // namespace brinemark

#include "moc_ToolPanel.cpp"
