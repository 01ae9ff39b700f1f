// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QTimer>
#include <QWidget>

namespace brinemark
{

/// A small turning wheel for work that takes a moment. Unseen while it stands still, but keeps its place.
class SpinningIndicator : public QWidget
{
    Q_OBJECT

public:
    explicit SpinningIndicator(QWidget *parent = nullptr);

    /// Appears at once, even when the work that follows does not come back to the event loop.
    void start();
    void stop();
    [[nodiscard]] bool isSpinning() const { return m_timer.isActive(); }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QTimer m_timer;
    int m_turn = 0; ///< of the spokes
};

} // namespace brinemark
