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

    /// `isShown` returns whether the column with that tag is shown. A null name means no tank and disables the check
    /// boxes.
    void showColumns(const QString &tankName, const std::function<bool(int tag)> &isShown);

Q_SIGNALS:
    void columnToggled(int tag);

private:
    QLabel *m_label;
    QWidget *m_checks;
};

} // namespace brinemark
