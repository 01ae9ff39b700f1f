// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/ModelContext.h"
#include "model/Tank.h"
#include "model/TankFile.h"
#include "ui/Alerts.h"
#include "ui/Shell.h"

#include <QMenu>
#include <QUndoStack>
#include <QWidget>

#include <functional>

namespace brinemark::test
{

/// A main window that only records the calls of the views. It is the shared shell during its lifetime.
class RecordingShell : public Shell
{
public:
    RecordingShell()
    {
        setShared(this);
        ModelContext::sharedInstance().setAppTankList(&tanks);
        window.resize(800, 500);
        m_beepBefore = setBeepHandler([this] { ++beeps; });
    }
    ~RecordingShell() override
    {
        setBeepHandler(m_beepBefore);
        ModelContext::sharedInstance().setAppTankList(nullptr);
        setShared(nullptr);
    }

    /// Reads a tank file and makes its first tank the current one; false when it cannot be read.
    bool readTanks(const QString &path)
    {
        const TankFileContent content = readTankDictionary(path);
        if (!content.ok || !brinemark::readTanks(content.root, path, tanks).ok || tanks.isEmpty())
            return false;
        current = tanks.at(0).get();
        return true;
    }

    QWidget *mainWindow() override { return &window; }
    TankList &tankList() override { return tanks; }
    Tank *currentTank() override { return current; }
    QUndoStack &undoManager() override { return undo; }
    QMenu &dockMenu() override { return dock; }
    void rebuildDockMenu() override { dock.clear(); }
    QString representedFilename() const override { return openFile; }
    void documentModifiedWithChange(bool made) override { changes += made ? 1 : -1; }
    void setEnableDeleteButton(bool enable) override { deleteEnabled = enable; }
    bool validateMenuItem(int tag) override { return tag != disabledTag; }
    void deleteItem() override { ++deletesAsked; }
    void orderFrontAndCheckModified() override { ++ordersFront; }
    void showWarningSheet(const QString &title, const QString &) override { warning = title; }
    void changeView(MainView view) override { shown = view; }
    MainView currentView() const override { return shown; }
    void updateTree() override { ++treeUpdates; }
    void appendTank(const std::shared_ptr<Tank> &tank) override
    {
        tanks.append(tank);
        current = tank.get();
    }
    void selectInTree(Tank &tank) override { current = &tank; }
    void selectInTree(Container &container) override { selectedContainer = &container; }
    void selectInTree(Record &livestock) override { selectedRecord = &livestock; }

    QWidget window;
    TankList tanks;
    Tank *current = nullptr;
    QUndoStack undo;
    QMenu dock;
    QString openFile;
    MainView shown = MainView::None;
    Container *selectedContainer = nullptr;
    Record *selectedRecord = nullptr;
    QString warning;
    bool deleteEnabled = false;
    int disabledTag = -1; ///< the only one whose menu items are disabled
    int changes = 0;
    int ordersFront = 0;
    int deletesAsked = 0;
    int treeUpdates = 0;
    int beeps = 0;

private:
    std::function<void()> m_beepBefore;
};

} // namespace brinemark::test
