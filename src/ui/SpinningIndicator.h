// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QTimer>
#include <QWidget>

namespace brinemark
{

/// A small turning wheel for work that takes a moment. It is invisible while stopped but keeps its place in the layout.
class SpinningIndicator : public QWidget
{
    Q_OBJECT

public:
    explicit SpinningIndicator(QWidget *parent = nullptr);

    /// Shows the wheel at once, even when the following work blocks the event loop.
    void start();
    void stop();
    [[nodiscard]] bool isSpinning() const { return m_timer.isActive(); }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QTimer m_timer;
    int m_turn = 0; ///< which spoke is the darkest
};

} // namespace brinemark
