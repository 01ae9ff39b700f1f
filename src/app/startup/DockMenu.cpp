// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/startup/DockMenu.h"

#include "base/Product.h"
#include "base/text/Texts.h"
#include "ui/Icons.h"

#include <QActionEvent>
#include <QMenu>
#include <QSystemTrayIcon>

namespace brinemark
{

namespace
{
constexpr qsizetype fewestItemsOffered = 3;
}

DockMenu::DockMenu(QObject *parent)
    : QObject(parent)
{
}

DockMenu::~DockMenu() = default;

QMenu &DockMenu::dockMenu()
{
    if (!m_menu)
        buildDockMenu();
    return *m_menu;
}

void DockMenu::buildDockMenu()
{
    m_menu = std::make_unique<QMenu>(QStringLiteral("Dock Menu"));
    m_menu->setObjectName(QStringLiteral("dockMenu"));
    m_menu->addAction(text("DockMenuTitle"))->setEnabled(false);
    m_menu->installEventFilter(this);
#ifdef Q_OS_MACOS
    m_menu->setAsDockMenu();
#endif
    updateTray();
}

QMenu *DockMenu::offeredMenu() const
{
    return m_menu && m_menu->actions().size() >= fewestItemsOffered ? m_menu.get() : nullptr;
}

bool DockMenu::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::ActionAdded || event->type() == QEvent::ActionRemoved)
        // Queued, because the menu is still being changed.
        QMetaObject::invokeMethod(this, &DockMenu::updateTray, Qt::QueuedConnection);
    return QObject::eventFilter(watched, event);
}

void DockMenu::updateTray()
{
#ifndef Q_OS_MACOS
    QMenu *menu = offeredMenu();
    if (!menu) {
        m_tray.reset();
        return;
    }
    if (!QSystemTrayIcon::isSystemTrayAvailable())
        return;
    if (!m_tray) {
        m_tray = std::make_unique<QSystemTrayIcon>(icon("Brinemark"));
        m_tray->setToolTip(QLatin1String(product::name));
    }
    m_tray->setContextMenu(menu);
    m_tray->show();
#endif
}

} // namespace brinemark

#include "moc_DockMenu.cpp"
