// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QtGlobal>

namespace brinemark
{

/// The number that names a livestock kind everywhere (records, item editor, search). `None` is what plain item data
/// answers.
enum class ItemContext : qint32 { None = -1, Fish = 1, Plant = 2, Coral = 3, Invert = 4 };

} // namespace brinemark
