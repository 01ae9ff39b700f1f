// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "base/saving/FileCalls.h"
#include "base/saving/SafeFile.h"

#include <QFileDevice>

namespace brinemark
{

[[nodiscard]] SaveProblem problemOf(int systemError);
[[nodiscard]] SaveProblem problemOf(QFileDevice::FileError error);

/// The call and the system's reason, for the log: "fsync: No space left on device".
[[nodiscard]] QString errorTextOf(FailedCall failed);

} // namespace brinemark
