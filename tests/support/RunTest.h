// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "base/text/Texts.h"
#include "support/TestHome.h"

#include <QTest>

namespace brinemark::test
{

/// Runs a test object under an application of the given class and a home of its own, with English texts.
template <class Application, class Test>
int run(int argc, char **argv)
{
    const TestHome home;
    Application application(argc, argv);
    setTextLanguages({QStringLiteral("en")});
    Test test;
    return QTest::qExec(&test, argc, argv);
}

} // namespace brinemark::test
