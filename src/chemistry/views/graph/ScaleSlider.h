// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QSlider>

namespace brinemark
{

/// An upright slider over single-precision values from 0 to a maximum, in fine steps.
class ScaleSlider : public QSlider
{
    Q_OBJECT

public:
    explicit ScaleSlider(QWidget *parent = nullptr);

    /// Sets the maximum and returns to 0, without emitting a signal.
    void restart(float maximum);

    [[nodiscard]] float maximumFloat() const { return m_maximum; }
    [[nodiscard]] float floatValue() const; ///< exactly the maximum at the upper end

private:
    float m_maximum = 0;
};

} // namespace brinemark
