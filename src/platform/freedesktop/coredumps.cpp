// SPDX-License-Identifier: MIT
#include "platform/freedesktop/coredumps.h"

#include <sys/resource.h>

namespace vesk {

void forbidCoreDumps()
{
    // Not by making the process undumpable: then its folder in /proc belongs to root, and desktop portals,
    // which look there for who calls them, refuse every call. systemd's collector heeds the limit, too.
    rlimit limit{};
    if (::getrlimit(RLIMIT_CORE, &limit) != 0)
        return;
    limit.rlim_cur = 0;
    static_cast<void>(::setrlimit(RLIMIT_CORE, &limit));
}

} // namespace vesk
