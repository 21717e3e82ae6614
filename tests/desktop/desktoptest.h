// SPDX-License-Identifier: MIT
#pragma once

#include "virtualdesktop/guard.h"
#include "virtualdesktop/veskfacts.h"

#include <QCoreApplication>
#include <QTest>

/// Fails this test function with the window titles on the screen, which usually show what went wrong.
#define VERIFY_ON(desktop, condition)                                                                        \
    QVERIFY2(condition, qPrintable(QStringLiteral("On the screen: ") + (desktop).windows().describe()))

namespace vesk {

/// Generous enough for the slowest machine; nothing here measures speed.
constexpr std::chrono::seconds kBound{10};

/// Runs the test object's functions, with all their processes below the guard.
template <typename Test>
int runDesktopTest(int argc, char **argv)
{
    return runGuarded([&] {
        const QCoreApplication application(argc, argv);
        Test test;
        return QTest::qExec(&test, argc, argv);
    });
}

} // namespace vesk

/// The main function of a program that contains only this test.
#define DESKTOP_TEST_MAIN(Test)                                                                              \
    int main(int argc, char **argv)                                                                          \
    {                                                                                                        \
        return vesk::runDesktopTest<Test>(argc, argv);                                                       \
    }
