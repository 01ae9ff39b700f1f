// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/startup/BrinemarkApp.h"

#include "base/Product.h"
#include "model/ModelContext.h"
#include "ui/Icons.h"

#include <QFileOpenEvent>

namespace brinemark
{

BrinemarkApp::BrinemarkApp(int &argc, char **argv)
    : QApplication(argc, argv)
{
    setApplicationName(QLatin1String(product::name));
    setApplicationDisplayName(QLatin1String(product::name));
    setApplicationVersion(product::shortVersion());
    setDesktopFileName(QStringLiteral("brinemark"));
    setQuitOnLastWindowClosed(false); // the delegate quits, after asking about unsaved changes
    setWindowIcon(icon("Brinemark"));
}

BrinemarkApp::~BrinemarkApp() = default;

BrinemarkApp &BrinemarkApp::sharedInstance()
{
    auto *app = qobject_cast<BrinemarkApp *>(QCoreApplication::instance());
    Q_ASSERT(app);
    return *app;
}

TankList *BrinemarkApp::appTankList() const
{
    return ModelContext::sharedInstance().appTankList();
}

void BrinemarkApp::setAppTankList(TankList *list)
{
    ModelContext::sharedInstance().setAppTankList(list);
}

bool BrinemarkApp::event(QEvent *event)
{
    if (event->type() == QEvent::FileOpen) {
        Q_EMIT openFileRequested(static_cast<QFileOpenEvent *>(event)->file());
        return true;
    }
    if (event->type() == QEvent::Quit) {
        // Ignored because unsaved changes are asked about first; the receiver of the signal quits the program.
        event->ignore();
        Q_EMIT quitRequested();
        return true;
    }
    return QApplication::event(event);
}

} // namespace brinemark

#include "moc_BrinemarkApp.cpp"
