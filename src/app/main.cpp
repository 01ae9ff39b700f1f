// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/ShoalwatchDelegate.h"
#include "app/startup/Appearance.h"
#include "app/startup/BrinemarkApp.h"
#include "app/startup/CommandLine.h"
#include "app/startup/RenderToPicture.h"
#include "base/text/Texts.h"

#include <QFileInfo>
#include <QTextStream>

using namespace brinemark;

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

    ShoalwatchDelegate &delegate = ShoalwatchDelegate::sharedInstance();
    QObject::connect(&app, &BrinemarkApp::openFileRequested, &delegate, &ShoalwatchDelegate::applicationOpenFile);
    QObject::connect(&app, &BrinemarkApp::quitRequested, &delegate, &ShoalwatchDelegate::terminate);
    QObject::connect(&app, &QGuiApplication::applicationStateChanged, &delegate,
                     [&delegate](Qt::ApplicationState state) {
                         if (state == Qt::ApplicationActive)
                             delegate.applicationWillBecomeActive();
                     });
    delegate.applicationWillFinishLaunching();
    const QString file = commandLine->file.isEmpty() ? QString() : QFileInfo(commandLine->file).absoluteFilePath();
    const bool opened = !file.isEmpty() && delegate.applicationOpenFile(file);
    if (!opened && !file.isEmpty())
        QTextStream(stderr) << fillPlaceholders(text("CommandLineNoFile"), {commandLine->file}) << '\n';

    if (commandLine->print) {
        exitCode = opened && delegate.applicationPrintFile(file) ? 0 : 1;
    } else if (!commandLine->renderTo.isEmpty()) {
        delegate.openDefaultFile();
        exitCode = renderToPicture(commandLine->renderTo) ? 0 : 1;
    } else {
        delegate.applicationDidFinishLaunching();
        exitCode = QApplication::exec();
    }
    ShoalwatchDelegate::destroyEverything();
    return exitCode;
}
