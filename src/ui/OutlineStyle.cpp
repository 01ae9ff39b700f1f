// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/OutlineStyle.h"

#include "ui/Colours.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QPainter>
#include <QStyleFactory>
#include <QStyleOptionComplex>

#include <algorithm>
#include <functional>

namespace brinemark
{

namespace
{

/// The least contrast of an outline, above 3:1 because round shapes and fractional scales blur it.
constexpr double leastOutlineContrast = 4.6;

QStyle *sameStyleAgain()
{
    const QStyle *style = QApplication::style();
    if (const auto *proxy = qobject_cast<const QProxyStyle *>(style))
        style = proxy->baseStyle();
    return QStyleFactory::create(style->name());
}

QColor mixed(const QColor &from, const QColor &to, float share)
{
    const auto between = [share](float a, float b) { return a + (b - a) * share; };
    return QColor::fromRgbF(between(from.redF(), to.redF()), between(from.greenF(), to.greenF()),
                            between(from.blueF(), to.blueF()));
}

/// The colour nearest to `from`, on the way to the colour of the text, of which the style makes outlines with enough
/// contrast. `drawn` tells which colours it makes.
QColor visibleFrom(const QColor &from, const QPalette &palette,
                   const std::function<QList<QColor>(const QColor &)> &drawn)
{
    const auto canBeSeen = [&palette](const QColor &outline) {
        const auto grounds = {QPalette::Window, QPalette::Base, QPalette::AlternateBase};
        return std::all_of(grounds.begin(), grounds.end(), [&](QPalette::ColorRole ground) {
            return contrast(outline, palette.color(QPalette::Active, ground)) >= leastOutlineContrast;
        });
    };
    constexpr int steps = 50;
    const QColor ink = palette.color(QPalette::Active, QPalette::WindowText);
    for (int i = 0; i < steps; ++i) {
        const QColor tried = mixed(from, ink, float(i) / steps);
        const QList<QColor> outlines = drawn(tried);
        if (std::all_of(outlines.begin(), outlines.end(), canBeSeen))
            return tried;
    }
    return ink;
}

// The following two compute what the Fusion style of Qt 6 draws.

/// Fields, radio buttons, check boxes.
QList<QColor> plainOutlines(const QColor &window)
{
    return {window.darker(140), window.darker(150), window.darker(140).lighter(110)};
}

QList<QColor> focusOutlines(const QColor &highlight)
{
    QColor outline = highlight.darker(125);
    if (outline.value() > 160)
        outline.setHsl(outline.hue(), outline.saturation(), 160);
    return {outline};
}

bool isOutlined(QStyle::PrimitiveElement element, const QWidget *widget)
{
    switch (element) {
    case QStyle::PE_IndicatorCheckBox:
    case QStyle::PE_IndicatorRadioButton:
    case QStyle::PE_FrameLineEdit:
        return true;
    case QStyle::PE_Frame:
        return qobject_cast<const QAbstractScrollArea *>(widget) != nullptr;
    default:
        return false;
    }
}

/// Calls `draw` with a copy of the option that has another palette; false when the option is of another type.
template <class Option, class Given, class NewPalette, class Draw>
bool drawnWith(const Given *option, NewPalette newPalette, Draw draw)
{
    const auto *typed = qstyleoption_cast<const Option *>(option);
    if (!typed)
        return false;
    Option copy(*typed);
    copy.palette = newPalette(typed->palette);
    draw(&copy);
    return true;
}

} // namespace

OutlineStyle::OutlineStyle(QStyle *base)
    : QProxyStyle(base ? base : sameStyleAgain())
    , m_outlined(16)
{
}

QPalette OutlineStyle::outlined(const QPalette &palette) const
{
    if (baseStyle()->name() != u"fusion")
        return palette;
    QPalette *known = m_outlined.object(palette.cacheKey());
    if (!known) {
        known = new QPalette(palette);
        const auto replace = [&](QPalette::ColorRole role, auto drawn) {
            known->setColor(QPalette::All, role, visibleFrom(palette.color(QPalette::Active, role), palette, drawn));
        };
        replace(QPalette::Window, &plainOutlines);
        replace(QPalette::Highlight, &focusOutlines);
        m_outlined.insert(palette.cacheKey(), known);
        // What is drawn inside of another control has its palette already.
        m_outlined.insert(known->cacheKey(), new QPalette(*known));
    }
    QPalette result = *known;
    result.setCurrentColorGroup(palette.currentColorGroup());
    return result;
}

void OutlineStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                                 const QWidget *widget) const
{
    const auto newPalette = [this](const QPalette &palette) { return outlined(palette); };
    const auto draw = [&](const QStyleOption *own) { QProxyStyle::drawPrimitive(element, own, painter, widget); };
    if (!isOutlined(element, widget)) {
        draw(option);
        return;
    }
    painter->save();
    if (element == PE_Frame) {
        // As the style draws other outlines: at fractional scales, lines that are not smoothed can fall outside.
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(0.5, 0.5);
    }
    if (!drawnWith<QStyleOptionButton>(option, newPalette, draw) &&
        !drawnWith<QStyleOptionFrame>(option, newPalette, draw))
        draw(option);
    painter->restore();
}

void OutlineStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                                      const QWidget *widget) const
{
    const auto newPalette = [this](const QPalette &palette) { return outlined(palette); };
    const auto draw = [&](const QStyleOptionComplex *own) {
        QProxyStyle::drawComplexControl(control, own, painter, widget);
    };
    if (!drawnWith<QStyleOptionComboBox>(option, newPalette, draw) &&
        !drawnWith<QStyleOptionSpinBox>(option, newPalette, draw))
        draw(option);
}

} // namespace brinemark

#include "moc_OutlineStyle.cpp"
