// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/TestProgram.h"

#include <QFileInfo>

#include <cstdio>
#include <map>

namespace
{

using Tests = std::map<QString, brinemark::test::TestFunction>;

/// Made on first use, because the tests add themselves during static initialisation, in any order.
Tests &tests()
{
    static Tests all;
    return all;
}

} // namespace

bool brinemark::test::addTest(const char *sourceFile, TestFunction function)
{
    tests().emplace(QFileInfo(QString::fromUtf8(sourceFile)).baseName(), function);
    return true;
}

/// PROGRAM TEST [QTest arguments]: runs one of the program's tests in a process of its own.
int main(int argc, char **argv)
{
    const auto test = argc > 1 ? tests().find(QString::fromLocal8Bit(argv[1])) : tests().end();
    if (test == tests().end()) {
        std::fputs("Name one of these tests:\n", stderr);
        for (const auto &[name, function] : tests())
            std::fprintf(stderr, "  %s\n", qPrintable(name));
        return 2;
    }
    argv[1] = argv[0];
    return test->second(argc - 1, argv + 1);
}
