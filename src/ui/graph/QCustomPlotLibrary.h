// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

// The library's header uses two of Qt's keyword macros, which this build does not define.
#define signals Q_SIGNALS
#define foreach(variable, container) for (variable : container)
#include <qcustomplot.h>
#undef foreach
#undef signals
