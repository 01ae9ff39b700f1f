// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "app/documents/TankDocument.h"
#include "app/menus/MenuRules.h"
#include "app/tree/TankListController.h"
#include "app/tree/TankTreeModel.h"
#include "model/LivestockData.h"
#include "support/AlertDriver.h"
#include "support/RecordingShell.h"
#include "support/TestProgram.h"

#include <QApplication>
#include <QTest>
#include <QVBoxLayout>

namespace brinemark::test
{

/// A window that holds the tank tree, its controller and the open document. It records which views are requested.
class TreeWindow : public RecordingShell, private DocumentHost
{
public:
    explicit TreeWindow(QString savePath = {})
        : tree(TankListController::sharedInstance())
        , outline(tree.tankList())
        , model(static_cast<TankTreeModel *>(outline->model()))
        , document(tree.list(), *this)
        , m_savePath(std::move(savePath))
    {
        tree.setShell(*this);
        tree.openItemEditor = [this](ItemData &item) { edited << item.name; };
        tree.resetDocument = [this] { document.readTankFileWithPath({}); };
        tree.canDelete = [this] { return brinemark::canDelete(currentView(), false); };
        tree.performCommand = [this](Command command) {
            if (command == Command::Copy)
                tree.copy();
            else if (command == Command::Paste)
                tree.paste();
            else if (command == Command::Delete)
                deleteItem();
        };
        window.setWindowTitle(QStringLiteral("[*]"));
        (new QVBoxLayout(&window))->addWidget(outline);
        window.resize(240, 700);
        window.show();
        window.activateWindow();
        outline->setFocus();
    }
    ~TreeWindow() override { TankListController::destroyShared(); }

    [[nodiscard]] bool read(const QString &path) { return document.readTankFileWithPath(path); }
    /// Saves the document, which resets the change count.
    [[nodiscard]] bool save()
    {
        return document.writeTankFileWithPath(m_savePath) == TankDocument::WriteOutcome::Written;
    }

    Tank &tank(int index) { return *tree.list().at(index); }
    std::shared_ptr<Tank> addTank(const QString &name)
    {
        appendTank(std::make_shared<Tank>(name));
        return tree.list().at(tree.list().count() - 1);
    }
    /// Adds a livestock record and reloads the tree; no other observer is notified.
    template <class Kind>
    std::shared_ptr<Kind> add(Tank &tank, const QString &name)
    {
        auto record = std::make_shared<Kind>(name, &tank);
        tank.container(*containerKindOf(record->itemContext()))->appendRecord(record);
        tree.reload();
        return record;
    }

    QModelIndex indexOf(const TreeItem &item) const { return model->indexOf(item); }
    QModelIndex indexOf(Tank &tank, ContainerKind kind) const { return indexOf(TreeItem(*tank.container(kind))); }
    QRect rectOf(const TreeItem &item) const { return outline->visualRect(indexOf(item)); }
    void click(const TreeItem &item) const
    {
        QTest::mouseClick(outline->viewport(), Qt::LeftButton, {}, rectOf(item).center());
    }

    // Shell
    TankList &tankList() override { return tree.list(); }
    Tank *currentTank() override { return tree.currentTank(); }
    void documentModifiedWithChange(bool made) override { document.documentModifiedWithChange(made); }
    void deleteItem() override
    {
        if (currentView() == MainView::LivestockItem)
            tree.deleteItemDataEntry();
        else if (brinemark::canDelete(currentView(), false))
            tree.deleteTankEntry();
    }
    void changeView(MainView view) override
    {
        RecordingShell::changeView(view);
        views << view;
    }
    void updateTree() override { tree.updateDisplay(); }
    void appendTank(const std::shared_ptr<Tank> &tank) override
    {
        tree.list().append(tank);
        tree.updateDisplay();
        tree.select(TreeItem(*tank));
    }

    TankListController &tree;
    TankOutlineView *outline;
    TankTreeModel *model;
    TankDocument document;
    QList<MainView> views; ///< every requested view, in order
    QStringList edited;    ///< the names of the records that the item editor was opened on

private:
    // DocumentHost, like MainDocumentHost
    void showDocumentTitle(const QString &) override {}
    void showEditedMark(bool isEdited) override { window.setWindowModified(isEdited); }
    void resetNotificationView() override {}
    void forgetRows() override { tree.forgetRows(); }
    void reloadTree() override { tree.reload(); }
    void fitTreeColumn() override { tree.fitColumn(); }
    void selectTreeRow(int row) override { tree.selectRow(row); }
    int selectedTreeRow() const override { return tree.selectedRow(); }
    void refreshTree() override { tree.updateDisplay(); }
    void display() override
    {
        if (tree.list().isEmpty())
            appendTank(std::make_shared<Tank>(text("NewTankName")));
    }
    void showNotificationIfOnScreen() override {}
    void updateColumnInfo() override {}
    void forgetUndo() override { undo.clear(); }
    bool askKeepBackupOfOlderFile() override { return false; }
    OverwriteAnswer askBeforeOverwriting(const QString &, OverwriteReason) override
    {
        return OverwriteAnswer::Overwrite;
    }
    void reportReadError() override {}
    FailedSaveAnswer reportSaveError(const WriteResult &, SaveContext) override { return FailedSaveAnswer::Cancel; }

    QString m_savePath;
};

} // namespace brinemark::test
