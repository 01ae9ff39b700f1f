// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QWidget>

class QToolButton;

namespace brinemark
{

/// A small pair of arrows, up and down, that steps a number within a range. It repeats while an arrow is held down. It
/// takes the focus by the Tab key; then the arrow keys step, and Home and End go to the ends of the range. Its parts
/// are named "upButton" and "downButton".
class Stepper : public QWidget
{
    Q_OBJECT

public:
    explicit Stepper(QWidget *parent = nullptr);

    [[nodiscard]] double value() const { return m_value; }
    [[nodiscard]] double minimum() const { return m_minimum; }
    [[nodiscard]] double maximum() const { return m_maximum; }
    [[nodiscard]] double increment() const { return m_increment; }

    /// Values outside the range become the nearer end, NaN becomes the minimum. Does not emit valueChanged().
    void setValue(double value);
    void setRange(double minimum, double maximum); ///< clamps the value to the new range
    void setIncrement(double increment) { m_increment = increment; }

    /// Moves by so many increments and emits valueChanged(), as the arrows do.
    void stepBy(int steps);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

Q_SIGNALS:
    void valueChanged(double value); ///< emitted for the user's changes only

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    QToolButton *makeArrow(Qt::ArrowType arrow, const QString &objectName, int direction);
    void take(double value); ///< sets the value and emits valueChanged() if it differs
    void enableArrows();

    double m_value = 0;
    double m_minimum = 0;
    double m_maximum = 100;
    double m_increment = 1;
    int m_wheelTurn = 0; ///< wheel movement that is not yet a whole step, in eighths of a degree
    QToolButton *m_up;
    QToolButton *m_down;
};

} // namespace brinemark
