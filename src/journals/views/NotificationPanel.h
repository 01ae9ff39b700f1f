// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "ui/ToolPanel.h"

class QScrollArea;
class QVBoxLayout;

namespace brinemark
{

/// The window of the overdue notice: a scrolling column of rows, never taller than the rows need.
class NotificationPanel : public ToolPanel
{
    Q_OBJECT

public:
    explicit NotificationPanel(QWidget *parent);

    void addRow(QWidget *row);  ///< does nothing to a row that was added before
    void fitHeight(int wanted); ///< sets the height, but at most the height that the rows need

private:
    QScrollArea *m_scrollView;
    QVBoxLayout *m_rows;
};

} // namespace brinemark
