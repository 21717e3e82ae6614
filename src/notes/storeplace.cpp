// SPDX-License-Identifier: MIT
#include "notes/storeplace.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <fcntl.h>
#include <optional>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

/// The device of the innermost existing folder of `path`.
std::optional<dev_t> deviceAt(const QString &path)
{
    QString folder = path;
    struct stat status = {};
    do {
        folder = QFileInfo(folder).path();
        if (::stat(QFile::encodeName(folder).constData(), &status) == 0)
            return status.st_dev;
    } while (!QDir(folder).isRoot() && (errno == ENOENT || errno == ENOTDIR));
    return std::nullopt;
}

} // namespace

StorePlace::StorePlace(const QString &path)
    : m_path(path)
    , m_descriptor(::open(QFile::encodeName(path).constData(), O_PATH | O_CLOEXEC))
{
    struct stat status = {};
    if (m_descriptor >= 0 && ::fstat(m_descriptor, &status) == 0) {
        m_device = status.st_dev;
        m_inode = status.st_ino;
    }
}

StorePlace::~StorePlace()
{
    if (m_descriptor >= 0)
        ::close(m_descriptor);
}

StorePlace::Stamp StorePlace::Stamp::of(const struct stat &status)
{
    return {.size = status.st_size, .seconds = status.st_mtim.tv_sec, .nanoseconds = status.st_mtim.tv_nsec};
}

void StorePlace::remember()
{
    struct stat status = {};
    if (m_descriptor >= 0 && ::fstat(m_descriptor, &status) == 0)
        m_stamp = Stamp::of(status);
}

StorePlace::Finding StorePlace::look() const
{
    const QByteArray name = QFile::encodeName(m_path);
    struct stat found = {};
    if (::lstat(name.constData(), &found) == 0) {
        // The user may have put a link to the file in its place.
        const bool isSame =
            ::stat(name.constData(), &found) == 0 && found.st_dev == m_device && found.st_ino == m_inode;
        if (!isSame)
            return Finding::Replaced;
        return m_stamp && Stamp::of(found) != *m_stamp ? Finding::Overwritten : Finding::There;
    }
    if (errno != ENOENT && errno != ENOTDIR)
        return Finding::Unreachable;
    if (deviceAt(m_path) != m_device)
        return Finding::Unreachable;
    struct stat own = {};
    const bool isNamed = ::fstat(m_descriptor, &own) == 0 && own.st_nlink > 0;
    return isNamed ? Finding::MovedAway : Finding::Deleted;
}

QString StorePlace::currentPath() const
{
    const QString path = QFile::symLinkTarget(u"/proc/self/fd/%1"_s.arg(m_descriptor));
    return QFileInfo::exists(path) ? path : QString();
}

} // namespace vesk
