// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/ShoalwatchDelegate.h"
#include "app/startup/Appearance.h"
#include "app/startup/BrinemarkApp.h"
#include "app/startup/CommandLine.h"
#include "app/startup/RenderToPicture.h"
#include "base/PreferenceKeys.h"
#include "base/Preferences.h"
#include "base/text/Texts.h"
#include "ui/Alerts.h"

#include <QFileInfo>
#include <QTextStream>

using namespace brinemark;

namespace
{

/// Writes the sentence to standard error and returns the exit code of a run that failed.
int failed(const QString &sentence)
{
    QTextStream(stderr) << sentence << '\n';
    return 1;
}

int print(const CommandLine &commandLine, ShoalwatchDelegate &delegate, const QString &file)
{
    if (file.isEmpty())
        return failed(text("CommandLinePrintNeedsFile"));
    if (!delegate.applicationPrintFile(file))
        return failed(fillPlaceholders(text("CommandLineNotPrinted"), {commandLine.file}));
    return 0;
}

int render(const CommandLine &commandLine, ShoalwatchDelegate &delegate)
{
    if (!delegate.openDefaultFile())
        return failed(whyNotOpened(Preferences::shared().value(preference::defaultFile, QString())));
    if (!renderToPicture(commandLine.renderTo))
        return failed(fillPlaceholders(text("CommandLineNotRendered"), {commandLine.renderTo}));
    return 0;
}

/// Does what the command line asks and returns the exit code.
int run(const CommandLine &commandLine, ShoalwatchDelegate &delegate)
{
    const QString file = commandLine.file.isEmpty() ? QString() : QFileInfo(commandLine.file).absoluteFilePath();
    if (!file.isEmpty() && !delegate.applicationOpenFile(file)) {
        const int failure = failed(whyNotOpened(commandLine.file));
        if (commandLine.unattended())
            return failure;
    }
    if (commandLine.print)
        return print(commandLine, delegate, file);
    if (!commandLine.renderTo.isEmpty())
        return render(commandLine, delegate);
    delegate.applicationDidFinishLaunching();
    return QApplication::exec();
}

} // namespace

int main(int argc, char **argv)
{
    BrinemarkApp app(argc, argv);
    QString output;
    int exitCode = 0;
    const std::optional<CommandLine> commandLine = parseCommandLine(QCoreApplication::arguments(), output, exitCode);
    if (!commandLine) {
        QTextStream(exitCode == 0 ? stdout : stderr) << output;
        return exitCode;
    }
    prepareAppearance(commandLine->dark);
    setUnattended(commandLine->unattended());
    if (commandLine->unattended())
        Preferences::shared().setReadOnly();

    ShoalwatchDelegate &delegate = ShoalwatchDelegate::sharedInstance();
    QObject::connect(&app, &BrinemarkApp::openFileRequested, &delegate, &ShoalwatchDelegate::applicationOpenFile);
    QObject::connect(&app, &BrinemarkApp::quitRequested, &delegate, &ShoalwatchDelegate::terminate);
    QObject::connect(&app, &QGuiApplication::applicationStateChanged, &delegate,
                     [&delegate](Qt::ApplicationState state) {
                         if (state == Qt::ApplicationActive)
                             delegate.applicationWillBecomeActive();
                     });
    delegate.applicationWillFinishLaunching();
    exitCode = run(*commandLine, delegate);
    ShoalwatchDelegate::destroyEverything();
    return exitCode;
}
