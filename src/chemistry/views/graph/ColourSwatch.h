// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QWidget>

namespace brinemark
{

/// A small tile filled with one colour or, when not filled, a mere stroke. A colour that is hard to see on the window
/// gets a broad rim, so that the tile does not look empty.
class ColourSwatch : public QWidget
{
    Q_OBJECT

public:
    explicit ColourSwatch(const QColor &colour, QWidget *parent = nullptr);

    [[nodiscard]] QColor colour() const { return m_colour; }
    [[nodiscard]] bool isFilled() const { return m_filled; }
    void setFilled(bool filled);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QColor m_colour;
    bool m_filled = true;
};

} // namespace brinemark
