// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "ui/ToolPanel.h"

class QScrollArea;
class QVBoxLayout;

namespace brinemark
{

/// The window of the overdue notice: rows one below the other, never taller than they need.
class NotificationPanel : public ToolPanel
{
    Q_OBJECT

public:
    explicit NotificationPanel(QWidget *parent);

    void addRow(QWidget *row);  ///< a row that is there already stays where it is
    void fitHeight(int wanted); ///< takes the height, as far as there are rows for it

private:
    QScrollArea *m_scrollView;
    QVBoxLayout *m_rows;
};

} // namespace brinemark
