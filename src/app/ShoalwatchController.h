// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "app/documents/TankDocument.h"
#include "app/menus/MenuTable.h"
#include "model/ItemContext.h"
#include "ui/Shared.h"
#include "ui/Shell.h"

#include <QObject>

#include <memory>

namespace brinemark
{

class DocumentCommands;
class MainViews;
class MainWindow;
class TankListController;

/// The main controller: holds the main window together. It owns the open document and its commands, switches the views,
/// validates toolbar and menus, sends every command to whoever carries it out, and is the shell that the views see.
class ShoalwatchController final : public QObject,
                                   public Shell,
                                   private DocumentHost,
                                   public Shared<ShoalwatchController>
{
    Q_OBJECT

public:
    ~ShoalwatchController() override;

    [[nodiscard]] MainWindow &window() const { return *m_window; }
    [[nodiscard]] TankDocument &document() { return m_document; }
    [[nodiscard]] DocumentCommands &documents() { return *m_documents; }
    [[nodiscard]] TankListController &tankListController() const { return m_tankListController; }

    [[nodiscard]] bool canDelete() const;
    [[nodiscard]] bool validateToolbarItem(const QString &identifier);
    [[nodiscard]] MenuState menuState();
    void performCommand(Command command);
    void performToolbarItem(const QString &identifier);
    bool printWindow(bool interaction); ///< prints the main view, after asking for a printer or at once

    void display() override; ///< brings the window to the front; an empty tree gets its first tank
    void windowWillClose();  ///< stores what the window remembers
    void programWillEnd(); ///< hides the window; nothing is validated any more, since what that looks at is about to go

    // Shell
    [[nodiscard]] QWidget *mainWindow() override;
    [[nodiscard]] TankList &tankList() override;
    [[nodiscard]] Tank *currentTank() override;
    [[nodiscard]] QUndoStack &undoManager() override;
    [[nodiscard]] QMenu &dockMenu() override;
    void rebuildDockMenu() override;
    void documentModifiedWithChange(bool made) override;
    void setEnableDeleteButton(bool enable) override;
    void deleteItem() override;
    void orderFrontAndCheckModified() override;
    void showWarningSheet(const QString &title, const QString &message) override;
    void showPreferences() override;
    void changeView(MainView view) override;
    [[nodiscard]] MainView currentView() const override;
    void updateTree() override;
    void appendTank(const std::shared_ptr<Tank> &tank) override;
    void selectInTree(Tank &tank) override;
    void selectInTree(Container &container) override;
    void selectInTree(Record &livestock) override;
    void editNameInTree() override;

private:
    friend class Shared<ShoalwatchController>;
    ShoalwatchController();

    // DocumentHost
    void showDocumentTitle(const QString &path) override;
    void showEditedMark(bool edited) override;
    void resetNotificationView() override;
    void forgetRows() override;
    void reloadTree() override;
    void fitTreeColumn() override;
    void selectTreeRow(int row) override;
    [[nodiscard]] int selectedTreeRow() const override;
    void refreshTree() override;
    void showNotificationIfOnScreen() override;
    void updateColumnInfo() override;
    void forgetUndo() override;
    bool askKeepBackupOfOlderFile() override;
    OverwriteAnswer askBeforeOverwriting(const QString &path, OverwriteReason reason) override;
    void reportReadError() override;
    void reportSaveError(const QString &path, const QString &reason) override;

    void awakeFromNib();
    void editFirstTank(const std::shared_ptr<Tank> &tank);
    void connectWindow();
    void buildNewMenu();
    void validate();
    void newLivestock(ItemContext context);

    TankListController &m_tankListController;
    std::unique_ptr<MainWindow> m_window;
    TankDocument m_document;
    std::unique_ptr<DocumentCommands> m_documents;
    std::unique_ptr<MainViews> m_views;
    bool m_validating = false;
    bool m_ending = false;
};

} // namespace brinemark
