// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "base/saving/SafeFile.h"

namespace brinemark
{

class FileCalls;

/// Writes over an existing file that cannot be replaced by another one. A copy of the old content is made before and
/// removed once the new content was read back. If writing fails, the old content is written again; only if that fails
/// too, the file is damaged and the copy stays.
[[nodiscard]] WriteResult overwriteFile(FileCalls &calls, const QString &target, const QByteArray &bytes);

} // namespace brinemark
