// SPDX-License-Identifier: MIT
#include "notes/storefolder.h"

#include <QFile>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <sys/statvfs.h>
#include <sys/vfs.h>
#include <unistd.h>

namespace vesk::storefolder {

namespace {

/// Magic numbers from statfs(2). FUSE is listed because sshfs and the like use it; local FUSE file systems
/// only lose a little speed.
constexpr std::array<quint32, 16> kNetworkFileSystems{
    0x6969,     // NFS
    0x517B,     // SMB
    0xFF534D42, // CIFS
    0xFE534D42, // SMB 2
    0x65735546, // FUSE
    0x01021997, // 9P
    0x5346414F, // AFS
    0x6B414653, // kAFS
    0x73757245, // Coda
    0x00C36400, // Ceph
    0x0BD00BD0, // Lustre
    0x01161970, // GFS 2
    0x7461636F, // OCFS 2
    0x47504653, // GPFS
    0x786F4256, // VirtualBox's shared folders
    0xBACBACBC, // VMware's shared folders
};

/// A file without a name; where the file system does not support that, a file whose name is removed at once.
int openNameless(const QByteArray &folder)
{
    const int descriptor = ::open(folder.constData(), O_TMPFILE | O_RDWR | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (descriptor >= 0 || (errno != EOPNOTSUPP && errno != EISDIR && errno != EINVAL))
        return descriptor;
    QByteArray name = folder + "/.vesk-XXXXXX";
    const int named = ::mkostemp(name.data(), O_CLOEXEC);
    if (named >= 0)
        ::unlink(name.constData());
    return named;
}

} // namespace

std::optional<qint64> freeBytes(const QString &folder)
{
    struct statvfs status = {};
    if (::statvfs(QFile::encodeName(folder).constData(), &status) != 0 || status.f_blocks == 0)
        return std::nullopt;
    return static_cast<qint64>(status.f_bavail) * static_cast<qint64>(status.f_frsize);
}

int tryWriting(const QString &folder)
{
    // Larger than what a file system may store in the inode itself.
    static constexpr std::array<char, 65'536> kBytes{};
    const int descriptor = openNameless(QFile::encodeName(folder));
    if (descriptor < 0)
        return errno;
    int error = 0;
    const ssize_t written = ::write(descriptor, kBytes.data(), kBytes.size());
    // Some file systems report errors only on sync.
    if (written < 0 || ::fsync(descriptor) != 0)
        error = errno;
    else if (static_cast<size_t>(written) < kBytes.size())
        error = ENOSPC;
    ::close(descriptor);
    return error;
}

bool isOnNetwork(const QString &folder)
{
    struct statfs status = {};
    if (::statfs(QFile::encodeName(folder).constData(), &status) != 0)
        return false;
    return std::ranges::count(kNetworkFileSystems, static_cast<quint32>(status.f_type)) > 0;
}

} // namespace vesk::storefolder
