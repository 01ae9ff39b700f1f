// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>

#include <memory>

class QMenu;
class QSystemTrayIcon;

namespace brinemark
{

/// The menu of the dock icon: a heading, and below it the items that the overdue notice adds. On platforms without a
/// dock, a system-tray icon shows the menu while it has something to offer.
class DockMenu : public QObject
{
    Q_OBJECT

public:
    explicit DockMenu(QObject *parent = nullptr);
    ~DockMenu() override;

    /// The menu, created on first use.
    QMenu &dockMenu();

    /// Replaces the menu by a new one that has only the heading.
    void buildDockMenu();

    /// The menu if it has at least three items (the heading, a tank and an activity), else null.
    [[nodiscard]] QMenu *offeredMenu() const;

private:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void updateTray();

    std::unique_ptr<QMenu> m_menu;
    std::unique_ptr<QSystemTrayIcon> m_tray;
};

} // namespace brinemark
