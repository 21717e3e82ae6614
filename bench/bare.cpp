// SPDX-License-Identifier: MIT
//
// The least that a Qt program does to be there: how long that takes is the floor of any start.
#include <QGuiApplication>

#include <cstdio>

int main(int argc, char **argv)
{
    const QGuiApplication application(argc, argv);
    std::printf("ready\n");
    return 0;
}
