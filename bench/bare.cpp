// SPDX-License-Identifier: MIT
//
// The minimal Qt program: the time that it takes to start is the lower bound of any start.
#include <QGuiApplication>

#include <cstdio>

int main(int argc, char **argv)
{
    const QGuiApplication application(argc, argv);
    std::printf("ready\n");
    return 0;
}
