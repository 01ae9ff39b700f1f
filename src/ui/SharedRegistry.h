// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

namespace brinemark
{

/// The shared instances of the process (`Shared`) that exist now, in the order in which they were made.
class SharedRegistry
{
public:
    using End = void (*)();

    static void add(End end);
    static void remove(End end);

    /// Ends every instance, the newest first: one that is used in another's constructor is older than that and outlives
    /// it. Called once, while the application object still exists.
    static void endAll();
};

} // namespace brinemark
