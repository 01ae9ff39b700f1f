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

/// The one main window: the tank tree with its foot on the left, the main view on the right, menu bar and toolbar
/// above. It only lays out; what happens is the main controller's.
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

    /// The widths of the two panes are kept as whole numbers in the preferences.
    void storeWidths() const;
    void restoreWidths();

    std::function<void(const QString &identifier)> toolbarItemChosen;
    /// Asked when the user closes the window, which never closes by itself.
    std::function<void()> closeRequested;
    /// Asked about a single dropped file; answers whether it was taken.
    std::function<bool(const QString &path)> openDroppedFile;
    std::function<bool(const QString &path)> takesDroppedFile;

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
