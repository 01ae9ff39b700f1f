// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QtGlobal>

namespace brinemark
{

/// Identifies a livestock kind in records, item editor and search. Plain item data has `None`.
enum class ItemContext : qint32 { None = -1, Fish = 1, Plant = 2, Coral = 3, Invert = 4 };

} // namespace brinemark
