// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QLoggingCategory>

/// The log's areas; QT_LOGGING_RULES="brinemark.file.debug=true" turns one up.
namespace brinemark
{

Q_DECLARE_LOGGING_CATEGORY(logApp)         ///< brinemark.app: start-up, windows, commands
Q_DECLARE_LOGGING_CATEGORY(logFile)        ///< brinemark.file: reading and writing files
Q_DECLARE_LOGGING_CATEGORY(logPreferences) ///< brinemark.preferences
Q_DECLARE_LOGGING_CATEGORY(logOnline)      ///< brinemark.online: transfers and update checks

} // namespace brinemark
