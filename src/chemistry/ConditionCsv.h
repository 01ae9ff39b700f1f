#pragma once

#include "model/Condition.h"

#include <QByteArray>
#include <QString>

#include <vector>

namespace brinemark
{

/// A column of an export.
struct CsvColumn {
    QString identifier; ///< "date" or a parameter's identifier; any other gives empty fields
    QString header;
};

/// A field as it stands in the export: with a comma in it, in double quotes; quotes in it are not doubled.
[[nodiscard]] QString csvField(const QString &text);

/// The water tests as comma-separated values in the platform's text encoding: a line of headers, which are never
/// quoted, then a line for each test in the order of the log. Every line ends with a carriage return and no line feed.
///
/// Dates are in the user's short format, numbers plain with a full stop; what was not tested is empty.
[[nodiscard]] QByteArray conditionCsv(const Condition &log, const std::vector<CsvColumn> &columns);

} // namespace brinemark
