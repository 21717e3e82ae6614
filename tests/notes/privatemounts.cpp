// SPDX-License-Identifier: MIT
#include "privatemounts.h"

#include <fcntl.h>
#include <sched.h>
#include <string>
#include <sys/mount.h>
#include <unistd.h>

namespace vesk {

namespace {

bool writeFile(const char *path, const std::string &text)
{
    const int descriptor = ::open(path, O_WRONLY | O_CLOEXEC);
    if (descriptor < 0)
        return false;
    const bool isWritten = ::write(descriptor, text.data(), text.size()) == ssize_t(text.size());
    ::close(descriptor);
    return isWritten;
}

} // namespace

bool enterPrivateMounts()
{
    const uid_t user = ::geteuid();
    const gid_t group = ::getegid();
    if (user != 0) {
        // Mounting requires a user namespace; the user's identity is kept.
        const auto map = [](auto id) { return std::to_string(id) + ' ' + std::to_string(id) + " 1\n"; };
        if (::unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0 || !writeFile("/proc/self/setgroups", "deny")
            || !writeFile("/proc/self/uid_map", map(user)) || !writeFile("/proc/self/gid_map", map(group)))
            return false;
    } else if (::unshare(CLONE_NEWNS) != 0) {
        return false;
    }
    return ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
}

bool mountTmpfs(const char *folder, unsigned bytes)
{
    const std::string options = "mode=0700,size=" + std::to_string(bytes);
    return ::mount("tmpfs", folder, "tmpfs", 0, options.c_str()) == 0;
}

} // namespace vesk
