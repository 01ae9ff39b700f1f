// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "base/text/DateText.h"
#include "model/Condition.h"

#include <QByteArray>
#include <QString>

#include <vector>

namespace brinemark
{

/// A column of an export.
struct CsvColumn {
    QString identifier; ///< "date" or a parameter's identifier; any other text gives empty fields
    QString header;
};

/// The water tests as comma-separated values in the platform's text encoding: a line of headers, which are never
/// quoted, then a line for each test in the order of the log. Every line ends with a carriage return and no line feed.
///
/// Dates are in a calendar format, the user's short one by default, numbers plain with a full stop; a value that was
/// not tested is an empty field. A field that contains a comma is enclosed in double quotes; quotes inside it are not
/// doubled.
[[nodiscard]] QByteArray conditionCsv(const Condition &log, const std::vector<CsvColumn> &columns,
                                      const QString &dateFormat = dateFormatterForLocale());

} // namespace brinemark
