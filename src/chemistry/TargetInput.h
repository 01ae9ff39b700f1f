// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "base/TableChecks.h"
#include "model/Parameters.h"

#include <array>

namespace brinemark
{

/// The stepper of one of a target's two numbers: from 0 to a maximum by steps, in the parameter's unit.
struct StepRange {
    double step;
    double maximum;
};

/// How the target of a parameter is entered.
struct TargetInput {
    int tag; ///< of its item in the chooser; counts from 1
    Parameter parameter;
    StepRange preferred;
    StepRange deviation;
    int decimals; ///< of both numbers

    [[nodiscard]] constexpr QStringView targetKey() const { return traitsOf(parameter).targetKey; }
};

/// The two steps of a row may differ on purpose: a preferred temperature moves by one degree, its deviation by half a
/// degree.
// clang-format off
inline constexpr std::array<TargetInput, parameterCount> targetInputTable{{
    { 1, Parameter::Alkalinity, { 0.1,    600}, { 0.1,   600}, 1},
    { 2, Parameter::Ammonia,    { 0.1,     99}, { 0.1,     5}, 2},
    { 3, Parameter::Calcium,    { 1,      999}, { 1,     100}, 0},
    { 4, Parameter::Copper,     { 0.01,    99}, { 0.01,    9}, 2},
    { 5, Parameter::Iron,       { 0.1,     99}, { 0.1,    10}, 1},
    { 6, Parameter::GH,         { 0.5,    999}, { 0.5,    20}, 2},
    { 7, Parameter::Iodine,     { 0.01,    99}, { 0.01,    9}, 2},
    { 8, Parameter::KH,         { 0.5,    600}, { 0.5,    20}, 2},
    { 9, Parameter::Nitrate,    { 1,      600}, { 1,      50}, 2},
    {10, Parameter::Nitrite,    { 0.1,    300}, { 0.1,    20}, 2},
    {11, Parameter::Oxygen,     { 0.2,     99}, { 0.2,    10}, 1},
    {12, Parameter::Ph,         { 0.2,     99}, { 0.2,    10}, 2},
    {13, Parameter::Phosphate,  { 0.01,    99}, { 0.01,   10}, 2},
    {14, Parameter::Salt,       { 0.001,   10}, { 0.001,  10}, 3},
    {15, Parameter::Temp,       { 1,      150}, { 0.5,    10}, 1},
    {16, Parameter::Dioxide,    { 1,       99}, { 1,      99}, 0},
    {17, Parameter::Magnesium,  {10,     2500}, {10,     400}, 0},
}};
// clang-format on
static_assert(eachHasOneRow<Parameter>(targetInputTable, &TargetInput::parameter),
              "targetInputTable needs one row for each Parameter");

/// Null for a tag without a parameter, such as 0.
[[nodiscard]] constexpr const TargetInput *targetInputForTag(int tag)
{
    for (const TargetInput &input : targetInputTable) {
        if (input.tag == tag)
            return &input;
    }
    return nullptr;
}

/// Never fails, because every parameter has a row.
[[nodiscard]] constexpr const TargetInput &targetInputOf(Parameter parameter)
{
    const TargetInput *found = targetInputTable.data();
    while (found->parameter != parameter)
        ++found;
    return *found;
}

} // namespace brinemark
