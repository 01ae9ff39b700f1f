// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

/// The product's name, addresses and version. All other source files take them from here.
namespace brinemark::product
{

inline constexpr char name[] = "Brinemark";
inline constexpr char supportAddress[] = "support@brinemark.example";
inline constexpr char listAddress[] = "list@brinemark.example";
inline constexpr char profilesAddress[] = "profiles@brinemark.example"; ///< receives the profiles that users send in
inline constexpr char productPage[] = "https://www.brinemark.example/";

/// The short version, for example "1.0.0"; a fourth number is a beta number.
[[nodiscard]] QString shortVersion();

/// The build version, which feedback mail quotes.
[[nodiscard]] QString buildVersion();

/// A version packed into 32 bits: major (8 bits, decimal digits as nibbles), minor and point (4 bits each), stage (0x80
/// for a release, 0x60 for a beta), build (8 bits: the beta number). 1.0.0 gives 0x01008000. Text without numbers gives
/// 0.
[[nodiscard]] quint32 packedVersion(const QString &version);

} // namespace brinemark::product
