// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QMainWindow>

#include <functional>

class QSplitter;
class QStackedWidget;
class QToolButton;

namespace brinemark
{

class MainMenuBar;
class MainToolBar;
class TankOutlineView;

/// The main window: the tank tree and its buttons on the left, the main view on the right, menu bar and toolbar above.
/// It only arranges these; ShoalwatchController carries out the commands.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(TankOutlineView *tankList);

    [[nodiscard]] MainMenuBar &menus() const { return *m_menus; }
    [[nodiscard]] MainToolBar &toolbar() const { return *m_toolbar; }
    [[nodiscard]] QStackedWidget &mainView() const { return *m_mainView; }
    [[nodiscard]] QWidget *tankListView() const { return m_tankListView; }
    [[nodiscard]] QToolButton *helpButton() const { return m_helpButton; }
    [[nodiscard]] QToolButton *newButton() const { return m_newButton; }
    [[nodiscard]] QToolButton *deleteButton() const { return m_deleteButton; }

    /// Stores the widths of the two panes in the preferences as whole numbers.
    /// Size, position and the maximised state are kept beside them. Without them the window opens in its usual size, as
    /// far as the screen has room.
    void storeWidths() const;
    void restoreWidths();

    std::function<void(const QString &identifier)> toolbarItemChosen;
    /// Called when the user tries to close the window; the window does not close itself.
    std::function<void()> closeRequested;
    /// Whether a single file may be dropped; `openDroppedFile` is called with it once the drop is over.
    std::function<bool(const QString &path)> takesDroppedFile;
    std::function<void(const QString &path)> openDroppedFile;

protected:
    bool event(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    MainMenuBar *m_menus;
    MainToolBar *m_toolbar;
    QSplitter *m_splitView;
    QWidget *m_tankListView;
    QStackedWidget *m_mainView;
    QToolButton *m_newButton;
    QToolButton *m_deleteButton;
    QToolButton *m_helpButton;
    bool m_painted = false;
};

} // namespace brinemark
