// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/graph/GraphLook.h"

#include "ui/Colours.h"

#include <QFontInfo>

namespace brinemark
{

namespace
{

/// The colour between `a` (part 0) and `b` (part 1).
QColor mixed(const QColor &a, const QColor &b, double part)
{
    const auto mix = [part](double x, double y) { return float(x + (y - x) * part); };
    return QColor::fromRgbF(mix(a.redF(), b.redF()), mix(a.greenF(), b.greenF()), mix(a.blueF(), b.blueF()));
}

GraphLook lookOf(const QColor &background, const QColor &text, const QFont &font)
{
    return {background, text, mixed(background, text, 0.45), mixed(background, text, 0.1), font};
}

} // namespace

GraphLook GraphLook::onScreen(const QPalette &palette, const QFont &font)
{
    return lookOf(palette.color(QPalette::Base), palette.color(QPalette::WindowText), font);
}

GraphLook GraphLook::onPaper(const QFont &font)
{
    QFont byPixels = font;
    byPixels.setPixelSize(QFontInfo(font).pixelSize());
    return lookOf(Qt::white, QColor(0x20, 0x24, 0x28), byPixels);
}

QColor GraphLook::outlineOf(const QColor &colour) const
{
    // The contrast that WCAG 2.1 requires between graphical objects and their surroundings.
    constexpr double visible = 3;
    if (contrast(colour, background) >= visible)
        return {};
    return mixed(background, text, 0.6);
}

} // namespace brinemark
