// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/lists/RecordCellText.h"

#include "base/text/AmountText.h"
#include "base/text/DateText.h"
#include "model/KeyAccess.h"
#include "ui/lists/RecordColumn.h"

#include <QLocale>

namespace brinemark
{

QString textOfCell(const Record &record, const RecordColumn &column)
{
    if (column.shownText)
        return column.shownText(record);
    const QVariant value = valueForKey(record, column.identifier);
    switch (column.kind) {
    case ColumnKind::Date:
        return localeDateText(value.toDateTime());
    case ColumnKind::Number:
        return QLocale().toString(value.toDouble(), 'f', column.decimals);
    case ColumnKind::Amount:
        return formatObjectForLocale(value);
    case ColumnKind::Flag:
        return {};
    case ColumnKind::Text:
        break;
    }
    return value.toString();
}

QString toolTipOfCell(const Record &record, const RecordColumn &column)
{
    if (!column.opensCalendar())
        return {};
    return QLocale().toString(valueForKey(record, column.identifier).toDateTime(), QLocale::LongFormat);
}

} // namespace brinemark
