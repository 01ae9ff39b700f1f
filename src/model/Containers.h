// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

// Includes all nine containers of a tank and, through them, all record types.
#include "model/Condition.h"
#include "model/Coral.h"
#include "model/Expense.h"
#include "model/Fish.h"
#include "model/Inventory.h"
#include "model/Invert.h"
#include "model/Note.h"
#include "model/Plant.h"
#include "model/Schedule.h"
