// SPDX-License-Identifier: MIT
#include "platform/freedesktop/coredumps.h"

#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>

namespace vesk {

namespace {

/// Leaves everything that is in memory out of a dump, for where the limit does not help: a hard limit of 0
/// cannot be raised to 1. Inherited by the programs that Vesk starts, as the limit is.
void leaveOutMemory()
{
    const int filter = ::open("/proc/self/coredump_filter", O_WRONLY | O_CLOEXEC);
    if (filter < 0)
        return;
    static_cast<void>(::write(filter, "0", 1));
    ::close(filter);
}

} // namespace

void forbidCoreDumps()
{
    // Not by making the process undumpable: then its folder in /proc belongs to root, and desktop portals,
    // which look there for who calls them, refuse every call.
    rlimit limit{};
    if (::getrlimit(RLIMIT_CORE, &limit) == 0) {
        // Where dumps go to a program (core_pattern begins with a pipe), the kernel does not look at the
        // size, but for the one value 1, which it takes for a program of that kind that has crashed itself,
        // and refuses. One byte is too little for a file, too.
        limit.rlim_cur = std::min(rlim_t{1}, limit.rlim_max);
        static_cast<void>(::setrlimit(RLIMIT_CORE, &limit));
    }
    leaveOutMemory();
}

} // namespace vesk
