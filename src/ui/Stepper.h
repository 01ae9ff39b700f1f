// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QWidget>

class QToolButton;

namespace brinemark
{

/// A small pair of arrows, up and down, that steps a number between two ends. It repeats while an arrow is held, and
/// takes the focus by the tab key: arrow keys step, Home and End go to the ends. Its parts are named "upButton" and
/// "downButton".
class Stepper : public QWidget
{
    Q_OBJECT

public:
    explicit Stepper(QWidget *parent = nullptr);

    [[nodiscard]] double value() const { return m_value; }
    [[nodiscard]] double minimum() const { return m_minimum; }
    [[nodiscard]] double maximum() const { return m_maximum; }
    [[nodiscard]] double increment() const { return m_increment; }

    /// Outside the range the nearer end is taken; not a number is the minimum. Not announced.
    void setValue(double value);
    void setRange(double minimum, double maximum); ///< takes the value along
    void setIncrement(double increment) { m_increment = increment; }

    /// Moves by so many increments as a person does.
    void stepBy(int steps);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

Q_SIGNALS:
    void valueChanged(double value); ///< by a person

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    QToolButton *makeArrow(Qt::ArrowType arrow, const QString &objectName, int direction);
    void take(double value); ///< announces a value that is new
    void enableArrows();

    double m_value = 0;
    double m_minimum = 0;
    double m_maximum = 100;
    double m_increment = 1;
    int m_wheelTurn = 0; ///< eighths of a degree that are not yet a step
    QToolButton *m_up;
    QToolButton *m_down;
};

} // namespace brinemark
