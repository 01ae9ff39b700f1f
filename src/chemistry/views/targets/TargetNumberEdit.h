// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "chemistry/TargetInput.h"

#include <QWidget>

namespace brinemark
{

class CheckedLineEdit;
class Stepper;

/// One of a target's two numbers: a field with a stepper beside it. The up, down, page-up and page-down keys step the
/// number too.
class TargetNumberEdit : public QWidget
{
    Q_OBJECT

public:
    /// The parts are named `name` + "Field" and `name` + "Stepper".
    explicit TargetNumberEdit(const QString &name, QWidget *parent = nullptr);

    [[nodiscard]] CheckedLineEdit *field() const { return m_field; }
    [[nodiscard]] Stepper *stepper() const { return m_stepper; }

    /// Sets the stepper's step and maximum and the field's decimals.
    void setInput(const StepRange &range, int decimals);
    /// Sets the field's maximum to the stepper's, and moves the stepper to the field's value.
    void setupStepper();

    /// Shows a stored number. Until the user types or steps, value() returns it with all its digits, even beyond the
    /// maximum.
    void setValue(float value);
    [[nodiscard]] double value() const;
    [[nodiscard]] bool isTouched() const; ///< the user has typed or stepped since setValue()

    void takeStepperValue(); ///< into the field, which rounds it to its decimals
    void moveStepper();      ///< to the field's value
    void clear();

Q_SIGNALS:
    void stepped();
    void typing();          ///< the user changed the text
    void editingFinished(); ///< Return was pressed or the field left, changed or not

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    CheckedLineEdit *m_field;
    Stepper *m_stepper;
    double m_shown = 0;     ///< the field's value until the user types
    bool m_stepped = false; ///< since setValue()
    bool m_showing = false; ///< the program is changing the text
};

} // namespace brinemark
