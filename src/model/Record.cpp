// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/Record.h"

namespace brinemark
{

Record::~Record() = default;

} // namespace brinemark
