// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

#include <memory>
#include <optional>

namespace brinemark
{

class Tank;
struct Record;

/// The address of an object for a scripting interface: an element or a property of its container. Kept for that
/// interface, although nothing calls it yet.
struct ObjectSpecifier {
    QString key;                             ///< "appTankList", a list key such as "fishListArray", or "tankData"
    std::optional<int> index;                ///< of the element; none for a property
    std::shared_ptr<ObjectSpecifier> parent; ///< of the tank; null for the application
};

/// The address of a tank; none when it is not in the application's list.
[[nodiscard]] std::optional<ObjectSpecifier> objectSpecifier(const Tank &tank);
/// The address of a record; none when it has no tank, is not in its list, or the tank has no address.
[[nodiscard]] std::optional<ObjectSpecifier> objectSpecifier(const Record &record);

} // namespace brinemark
