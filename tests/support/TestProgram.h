// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

// What every test needs: the data tables, the texts and the toolkit's test functions come with this header.

#include "base/text/Texts.h"
#include "support/DataRow.h"
#include "support/Lists.h"
#include "support/TestHome.h"

#include <QCoreApplication>
#include <QTest>

namespace brinemark::test
{

/// Runs one test class; the arguments are those of QTest::qExec().
using TestFunction = int (*)(int argc, char **argv);

/// Enters a test under the name of its source file ("tst_stepper"), by which the folder's test program finds it.
/// Always true, so that it can initialise a constant.
bool addTest(const char *sourceFile, TestFunction function);

/// Runs a test object under an application of the given class and a home of its own. Texts are English, unless the
/// class declares `usesSystemLanguage`.
template <class Application, class Test>
int run(int argc, char **argv)
{
    const TestHome home;
    // The desktop's file panels cannot be driven by a test.
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    Application application(argc, argv);
    if constexpr (!requires { Test::usesSystemLanguage; })
        setTextLanguages({QStringLiteral("en")});
    Test test;
    return QTest::qExec(&test, argc, argv);
}

} // namespace brinemark::test

/// Stands once at the end of each tst_*.cpp, before its moc file.
#define BRINEMARK_TEST(Application, Test)                                                                              \
    [[maybe_unused]] static const bool Test##Added =                                                                   \
        brinemark::test::addTest(__FILE__, &brinemark::test::run<Application, Test>);
