// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "chemistry/ConditionCsv.h"

#include <memory>

class QWidget;

namespace brinemark
{

class Tank;

/// Asks for a file on a sheet of `window` ("exportPanel") and writes the water tests of the tank to it as
/// comma-separated values. The file is replaced as a whole or not at all; a failure is only logged. Nothing is written
/// when the tank is destroyed while the sheet is open.
void beginConditionExport(QWidget *window, const std::shared_ptr<Tank> &tank, std::vector<CsvColumn> columns);

} // namespace brinemark
