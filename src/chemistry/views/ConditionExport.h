// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "chemistry/ConditionCsv.h"

#include <memory>

class QWidget;

namespace brinemark
{

class Tank;

/// Asks on a sheet of `window` ("exportPanel") where to, and writes the water tests of the tank as comma-separated
/// values. The file is replaced as a whole or not at all; a failure is only logged. Nothing is written when the tank
/// goes meanwhile.
void beginConditionExport(QWidget *window, const std::shared_ptr<Tank> &tank, std::vector<CsvColumn> columns);

} // namespace brinemark
