// SPDX-License-Identifier: GPL-3.0-or-later

#include "chemistry/views/ConditionExport.h"

#include "base/saving/SafeFile.h"
#include "base/text/Texts.h"
#include "model/Tank.h"
#include "ui/SavePanel.h"

namespace brinemark
{

void beginConditionExport(QWidget *window, const std::shared_ptr<Tank> &tank, std::vector<CsvColumn> columns)
{
    SavePanelOptions options{QStringLiteral("exportPanel")};
    options.message = text("ExportMessage");
    options.proposedName = formatText(text("ExportName"), {tank->name});
    options.kinds = {{QStringLiteral("csv"), text("ExportFileFilter")}};
    beginSavePanel(window, options,
                   [exported = std::weak_ptr<Tank>(tank), columns = std::move(columns)](const QString &path) {
                       const std::shared_ptr<Tank> tank = exported.lock();
                       if (!tank || path.isEmpty())
                           return;
                       // writeFileSafely() logs a failure; nothing else reports it.
                       static_cast<void>(writeFileSafely(path, conditionCsv(*tank->condition(), columns)));
                   });
}

} // namespace brinemark
