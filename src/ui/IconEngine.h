// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QIconEngine>
#include <QPalette>

namespace brinemark
{

/// Paints one SVG drawing in the colours of the palette of the moment.
///
/// The drawings name their inks by fixed placeholder colours (the table is in IconEngine.cpp); these are exchanged just
/// before rendering, so that a change of palette needs no notification: the next paint has the new colours. Rendering
/// is done at the exact number of device pixels asked for and kept in QPixmapCache under name, size and colours.
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

    /// The drawing with its placeholder inks exchanged for those of `palette` and `mode`.
    [[nodiscard]] QByteArray inked(const QPalette &palette, QIcon::Mode mode) const;

private:
    /// State marks, alerts and the program's own icon mean something by their colours and take none from the palette.
    [[nodiscard]] bool hasOwnColours() const;

    QString m_name;
    QByteArray m_svg;
};

} // namespace brinemark
