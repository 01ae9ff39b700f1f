#include "ui/IconEngine.h"

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

enum class Role { Text, Accent, Mark, Grey, Fixed };

/// An ink as the drawings name it, and what it becomes on a light and on a dark palette.
struct Ink {
    const char *placeholder;
    const char *light;
    const char *dark;
    Role role;
};

// Text takes the palette's own text colour instead. Where the icon is selected or disabled, Accent is Text too (a blue
// accent would drown in a blue highlight) and Mark the ground it stands on. Grey would drown in a highlight as well.
// Fixed inks keep their meaning in every mode.
constexpr std::array inks{
    Ink{"#1a1a1a", nullptr, nullptr, Role::Text},       // lines
    Ink{"#0a84c8", "#0a78b8", "#4fb9ee", Role::Accent}, // the one accent
    Ink{"#fefefe", "#ffffff", "#1b1f22", Role::Mark},   // a mark that stands on a filled shape
    Ink{"#2e8b3d", "#2a7f39", "#63c873", Role::Fixed},  // in range
    Ink{"#d98200", "#c47300", "#f2b23e", Role::Fixed},  // near a limit
    Ink{"#c62828", "#c22525", "#ff7069", Role::Fixed},  // out of range, critical
    Ink{"#7a7a7a", "#6f757a", "#9aa2a8", Role::Grey},   // not tested
    Ink{"#a3336f", "#9c2f6a", "#ec8ac0", Role::Fixed},  // overdue
    Ink{"#227a86", "#1f7480", "#5cc3cf", Role::Fixed},  // done
    Ink{"#1767b0", "#1767b0", "#5fb0f5", Role::Fixed},  // question, information
    Ink{"#0c3f63", "#0c3f63", "#8fd0f0", Role::Fixed},  // the rim of the application icon
};

bool isDark(const QPalette &palette)
{
    return palette.color(QPalette::Active, QPalette::Window).lightnessF() <
           palette.color(QPalette::Active, QPalette::WindowText).lightnessF();
}

/// What an ink becomes for one mode; `ownColours` are drawings without an ink of the palette's.
QColor inkColour(const Ink &ink, const QPalette &palette, QIcon::Mode mode, bool ownColours)
{
    const bool oneColour = !ownColours && (mode == QIcon::Disabled || mode == QIcon::Selected);
    const bool selected = mode == QIcon::Selected;
    if (ink.role == Role::Text || (ink.role == Role::Accent && oneColour)) {
        if (selected)
            return palette.color(QPalette::Active, QPalette::HighlightedText);
        return palette.color(mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active, QPalette::WindowText);
    }
    if (ink.role == Role::Grey && selected)
        return palette.color(QPalette::Active, QPalette::HighlightedText);
    if (ink.role == Role::Mark && oneColour)
        return palette.color(QPalette::Active, selected ? QPalette::Highlight : QPalette::Window);
    return QColor(QLatin1String(isDark(palette) ? ink.dark : ink.light));
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
