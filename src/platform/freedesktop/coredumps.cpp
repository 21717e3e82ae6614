// SPDX-License-Identifier: MIT
#include "platform/freedesktop/coredumps.h"

#include <fcntl.h>
#include <pthread.h>
#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <optional>

namespace vesk {

namespace {

constexpr auto kFilter = "/proc/self/coredump_filter";

/// The settings that the process was started with, in a form that a child can restore between fork and exec,
/// where allocating is not allowed.
struct Before
{
    std::optional<rlimit> limit;
    /// In the kernel's format: a hexadecimal number, which must be written back with "0x".
    std::array<char, 32> filter{'0', 'x'};
    size_t filterLength = 0;
};

Before g_before;

void readFilter()
{
    constexpr size_t kPrefix = 2;
    const int file = ::open(kFilter, O_RDONLY | O_CLOEXEC);
    if (file < 0)
        return;
    const ssize_t length = ::read(file, g_before.filter.data() + kPrefix, g_before.filter.size() - kPrefix);
    g_before.filterLength = length > 0 ? kPrefix + static_cast<size_t>(length) : 0;
    ::close(file);
}

void writeFilter(const char *text, size_t length)
{
    const int file = ::open(kFilter, O_WRONLY | O_CLOEXEC);
    if (file < 0)
        return;
    static_cast<void>(::write(file, text, length));
    ::close(file);
}

} // namespace

void forbidCoreDumps()
{
    // Do not make the process undumpable: its folder in /proc would then belong to root, and desktop portals,
    // which look there to identify their callers, would refuse every call.
    rlimit limit{};
    if (::getrlimit(RLIMIT_CORE, &limit) == 0) {
        g_before.limit = limit;
        // If dumps go to a program (core_pattern begins with a pipe), the kernel ignores the limit unless it
        // is 1, which means that such a program has itself crashed, and then refuses to dump. One byte is
        // also too little for a dump to a file.
        limit.rlim_cur = std::min(rlim_t{1}, limit.rlim_max);
        static_cast<void>(::setrlimit(RLIMIT_CORE, &limit));
    }
    // Exclude all memory from a dump in case the limit does not help: a hard limit of 0 cannot be raised to
    // 1.
    readFilter();
    writeFilter("0", 1);
    static_cast<void>(::pthread_atfork(nullptr, nullptr, restoreCoreDumps));
}

void restoreCoreDumps()
{
    if (g_before.limit)
        static_cast<void>(::setrlimit(RLIMIT_CORE, &*g_before.limit));
    if (g_before.filterLength > 0)
        writeFilter(g_before.filter.data(), g_before.filterLength);
}

} // namespace vesk
