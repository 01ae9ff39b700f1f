// SPDX-License-Identifier: GPL-3.0-or-later

#include "chemistry/views/graph/ScaleSlider.h"

#include <QSignalBlocker>

namespace brinemark
{

namespace
{

constexpr int steps = 10'000;

} // namespace

ScaleSlider::ScaleSlider(QWidget *parent)
    : QSlider(Qt::Vertical, parent)
{
    setRange(0, steps);
    setSingleStep(steps / 100);
    setPageStep(steps / 10);
}

void ScaleSlider::restart(float maximum)
{
    const QSignalBlocker blocker(this);
    m_maximum = maximum;
    setValue(0);
}

float ScaleSlider::floatValue() const
{
    return float(double(m_maximum) * value() / steps);
}

} // namespace brinemark

#include "moc_ScaleSlider.cpp"
