// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/Colours.h"

#include "base/TableChecks.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace brinemark
{

namespace
{

struct Shades {
    ColourRole role;
    QRgb light;
    QRgb dark;
};

constexpr std::array shades{
    Shades{ColourRole::InRange, 0xff1f7231, 0xff63c873}, Shades{ColourRole::Near, 0xff8a5200, 0xfff2b23e},
    Shades{ColourRole::Out, 0xffb82020, 0xffff8a84},     Shades{ColourRole::NotTested, 0xff60666b, 0xffadb4ba},
    Shades{ColourRole::Overdue, 0xff9c2f6a, 0xfff09ac9}, Shades{ColourRole::Done, 0xff176771, 0xff5cc3cf},
    Shades{ColourRole::Accent, 0xff08639a, 0xff62c0f0},  Shades{ColourRole::SecondaryText, 0xff5a6268, 0xffb2b9bf},
};

static_assert(rowsFollow<ColourRole>(shades, &Shades::role), "shades needs one row for each ColourRole, in its order");

double luminance(const QColor &colour)
{
    const auto linear = [](double c) { return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4); };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

} // namespace

QColor colour(ColourRole role, const QPalette &palette)
{
    const Shades &row = shades.at(size_t(role));
    return QColor::fromRgb(isDark(palette) ? row.dark : row.light);
}

QPalette quietPalette(QPalette palette)
{
    palette.setColor(QPalette::WindowText, colour(ColourRole::SecondaryText, palette));
    return palette;
}

bool isDark(const QPalette &palette)
{
    return palette.color(QPalette::Window).lightness() < 128;
}

double contrast(const QColor &a, const QColor &b)
{
    const auto [dark, light] = std::minmax({luminance(a), luminance(b)});
    return (light + 0.05) / (dark + 0.05);
}

} // namespace brinemark
