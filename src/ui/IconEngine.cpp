// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/IconEngine.h"

#include "ui/Colours.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPixmap>
#include <QPixmapCache>
#include <QSvgRenderer>
#include <algorithm>
#include <array>
#include <optional>
#include <utility>

namespace brinemark
{

namespace
{

/// How the colour of an ink depends on the icon's mode.
enum class Kind {
    Text,   ///< the palette's text colour in every mode
    Accent, ///< changes to the text colour in selected and disabled icons: blue would be lost on a blue highlight
    Mark,   ///< drawn on top of a filled shape; takes the background's colour in selected and disabled icons
    Grey,   ///< changes to the text colour in selected icons: grey would be lost on the highlight
    Fixed   ///< has the same colour in every mode
};

/// A placeholder colour of the drawings and the colour that replaces it. Shapes need less contrast than text (3:1), so
/// an ink may have more saturated light and dark shades of its own; 0 takes the role's colour.
struct Ink {
    const char *placeholder;
    Kind kind;
    std::optional<ColourRole> role = {}; ///< none for text, and for inks that have shades only
    QRgb light = 0;
    QRgb dark = 0;
};

constexpr std::array inks{
    Ink{"#1a1a1a", Kind::Text},
    Ink{"#0a84c8", Kind::Accent, ColourRole::Accent, 0xff0a78b8},
    Ink{"#fefefe", Kind::Mark, std::nullopt, 0xffffffff, 0xff1b1f22},
    Ink{"#2e8b3d", Kind::Fixed, ColourRole::InRange},
    Ink{"#d98200", Kind::Fixed, ColourRole::Near, 0xffc47300},
    Ink{"#c62828", Kind::Fixed, ColourRole::Out},
    Ink{"#7a7a7a", Kind::Grey, ColourRole::NotTested},
    Ink{"#a3336f", Kind::Fixed, ColourRole::Overdue},
    Ink{"#227a86", Kind::Fixed, ColourRole::Done},
    Ink{"#1767b0", Kind::Fixed, ColourRole::Accent},                   // alerts that ask and inform
    Ink{"#0c3f63", Kind::Fixed, std::nullopt, 0xff0c3f63, 0xff8fd0f0}, // the rim of the program's icon
};

static_assert(std::all_of(inks.begin(), inks.end(), [](const Ink &ink) {
    return ink.kind == Kind::Text || ink.role || (ink.light != 0 && ink.dark != 0);
}));

/// The colour of an ink in one mode. `ownColours` is true for drawings without an ink of kind Text; of their inks only
/// Grey changes, and only when selected.
QColor inkColour(const Ink &ink, const QPalette &palette, QIcon::Mode mode, bool ownColours)
{
    const bool selected = mode == QIcon::Selected;
    const bool oneColour = !ownColours && (selected || mode == QIcon::Disabled);
    if (ink.kind == Kind::Text || (ink.kind == Kind::Accent && oneColour) || (ink.kind == Kind::Grey && selected)) {
        if (selected)
            return palette.color(QPalette::Active, QPalette::HighlightedText);
        return palette.color(mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active, QPalette::WindowText);
    }
    if (ink.kind == Kind::Mark && oneColour)
        return palette.color(QPalette::Active, selected ? QPalette::Highlight : QPalette::Window);
    const QRgb own = isDark(palette) ? ink.dark : ink.light;
    return own != 0 ? QColor::fromRgb(own) : colour(*ink.role, palette);
}

} // namespace

IconEngine::IconEngine(QString name, QByteArray svg)
    : m_name(std::move(name))
    , m_svg(std::move(svg))
{
}

bool IconEngine::hasOwnColours() const
{
    return !m_svg.contains(inks.front().placeholder);
}

QByteArray IconEngine::inked(const QPalette &palette, QIcon::Mode mode) const
{
    QByteArray svg = m_svg;
    const bool ownColours = hasOwnColours();
    // All inks are replaced in one pass, so that a palette colour that equals another placeholder is not replaced
    // again.
    for (qsizetype at = svg.indexOf('#'); at >= 0; at = svg.indexOf('#', at + 1)) {
        const auto named = [&](const Ink &ink) { return QByteArrayView(svg).sliced(at).startsWith(ink.placeholder); };
        const auto ink = std::find_if(inks.begin(), inks.end(), named);
        if (ink != inks.end())
            svg.replace(at, 7, inkColour(*ink, palette, mode, ownColours).name().toLatin1());
    }
    return svg;
}

void IconEngine::paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state)
{
    const qreal ratio = painter->device() ? painter->device()->devicePixelRatioF() : 1.0;
    const int side = qMin(rect.width(), rect.height());
    QRect square(0, 0, side, side);
    square.moveCenter(rect.center());
    const QSize pixels = (QSizeF(square.size()) * ratio).toSize();
    painter->drawPixmap(square, scaledPixmap(pixels, mode, state, ratio));
}

QPixmap IconEngine::pixmap(const QSize &size, QIcon::Mode mode, QIcon::State)
{
    const int side = qMin(size.width(), size.height());
    if (side <= 0)
        return {};
    const QByteArray svg = inked(QGuiApplication::palette(), mode);
    const QString key =
        QStringLiteral("brinemark-icon/%1/%2/%3/%4").arg(m_name).arg(side).arg(int(mode)).arg(qHash(svg), 0, 16);
    QPixmap pixmap;
    if (QPixmapCache::find(key, &pixmap))
        return pixmap;

    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    QSvgRenderer(svg).render(&painter, QRectF(0, 0, side, side));
    // A drawing without an ink of kind Text cannot take the disabled text colour, so it is drawn translucent instead.
    if (mode == QIcon::Disabled && hasOwnColours()) {
        painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
        painter.fillRect(image.rect(), QColor(0, 0, 0, 100));
    }
    painter.end();
    pixmap = QPixmap::fromImage(image);
    QPixmapCache::insert(key, pixmap);
    return pixmap;
}

QPixmap IconEngine::scaledPixmap(const QSize &size, QIcon::Mode mode, QIcon::State state, qreal)
{
    return pixmap(size, mode, state); // `size` is already in device pixels
}

QSize IconEngine::actualSize(const QSize &size, QIcon::Mode, QIcon::State)
{
    const int side = qMin(size.width(), size.height());
    return {side, side};
}

QList<QSize> IconEngine::availableSizes(QIcon::Mode, QIcon::State)
{
    // These are for window managers, which ask for a list; every other size can be drawn as well.
    QList<QSize> sizes;
    for (const int side : {16, 24, 32, 48, 64, 128, 256})
        sizes.append(QSize(side, side));
    return sizes;
}

QIconEngine *IconEngine::clone() const
{
    return new IconEngine(*this);
}

QString IconEngine::key() const
{
    return QStringLiteral("brinemark");
}

} // namespace brinemark
