// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/toolbar/ToolbarDrag.h"

#include "app/toolbar/ToolbarItems.h"
#include "ui/Icons.h"

#include <QDataStream>
#include <QIODevice>
#include <QMimeData>

namespace brinemark
{

QMimeData *ToolbarDrag::toMimeData() const
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << identifier << qint32(shownRow);
    auto *data = new QMimeData;
    data->setData(mimeType, bytes);
    return data;
}

std::optional<ToolbarDrag> ToolbarDrag::fromMimeData(const QMimeData *data)
{
    if (!data || !data->hasFormat(mimeType))
        return std::nullopt;
    QDataStream stream(data->data(mimeType));
    ToolbarDrag drag;
    qint32 row = -1;
    stream >> drag.identifier >> row;
    drag.shownRow = row;
    if (stream.status() != QDataStream::Ok || !toolbarItem(drag.identifier))
        return std::nullopt;
    return drag;
}

QVariant toolbarItemData(const QString &identifier, int role)
{
    const ToolbarItem *item = toolbarItem(identifier);
    if (!item)
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return text(item->label);
    case Qt::DecorationRole:
        return icon(item->icon);
    case Qt::ToolTipRole:
        return text(item->toolTip);
    default:
        return {};
    }
}

} // namespace brinemark
