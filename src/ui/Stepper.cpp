// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/Stepper.h"

#include "base/text/Texts.h"

#include <QKeyEvent>
#include <QStyle>
#include <QStyleOptionFrame>
#include <QStylePainter>
#include <QToolButton>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace brinemark
{

namespace
{

/// Rounds away the errors of binary fractions, which repeated steps would add up: 0.1 + 0.2 gives 0.3.
double onDecimalGrid(double value)
{
    constexpr double grid = 1e6; // finer than any step, coarser than the rounding errors
    return std::round(value * grid) / grid;
}

} // namespace

Stepper::Stepper(QWidget *parent)
    : QWidget(parent)
    , m_up(makeArrow(Qt::UpArrow, QStringLiteral("upButton"), 1))
    , m_down(makeArrow(Qt::DownArrow, QStringLiteral("downButton"), -1))
{
    m_up->setAccessibleName(text("StepUp"));
    m_down->setAccessibleName(text("StepDown"));
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    enableArrows();
}

QToolButton *Stepper::makeArrow(Qt::ArrowType arrow, const QString &objectName, int direction)
{
    auto *button = new QToolButton(this);
    button->setObjectName(objectName);
    button->setArrowType(arrow);
    button->setAutoRepeat(true);
    button->setAutoRepeatDelay(400);   // milliseconds
    button->setAutoRepeatInterval(60); // milliseconds
    button->setFocusPolicy(Qt::NoFocus);
    connect(button, &QToolButton::clicked, this, [this, direction] { stepBy(direction); });
    return button;
}

void Stepper::setValue(double value)
{
    m_value = std::isnan(value) ? m_minimum : std::max(m_minimum, std::min(value, m_maximum));
    enableArrows();
}

void Stepper::setRange(double minimum, double maximum)
{
    m_minimum = minimum;
    m_maximum = std::max(minimum, maximum);
    setValue(m_value);
}

void Stepper::stepBy(int steps)
{
    take(onDecimalGrid(m_value + steps * m_increment));
}

void Stepper::take(double value)
{
    const double before = m_value;
    setValue(value);
    if (m_value != before)
        Q_EMIT valueChanged(m_value);
}

void Stepper::enableArrows()
{
    m_up->setEnabled(m_value < m_maximum);
    m_down->setEnabled(m_value > m_minimum);
}

void Stepper::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Right:
        stepBy(1);
        break;
    case Qt::Key_Down:
    case Qt::Key_Left:
        stepBy(-1);
        break;
    case Qt::Key_Home:
        take(m_minimum);
        break;
    case Qt::Key_End:
        take(m_maximum);
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}

void Stepper::wheelEvent(QWheelEvent *event)
{
    m_wheelTurn += event->angleDelta().y();
    const int steps = m_wheelTurn / QWheelEvent::DefaultDeltasPerStep;
    m_wheelTurn -= steps * QWheelEvent::DefaultDeltasPerStep;
    if (steps != 0)
        stepBy(steps);
    event->accept();
}

QSize Stepper::sizeHint() const
{
    // As high as a line edit, which it is placed beside.
    constexpr int width = 22; // pixels
    QStyleOptionFrame field;
    field.initFrom(this);
    field.lineWidth = style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &field, this);
    const QSize content(width, std::max(fontMetrics().height(), 14) + 2);
    const int height = style()->sizeFromContents(QStyle::CT_LineEdit, &field, content, this).height();
    return {width, height + height % 2};
}

void Stepper::resizeEvent(QResizeEvent *)
{
    const int half = height() / 2;
    m_up->setGeometry(1, 1, width() - 2, half - 1);
    m_down->setGeometry(1, half, width() - 2, height() - half - 1);
}

void Stepper::paintEvent(QPaintEvent *)
{
    if (!hasFocus())
        return;
    QStylePainter painter(this);
    painter.setPen(palette().color(QPalette::Highlight));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void Stepper::focusInEvent(QFocusEvent *event)
{
    QWidget::focusInEvent(event);
    update();
}

void Stepper::focusOutEvent(QFocusEvent *event)
{
    QWidget::focusOutEvent(event);
    update();
}

} // namespace brinemark

#include "moc_Stepper.cpp"
