// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/tree/TankListController.h"

#include "app/tree/PasteboardTypes.h"
#include "app/tree/TankTreeModel.h"
#include "base/Log.h"
#include "base/plist/XmlReader.h"
#include "base/plist/XmlWriter.h"
#include "model/RecordDict.h"
#include "model/TankReadError.h"
#include "ui/Shell.h"
#include "ui/pictures/PictureConverter.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

// Drag and drop, copy and paste of TankListController.

namespace brinemark
{

namespace
{

QByteArray propertyList(const QString &text)
{
    return plist::writeXml(plist::Value(text));
}

} // namespace

QMimeData *TankListController::writeItem(const TreeItem &item)
{
    if (item.isNone() || item.isContainer())
        return nullptr;
    auto *data = new QMimeData;
    if (item.isRecord()) {
        m_dragData = {nullptr, std::static_pointer_cast<ItemData>(item.record->shared_from_this())};
        data->setData(pasteboard::livestock, propertyList(QStringLiteral("fish available")));
    } else {
        m_dragData = {item.tank->shared_from_this(), nullptr};
        data->setData(pasteboard::tank, propertyList(QStringLiteral("tank available")));
    }
    return data;
}

bool TankListController::takesDragged(const TreeItem &row) const
{
    return m_dragData.record && takesRecord(row, *m_dragData.record);
}

TankOutlineView::DropAnswer TankListController::validateDrop(const DropProposal &proposal, const TreeItem &row,
                                                             Qt::DropActions allowed)
{
    if (m_dragData.record)
        return {validateRecordDrop(*m_dragData.record, proposal, allowed), {}};
    if (!m_dragData.tank)
        return {};
    const std::optional<int> index = validateTankDrop(m_list, *m_dragData.tank, row);
    if (!index)
        return {};
    return {DropOperation::Move, DropProposal{{}, index}};
}

bool TankListController::acceptDrop(const DropProposal &proposal, const TreeItem &row, Qt::DropActions allowed)
{
    if (m_dragData.record) {
        const DropOperation operation = validateRecordDrop(*m_dragData.record, proposal, allowed);
        const std::shared_ptr<ItemData> dropped = acceptRecordDrop(m_dragData.record, proposal, operation);
        if (!dropped)
            return false;
        showDropped(TreeItem(*dropped));
        return true;
    }
    if (!m_dragData.tank)
        return false;
    const std::optional<int> index = validateTankDrop(m_list, *m_dragData.tank, row);
    if (!index)
        return false;
    acceptTankDrop(m_list, *m_dragData.tank, *index);
    showDropped(TreeItem(*m_dragData.tank));
    return true;
}

void TankListController::showDropped(const TreeItem &item)
{
    // The rows that opened under the drag close again, except those above the dropped record.
    if (item.isRecord()) {
        item.tank->tankExpanded = true;
        *TreeItem(*item.container).expandedFlag() = true;
    }
    reload();
    // A moved item is usually the selected row already, so select() would not report a change. The view must be updated
    // anyway.
    if (currentSelectedItem() == item)
        outlineViewSelectionDidChange();
    else
        select(item);
}

bool TankListController::canCopy() const
{
    return currentSelectedItem().isRecord();
}

bool TankListController::canPaste() const
{
    const QMimeData *data = QGuiApplication::clipboard()->mimeData();
    return data && data->hasFormat(pasteboard::livestock);
}

void TankListController::copy()
{
    const TreeItem item = currentSelectedItem();
    if (!item.isRecord())
        return;
    auto *data = new QMimeData;
    data->setText(item.record->name);
    data->setData(pasteboard::livestock, plist::writeXml(recordDict(*item.record)));
    data->setData(pasteboard::itemContext, propertyList(item.container->traits().fileKey.toString()));
    QGuiApplication::clipboard()->setMimeData(data);
}

void TankListController::paste()
{
    const std::shared_ptr<Tank> tank = m_currentTank.lock();
    if (!tank || !canPaste())
        return;
    const QMimeData *data = QGuiApplication::clipboard()->mimeData();
    const plist::ReadResult context = plist::readXml(data->data(pasteboard::itemContext));
    const plist::ReadResult dict = plist::readXml(data->data(pasteboard::livestock));
    const QString *fileKey = context.value.string();
    const std::optional<ContainerKind> kind = fileKey ? containerKindFromFileKey(*fileKey) : std::nullopt;
    if (!kind || !traitsOf(*kind).isLivestock() || !dict.value.dict())
        return;

    std::shared_ptr<ItemData> record;
    try {
        record = std::static_pointer_cast<ItemData>(recordFromDict(*kind, *dict.value.dict(), tank.get()));
    } catch (const TankReadError &error) {
        qCWarning(logApp) << "what was pasted is no livestock record:" << error.what();
        return;
    }
    PictureConverter::sharedInstance().convertLater(record->itemImage);
    tank->container(*kind)->appendRecord(record);
    tank->tankExpanded = true;
    *tank->expandedFlag(*kind) = true;
    updateDisplay();
    select(TreeItem(*record));
}

} // namespace brinemark
