// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QCache>
#include <QPalette>
#include <QProxyStyle>

namespace brinemark
{

/// The application's style, with outlines of check boxes, radio buttons and fields that can be seen: a contrast of at
/// least 3:1 to the window and to the inside of the box (WCAG 2.1, 1.4.11). The Fusion style makes its outlines by
/// darkening the window's colour, which leaves them fainter on light windows and invisible on dark ones. Other styles
/// draw as they always do.
class OutlineStyle : public QProxyStyle
{
    Q_OBJECT

public:
    /// `base` is owned by the new style. Without one it is another instance of the application's style, so that the
    /// style of a single widget agrees with the rest of the program.
    explicit OutlineStyle(QStyle *base = nullptr);

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget = nullptr) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                            const QWidget *widget = nullptr) const override;

private:
    /// The palette with window and highlight colours of which the style makes outlines that can be seen.
    [[nodiscard]] QPalette outlined(const QPalette &palette) const;

    mutable QCache<qint64, QPalette>
        m_outlined; ///< by the key of the palette: the style caches what it draws by it too
};

} // namespace brinemark
