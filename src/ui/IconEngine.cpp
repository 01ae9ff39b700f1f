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
#include <utility>

namespace brinemark
{

namespace
{

/// How an ink behaves where the icon is selected or disabled.
enum class Kind {
    Text,   ///< the palette's own text colour in every mode
    Accent, ///< as Text there: a blue accent would drown in a blue highlight
    Mark,   ///< stands on a filled shape; of the ground's colour there
    Grey,   ///< would drown in a highlight, so it is Text where selected
    Fixed   ///< keeps its meaning in every mode
};

/// An ink as the drawings name it, and the colour it stands for. Shapes need less contrast than text (3:1), so an ink
/// may have livelier shades of its own; 0 is the role's.
struct Ink {
    const char *placeholder;
    Kind kind;
    ColourRole role = ColourRole::Count;
    QRgb light = 0;
    QRgb dark = 0;
};

constexpr std::array inks{
    Ink{"#1a1a1a", Kind::Text},
    Ink{"#0a84c8", Kind::Accent, ColourRole::Accent, 0xff0a78b8},
    Ink{"#fefefe", Kind::Mark, ColourRole::Count, 0xffffffff, 0xff1b1f22},
    Ink{"#2e8b3d", Kind::Fixed, ColourRole::InRange},
    Ink{"#d98200", Kind::Fixed, ColourRole::Near, 0xffc47300},
    Ink{"#c62828", Kind::Fixed, ColourRole::Out},
    Ink{"#7a7a7a", Kind::Grey, ColourRole::NotTested},
    Ink{"#a3336f", Kind::Fixed, ColourRole::Overdue},
    Ink{"#227a86", Kind::Fixed, ColourRole::Done},
    Ink{"#1767b0", Kind::Fixed, ColourRole::Accent},                        // alerts that ask and inform
    Ink{"#0c3f63", Kind::Fixed, ColourRole::Count, 0xff0c3f63, 0xff8fd0f0}, // the rim of the program's icon
};

/// What an ink becomes for one mode; `ownColours` are drawings without an ink of the palette's.
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
    return own != 0 ? QColor::fromRgb(own) : colour(ink.role, palette);
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
    // One pass, so that a palette colour that happens to be another ink's placeholder is not exchanged again.
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
    // Drawings whose inks carry a meaning of their own cannot take the disabled text colour; they fade as a whole
    // instead.
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
    return pixmap(size, mode, state); // the size is in device pixels already
}

QSize IconEngine::actualSize(const QSize &size, QIcon::Mode, QIcon::State)
{
    const int side = qMin(size.width(), size.height());
    return {side, side};
}

QList<QSize> IconEngine::availableSizes(QIcon::Mode, QIcon::State)
{
    // Window managers ask for these; any other size is drawn just as sharply.
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
