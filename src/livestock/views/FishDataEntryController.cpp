// SPDX-License-Identifier: GPL-3.0-or-later

#include "livestock/views/FishDataEntryController.h"

#include "livestock/LivestockGroup.h"
#include "livestock/views/FishDataController.h"
#include "livestock/views/ItemSheet.h"
#include "model/Tank.h"
#include "ui/FinishTyping.h"
#include "ui/Sheets.h"
#include "ui/Shell.h"

namespace brinemark
{

FishDataEntryController::FishDataEntryController() = default;

FishDataEntryController::~FishDataEntryController() = default;

void FishDataEntryController::displayItemData(ItemData *item, ItemContext context)
{
    finishTyping(Shell::shared().mainWindow());
    if (!item) {
        addNewItem(context);
        return;
    }
    if (!m_infoPanel) {
        m_infoPanel = new ItemSheet(Shell::shared().mainWindow());
        connect(m_infoPanel, &QDialog::finished, this, &FishDataEntryController::closeEditSheet);
    }
    if (m_infoPanel->isVisible())
        return;
    m_itemData = std::static_pointer_cast<ItemData>(item->shared_from_this());
    m_infoPanel->showItem(*item);
    openSheet(Shell::shared().mainWindow(), m_infoPanel);
}

void FishDataEntryController::addNewItem(ItemContext context)
{
    Shell &shell = Shell::shared();
    Tank *tank = shell.currentTank();
    const std::optional<ContainerKind> kind = containerKindOf(context);
    if (!tank || !kind)
        return;
    const std::shared_ptr<ItemData> item = makeItemData(context, tank);
    item->name = text(livestockGroupTraits(*kind)->defaultNameKey);
    tank->container(*kind)->appendRecord(item);
    shell.updateTree();
    shell.selectInTree(*item);
    shell.editNameInTree();
    shell.documentModifiedWithChange(true);
}

void FishDataEntryController::closeEditSheet(int returnCode)
{
    const std::shared_ptr<ItemData> item = std::exchange(m_itemData, nullptr);
    Shell &shell = Shell::shared();
    if (returnCode == QDialog::Accepted && item) {
        m_infoPanel->storeInto(*item);
        shell.updateTree();
        FishDataController::sharedInstance().displayItemData(item.get());
        shell.documentModifiedWithChange(true);
    }
    shell.orderFrontAndCheckModified();
}

} // namespace brinemark

#include "moc_FishDataEntryController.cpp"
