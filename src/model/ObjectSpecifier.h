// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

#include <memory>
#include <optional>

namespace brinemark
{

class Tank;
struct Record;

/// Where an object stands, as a scripting interface would address it: an element or a property of its container.
struct ObjectSpecifier {
    QString key;                             ///< "appTankList", a list key such as "fishListArray", or "tankData"
    std::optional<int> index;                ///< the element; none for a property
    std::shared_ptr<ObjectSpecifier> parent; ///< of the tank; null for the application
};

/// Of a tank: none when it is not in the application's list.
[[nodiscard]] std::optional<ObjectSpecifier> objectSpecifier(const Tank &tank);
/// Of a record: none when it has no tank, or is not in its list, or when that tank has no address.
[[nodiscard]] std::optional<ObjectSpecifier> objectSpecifier(const Record &record);

} // namespace brinemark
