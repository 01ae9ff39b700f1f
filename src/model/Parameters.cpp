// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/Parameters.h"

#include <algorithm>

namespace brinemark
{

namespace
{

std::optional<Parameter> firstParameter(QStringView ParameterTraits::*member, QStringView wanted)
{
    const auto it = std::find_if(parameterTable.begin(), parameterTable.end(),
                                 [&](const ParameterTraits &traits) { return traits.*member == wanted; });
    return it == parameterTable.end() ? std::nullopt : std::optional(it->parameter);
}

} // namespace

std::optional<Parameter> parameterFromIdentifier(QStringView identifier)
{
    return firstParameter(&ParameterTraits::identifier, identifier);
}

std::optional<Parameter> parameterFromTargetKey(QStringView targetKey)
{
    return firstParameter(&ParameterTraits::targetKey, targetKey);
}

} // namespace brinemark
