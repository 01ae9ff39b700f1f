// SPDX-License-Identifier: GPL-3.0-or-later

#include "base/Log.h"

namespace brinemark
{

Q_LOGGING_CATEGORY(logApp, "brinemark.app", QtInfoMsg)
Q_LOGGING_CATEGORY(logFile, "brinemark.file", QtInfoMsg)
Q_LOGGING_CATEGORY(logPreferences, "brinemark.preferences", QtInfoMsg)
Q_LOGGING_CATEGORY(logOnline, "brinemark.online", QtInfoMsg)

} // namespace brinemark
