// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QIconEngine>
#include <QPalette>

namespace brinemark
{

/// Paints one SVG drawing in the colours of the current application palette.
///
/// The drawings use fixed placeholder colours (the table is in IconEngine.cpp), which are replaced just before
/// rendering, so that the next paint after a palette change has the new colours. Each drawing is rendered at the exact
/// number of device pixels and kept in QPixmapCache under its name, size and colours.
class IconEngine : public QIconEngine
{
public:
    IconEngine(QString name, QByteArray svg);

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override;
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override;
    QPixmap scaledPixmap(const QSize &size, QIcon::Mode mode, QIcon::State state, qreal scale) override;
    QSize actualSize(const QSize &size, QIcon::Mode mode, QIcon::State state) override;
    QList<QSize> availableSizes(QIcon::Mode mode, QIcon::State state) override;
    [[nodiscard]] QIconEngine *clone() const override;
    [[nodiscard]] QString key() const override;
    QString iconName() override { return m_name; }
    bool isNull() override { return m_svg.isEmpty(); }

    /// The drawing with its placeholder colours replaced by those of `palette` for `mode`.
    [[nodiscard]] QByteArray inked(const QPalette &palette, QIcon::Mode mode) const;

private:
    /// Whether no part of the drawing takes the text colour: state marks, alerts and the program's icon, whose colours
    /// carry a meaning.
    [[nodiscard]] bool hasOwnColours() const;

    QString m_name;
    QByteArray m_svg;
};

} // namespace brinemark
