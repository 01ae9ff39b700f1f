// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "ui/ToolPanel.h"

#include <functional>

class QLabel;

namespace brinemark
{

/// The small window ("customColumnWindow") that shows and hides columns of the water tests: a check box for each
/// ("column.ph" ...), applied at once.
class ConditionColumnWindow : public ToolPanel
{
    Q_OBJECT

public:
    explicit ConditionColumnWindow(QWidget *parent);

    /// `isShown` answers for a column's tag. Without a tank (no name) nothing can be chosen.
    void showColumns(const QString &tankName, const std::function<bool(int tag)> &isShown);

Q_SIGNALS:
    void columnToggled(int tag);

private:
    QLabel *m_label;
    QWidget *m_checks;
};

} // namespace brinemark
