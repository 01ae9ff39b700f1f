// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QLoggingCategory>

/// Logging categories. QT_LOGGING_RULES="brinemark.file.debug=true" in the environment shows the debug messages of one.
namespace brinemark
{

Q_DECLARE_LOGGING_CATEGORY(logApp)         ///< brinemark.app: start-up, windows, commands
Q_DECLARE_LOGGING_CATEGORY(logFile)        ///< brinemark.file: reading and writing files
Q_DECLARE_LOGGING_CATEGORY(logPreferences) ///< brinemark.preferences
Q_DECLARE_LOGGING_CATEGORY(logOnline)      ///< brinemark.online: transfers and update checks

} // namespace brinemark
