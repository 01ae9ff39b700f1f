// SPDX-License-Identifier: GPL-3.0-or-later

#include "chemistry/views/graph/GraphWindow.h"

#include "ui/HelpWindow.h"
#include "ui/Sheets.h"

#include <QScreen>
#include <QVBoxLayout>

namespace brinemark
{

GraphWindow::GraphWindow(QWidget *parent, QWidget *dateContentView, QWidget *graphContentView)
    : QDialog(parent)
    , m_place(new QVBoxLayout(this))
    , m_dateContentView(dateContentView)
    , m_graphContentView(graphContentView)
    , m_graphSize(900, 600)
{
    setObjectName(QStringLiteral("graphWindow"));
    showHelpOnKey(this, QStringLiteral("graph"));
    m_place->setContentsMargins(0, 0, 0, 0);
    m_graphContentView->setParent(this);
    m_dateContentView->setParent(this);
    showDates();
}

void GraphWindow::showDates()
{
    if (m_graphShown)
        m_graphSize = size();
    m_graphShown = false;
    showContent(m_dateContentView, m_graphContentView);
    m_place->setSizeConstraint(QLayout::SetFixedSize);
}

void GraphWindow::showGraph()
{
    if (m_graphShown)
        return;
    constexpr double shareOfScreen = 0.95; // leaves room for the window's frame
    m_graphShown = true;
    m_place->setSizeConstraint(QLayout::SetMinimumSize);
    setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    showContent(m_graphContentView, m_dateContentView);
    resize(m_graphSize.boundedTo(screen()->availableSize() * shareOfScreen));
    moveOver(parentWidget(), this);
}

void GraphWindow::showContent(QWidget *content, QWidget *other)
{
    other->hide();
    m_place->removeWidget(other);
    m_place->addWidget(content);
    content->show();
}

} // namespace brinemark

#include "moc_GraphWindow.cpp"
