// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Parameters.h"

#include <QColor>
#include <QWidget>

class QCheckBox;

namespace brinemark
{

class ColourSwatch;

/// A line of a graph's legend: colour swatch (object name "phView", "ghView" ...) and a check box with the parameter's
/// name ("phBox" ...), which shows and hides the line by click or Space. The box of a parameter that was not
/// tested is disabled.
class LegendEntry : public QWidget
{
    Q_OBJECT

public:
    LegendEntry(Parameter parameter, bool tested, const QString &toolTip);

    [[nodiscard]] bool isHovered() const { return m_hovered; }
    [[nodiscard]] bool isFocused() const { return m_focused; }

Q_SIGNALS:
    void shown(bool visible);
    void pointedAt(); ///< the pointer or the focus entered or left

protected:
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    QCheckBox *m_box;
    ColourSwatch *m_swatch;
    bool m_hovered = false;
    bool m_focused = false;
};

/// The colour of a parameter's line.
[[nodiscard]] QColor lineColour(Parameter parameter);

} // namespace brinemark
