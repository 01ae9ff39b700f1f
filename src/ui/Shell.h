// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "ui/MainView.h"

#include <memory>

#include <QString>

class QMenu;
class QUndoStack;
class QWidget;

namespace brinemark
{

class Container;
class Tank;
class TankList;
struct Record;

/// What a view needs of the main window: the current tank, the change count, sheets, the shared undo stack, the delete
/// button, the tree's selection and switching to another view. The application implements it; views know nothing else
/// of the main window.
class Shell
{
public:
    virtual ~Shell() = default;

    /// The shell of this process. It exists from start-up on; calling this earlier is a programming error.
    static Shell &shared();
    static void setShared(Shell *shell);
    [[nodiscard]] static bool exists();

    [[nodiscard]] virtual QWidget *mainWindow() = 0;
    [[nodiscard]] virtual TankList &tankList() = 0;
    [[nodiscard]] virtual Tank *currentTank() = 0; ///< null while no row of the tree is selected
    [[nodiscard]] virtual QUndoStack &undoManager() = 0;
    [[nodiscard]] virtual QMenu &dockMenu() = 0;
    virtual void rebuildDockMenu() = 0;
    [[nodiscard]] virtual QString representedFilename() const = 0; ///< the open file's path; empty when untitled

    /// Counts a change (true) or the undoing of one (false); the window is marked as edited while the count is not
    /// zero.
    virtual void documentModifiedWithChange(bool made) = 0;
    virtual void setEnableDeleteButton(bool enable) = 0;
    /// Whether menu items with this tag (see MenuTags.h) are enabled now.
    [[nodiscard]] virtual bool validateMenuItem(int tag) = 0;
    virtual void deleteItem() = 0; ///< the delete command: acts on the view's or the tree's selection
    virtual void orderFrontAndCheckModified() = 0;
    /// A critical alert on the main window. No view needs one yet.
    virtual void showWarningSheet(const QString &title, const QString &message) = 0;

    virtual void changeView(MainView view) = 0;
    [[nodiscard]] virtual MainView currentView() const = 0;
    /// Reloads the tree and updates the main view to match its selection.
    virtual void updateTree() = 0;
    virtual void appendTank(const std::shared_ptr<Tank> &tank) = 0; ///< adds the tank to the list and selects its row
    virtual void selectInTree(Tank &tank) = 0;
    virtual void selectInTree(Container &container) = 0; ///< expands the tank's row first
    virtual void selectInTree(Record &livestock) = 0;    ///< expands the rows of its tank and its group first
};

} // namespace brinemark
