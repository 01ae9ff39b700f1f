// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "app/commands/Command.h"
#include "app/menus/MenuRules.h"
#include "ui/Shared.h"
#include "ui/Shell.h"

#include <QObject>

#include <memory>

namespace brinemark
{

class CommandDispatch;
class DocumentCommands;
class MainDocumentHost;
class MainSelection;
class MainViews;
class MainWindow;
class TankDocument;
class TankListController;

/// The main controller: owns the main window and the parts around it (the open document with its host and commands, the
/// views, the selection, the command dispatch), connects them, and enables menus, toolbar and delete button. It is the
/// `Shell` that the views see.
class ShoalwatchController final : public QObject, public Shell, public Shared<ShoalwatchController>
{
    Q_OBJECT

public:
    ~ShoalwatchController() override;

    [[nodiscard]] MainWindow &window() const { return *m_window; }
    [[nodiscard]] MainViews &views() const { return *m_views; }
    [[nodiscard]] MainSelection &selection() const { return *m_selection; }
    [[nodiscard]] TankDocument &document() const { return *m_document; }
    [[nodiscard]] DocumentCommands &documents() const { return *m_documents; }
    [[nodiscard]] TankListController &tankListController() const { return m_tankListController; }

    void display();         ///< brings the window to the front; an empty tree gets its first tank
    void windowWillClose(); ///< stores the widths of the panes
    void programWillEnd(); ///< hides the window; from here on nothing is validated, since the controllers are destroyed
    void validate();       ///< enables menus, toolbar and delete button for the present state
    void performCommand(Command command, const QString &argument = {});
    bool printWindow(bool interaction); ///< prints the main view, after asking for a printer or at once

    [[nodiscard]] bool canDelete() const;
    [[nodiscard]] bool validateToolbarItem(const QString &identifier);
    [[nodiscard]] MenuState menuState();

    // Shell
    [[nodiscard]] QWidget *mainWindow() override;
    [[nodiscard]] TankList &tankList() override;
    [[nodiscard]] Tank *currentTank() override;
    [[nodiscard]] QUndoStack &undoManager() override;
    [[nodiscard]] QMenu &dockMenu() override;
    void rebuildDockMenu() override;
    [[nodiscard]] QString representedFilename() const override;
    void documentModifiedWithChange(bool made) override;
    void setEnableDeleteButton(bool enable) override;
    [[nodiscard]] bool validateMenuItem(int tag) override;
    void deleteItem() override;
    void orderFrontAndCheckModified() override;
    void showWarningSheet(const QString &title, const QString &message) override;
    void changeView(MainView view) override;
    [[nodiscard]] MainView currentView() const override;
    void updateTree() override;
    void appendTank(const std::shared_ptr<Tank> &tank) override;
    void selectInTree(Tank &tank) override;
    void selectInTree(Container &container) override;
    void selectInTree(Record &livestock) override;

private:
    friend class Shared<ShoalwatchController>;
    ShoalwatchController();

    void awakeFromNib();
    void connectTree();
    void connectWindow();
    void buildNewMenu();
    void editFirstTank(const std::shared_ptr<Tank> &tank);

    TankListController &m_tankListController;
    std::unique_ptr<MainWindow> m_window;
    std::unique_ptr<MainViews> m_views;
    std::unique_ptr<MainSelection> m_selection;
    std::unique_ptr<MainDocumentHost> m_documentHost;
    std::unique_ptr<TankDocument> m_document;
    std::unique_ptr<DocumentCommands> m_documents;
    std::unique_ptr<CommandDispatch> m_dispatch;
    bool m_validating = false;
    bool m_ending = false;
};

} // namespace brinemark
