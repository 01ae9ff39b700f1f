// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "ui/SharedRegistry.h"

#include <memory>

namespace brinemark
{

/// A process-wide single instance, created on first use by `sharedInstance()`. The application ends all of them through
/// `SharedRegistry` before the application object is destroyed, so that no widget outlives it.
///
///     class PrefsController : public Shared<PrefsController> { friend class Shared<PrefsController>;
///     PrefsController(); };
template <class T>
class Shared
{
public:
    static T &sharedInstance()
    {
        if (!instance()) {
            instance().reset(new T);
            SharedRegistry::add(&destroyShared); // after the constructor, which may make instances that T needs
        }
        return *instance();
    }

    [[nodiscard]] static bool hasSharedInstance() { return instance() != nullptr; }

    /// Ends this instance alone; without one, nothing happens.
    static void destroyShared()
    {
        SharedRegistry::remove(&destroyShared);
        instance().reset();
    }

    Shared(const Shared &) = delete;
    Shared &operator=(const Shared &) = delete;

protected:
    Shared() = default;
    ~Shared() = default;

private:
    static std::unique_ptr<T> &instance()
    {
        static std::unique_ptr<T> shared;
        return shared;
    }
    friend std::default_delete<T>;
};

} // namespace brinemark
