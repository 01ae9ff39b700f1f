// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Parameters.h"

#include <QFrame>

class QLabel;

namespace brinemark
{

/// The advice that a target is set too high: a mark, the value that is too high, and the reason. While hidden it keeps
/// its room, which is enough for every parameter's advice. Its mark is named "warningImageView".
class HighValueBox : public QFrame
{
    Q_OBJECT

public:
    explicit HighValueBox(QWidget *parent = nullptr);

    /// Says that `value` is above the threshold; both in the parameter's unit. Does nothing for a parameter without a
    /// threshold.
    void setAdvice(Parameter parameter, bool freshwater, double value);

    [[nodiscard]] QString title() const;
    [[nodiscard]] QString reason() const;

protected:
    void changeEvent(QEvent *event) override;

private:
    void applyLook();
    void reserveRoom();

    QLabel *m_warningImageView;
    QLabel *m_title;
    QLabel *m_reason;
};

} // namespace brinemark
