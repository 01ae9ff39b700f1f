// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/Shell.h"

namespace brinemark
{

namespace
{
Shell *sharedShell = nullptr;
}

Shell &Shell::shared()
{
    Q_ASSERT(sharedShell);
    return *sharedShell;
}

bool Shell::exists()
{
    return sharedShell;
}

void Shell::setShared(Shell *shell)
{
    sharedShell = shell;
}

} // namespace brinemark
