// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/startup/CommandLine.h"

#include "base/Product.h"
#include "base/text/Texts.h"
#include "model/TankFile.h"

#include <QCommandLineParser>
#include <QFileInfo>

namespace brinemark
{

std::optional<CommandLine> parseCommandLine(const QStringList &arguments, QString &output, int &exitCode)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(text("CommandLineDescription"));
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")}, text("CommandLineHelp"));
    const QCommandLineOption version({QStringLiteral("v"), QStringLiteral("version")}, text("CommandLineVersion"));
    const QCommandLineOption render(QStringLiteral("render"), text("CommandLineRender"), QStringLiteral("PNG"));
    const QCommandLineOption print(QStringLiteral("print"), text("CommandLinePrint"));
    const QCommandLineOption dark(QStringLiteral("dark"), text("CommandLineDark"));
    parser.addOptions({help, version, render, print, dark});
    parser.addPositionalArgument(QStringLiteral("FILE"), text("CommandLineFile"), QStringLiteral("[FILE]"));

    exitCode = 0;
    if (!parser.parse(arguments)) {
        output = parser.errorText() + u'\n';
        exitCode = 2;
        return {};
    }
    if (parser.isSet(help)) {
        output = parser.helpText();
        return {};
    }
    if (parser.isSet(version)) {
        output = QLatin1String(product::name) + u' ' + product::shortVersion() + u'\n';
        return {};
    }
    CommandLine line;
    line.file = parser.positionalArguments().value(0);
    line.renderTo = parser.value(render);
    if (parser.isSet(render) && line.renderTo.isEmpty()) {
        output = text("CommandLineRenderNeedsPicture") + u'\n';
        exitCode = 2;
        return {};
    }
    line.print = parser.isSet(print);
    line.dark = parser.isSet(dark);
    return line;
}

QString whyNotOpened(const QString &path)
{
    const auto said = [&path](TextKey key) { return fillPlaceholders(text(key), {path}); };
    const QFileInfo file(path);
    if (!file.exists())
        return said("CommandLineNoFile"_key);
    if (file.isFile() && !file.isReadable())
        return said("CommandLineUnreadable"_key);
    // A file that looks like a tank file, but was not opened, is damaged further on.
    return said(looksLikeTankFile(path) ? "CommandLineUnreadable"_key : "CommandLineNotATankFile"_key);
}

} // namespace brinemark
