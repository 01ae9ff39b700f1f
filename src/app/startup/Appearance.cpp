#include "app/startup/Appearance.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QPalette>
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
        QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
        QApplication::setPalette(darkPalette());
    }
}

QPalette darkPalette()
{
    const QColor window(0x2b, 0x2d, 0x30), base(0x1f, 0x21, 0x23), text(0xe6, 0xe6, 0xe6), disabled(0x80, 0x83, 0x86);
    const QColor accent(0x2f, 0x7f, 0xb5);
    QPalette palette(text, window, window.lighter(140), window.darker(160), window.darker(120), text, base);
    palette.setColor(QPalette::AlternateBase, QColor(0x26, 0x28, 0x2b));
    palette.setColor(QPalette::Button, QColor(0x37, 0x39, 0x3d));
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
