// SPDX-License-Identifier: GPL-3.0-or-later

#include "chemistry/views/targets/TargetNumberEdit.h"

#include "base/text/NumberText.h"
#include "ui/CheckedLineEdit.h"
#include "ui/Spacing.h"
#include "ui/Stepper.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QScopedValueRollback>

namespace brinemark
{

namespace
{

constexpr int numberFieldWidth = 96; ///< pixels
constexpr int roundToNearest = 1;

/// The number of steps that a key in the field makes; 0 for keys that do not step.
int stepsOfKey(const QKeyEvent &key)
{
    if (key.modifiers() & ~Qt::KeypadModifier)
        return 0;
    switch (key.key()) {
    case Qt::Key_Up:
        return 1;
    case Qt::Key_Down:
        return -1;
    case Qt::Key_PageUp:
        return 10;
    case Qt::Key_PageDown:
        return -10;
    default:
        return 0;
    }
}

} // namespace

TargetNumberEdit::TargetNumberEdit(const QString &name, QWidget *parent)
    : QWidget(parent)
    , m_field(new CheckedLineEdit)
    , m_stepper(new Stepper)
{
    m_field->setObjectName(name + QStringLiteral("Field"));
    m_stepper->setObjectName(name + QStringLiteral("Stepper"));
    m_field->setFixedWidth(numberFieldWidth);
    m_field->setFormatter(SFCheckedFormatter(0, m_stepper->maximum(), 2, roundToNearest));
    m_field->installEventFilter(this);
    auto *line = new QHBoxLayout(this);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(spacing::tight);
    line->addWidget(m_field);
    line->addWidget(m_stepper);
    line->addStretch();
    setFocusProxy(m_field);

    connect(m_stepper, &Stepper::valueChanged, this, &TargetNumberEdit::stepped);
    // A click on an arrow does not end the editing of the field, so the stepper has to follow every change of the text.
    connect(m_field, &QLineEdit::textChanged, this, [this] {
        if (m_showing)
            return;
        moveStepper();
        Q_EMIT typing();
    });
    connect(m_field, &QLineEdit::editingFinished, this, &TargetNumberEdit::editingFinished);
}

void TargetNumberEdit::setInput(const StepRange &range, int decimals)
{
    m_stepper->setIncrement(range.step);
    m_stepper->setRange(0, range.maximum);
    SFCheckedFormatter formatter = m_field->formatter();
    formatter.setPrecision(decimals);
    m_field->setFormatter(formatter);
}

void TargetNumberEdit::setupStepper()
{
    SFCheckedFormatter formatter = m_field->formatter();
    formatter.setMax(m_stepper->maximum());
    m_field->setFormatter(formatter);
    moveStepper();
}

void TargetNumberEdit::setValue(float value)
{
    m_shown = leadingNumber(floatText(value)); // 0.1 for the stored float 0.1000000015
    m_stepped = false;
    const QScopedValueRollback showing(m_showing, true);
    m_field->setValue(m_shown);
}

bool TargetNumberEdit::isTouched() const
{
    return m_stepped || m_field->hasEdit();
}

double TargetNumberEdit::value() const
{
    return m_field->hasEdit() ? m_field->value() : m_shown;
}

void TargetNumberEdit::takeStepperValue()
{
    {
        const QScopedValueRollback showing(m_showing, true);
        m_field->setValue(m_stepper->value());
    }
    m_shown = m_field->value();
    m_stepped = true;
    moveStepper();
}

void TargetNumberEdit::moveStepper()
{
    m_stepper->setValue(value());
}

void TargetNumberEdit::clear()
{
    m_shown = 0;
    m_stepped = false;
    const QScopedValueRollback showing(m_showing, true);
    m_field->setText({});
    moveStepper();
}

bool TargetNumberEdit::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_field && event->type() == QEvent::KeyPress) {
        if (const int steps = stepsOfKey(static_cast<const QKeyEvent &>(*event))) {
            m_stepper->stepBy(steps);
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace brinemark

#include "moc_TargetNumberEdit.cpp"
