// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/startup/Appearance.h"

#include "ui/OutlineStyle.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QPalette>
#include <QStyle>
#include <QStyleFactory>
#include <QTranslator>

namespace brinemark
{

void prepareAppearance(bool dark)
{
    auto *translator = new QTranslator(qApp);
    if (translator->load(QLocale(), QStringLiteral("qtbase"), QStringLiteral("_"),
                         QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(translator);
    if (dark) {
        QApplication::setStyle(new OutlineStyle(QStyleFactory::create(QStringLiteral("Fusion"))));
        QApplication::setPalette(darkPalette());
    } else if (QApplication::style()->name() == u"fusion") {
        QApplication::setStyle(new OutlineStyle);
    }
}

QPalette darkPalette()
{
    const QColor window(0x38, 0x3a, 0x3e), base(0x19, 0x1b, 0x1d), text(0xe6, 0xe6, 0xe6), disabled(0x90, 0x93, 0x96);
    const QColor accent(0x2f, 0x7f, 0xb5);
    QPalette palette(text, window, window.lighter(140), window.darker(160), window.darker(120), text, base);
    palette.setColor(QPalette::AlternateBase, QColor(0x22, 0x24, 0x27));
    palette.setColor(QPalette::Button, QColor(0x46, 0x49, 0x4e));
    palette.setColor(QPalette::ButtonText, text);
    palette.setColor(QPalette::BrightText, Qt::white);
    palette.setColor(QPalette::ToolTipBase, QColor(0x37, 0x39, 0x3d));
    palette.setColor(QPalette::ToolTipText, text);
    palette.setColor(QPalette::PlaceholderText, disabled);
    palette.setColor(QPalette::Link, QColor(0x5f, 0xb0, 0xe6));
    palette.setColor(QPalette::Highlight, accent);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    for (const QPalette::ColorRole role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, disabled);
    return palette;
}

} // namespace brinemark
