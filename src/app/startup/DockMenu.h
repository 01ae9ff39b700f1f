// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>

#include <memory>

class QMenu;
class QSystemTrayIcon;

namespace brinemark
{

/// The menu that the dock's icon offers: a heading, and below it what the overdue notice adds. Where there is no dock,
/// a system-tray icon carries the menu while it is offered.
class DockMenu : public QObject
{
    Q_OBJECT

public:
    explicit DockMenu(QObject *parent = nullptr);
    ~DockMenu() override;

    /// The menu, built when there is none.
    QMenu &dockMenu();

    /// Throws any menu away and makes a new one with nothing but its heading.
    void buildDockMenu();

    /// The menu if it is worth showing: from three items on. The heading alone, or with one more item, is not offered.
    [[nodiscard]] QMenu *offeredMenu() const;

private:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void updateTray();

    std::unique_ptr<QMenu> m_menu;
    std::unique_ptr<QSystemTrayIcon> m_tray;
};

} // namespace brinemark
