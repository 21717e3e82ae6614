// SPDX-License-Identifier: MIT
#include "notes/storelock.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QFileInfo>
#include <QSysInfo>

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace vesk {

namespace {

constexpr auto kPause = 20ms;
/// How long a session that has just been told to quit, or was killed, may still hold the lock.
constexpr std::chrono::milliseconds kEnding = 2s;
constexpr auto kSession = "session"_L1;
constexpr auto kCommand = "command"_L1;

} // namespace

StoreLock::Result StoreLock::acquire(const QString &store, Use use, std::chrono::milliseconds patience)
{
    const QString path = pathFor(store);
    const int descriptor = openFile(path);
    if (descriptor < 0)
        return {
            .lock = nullptr,
            .error = {.text = tr("The file “%1” cannot be created (%2).").arg(path, qt_error_string(errno))}};
    std::unique_ptr<StoreLock> lock(new StoreLock(descriptor, store, use));
    const QDeadlineTimer deadline(patience);
    const QDeadlineTimer sessionDeadline(std::min(patience, kEnding));
    while (!tryLocking(descriptor)) {
        if (errno != EAGAIN && errno != EACCES && errno != EINTR)
            return {
                .lock = nullptr,
                .error = {.text =
                              tr("The file “%1” cannot be locked (%2).").arg(path, qt_error_string(errno))}};
        const std::optional<Holder> holder = readHolder(descriptor);
        const bool isSession = holder && holder->use == Use::Session;
        if (deadline.hasExpired() || (isSession && sessionDeadline.hasExpired()))
            return {.lock = nullptr, .error = describe(path, holder)};
        std::this_thread::sleep_for(kPause);
    }
    lock->writeHolder();
    return {.lock = std::move(lock)};
}

StoreLock::~StoreLock()
{
    ::close(m_descriptor);
}

bool StoreLock::isInPlace() const
{
    struct stat own = {};
    struct stat there = {};
    return ::fstat(m_descriptor, &own) == 0
           && ::stat(QFile::encodeName(pathFor(m_store)).constData(), &there) == 0
           && own.st_dev == there.st_dev && own.st_ino == there.st_ino;
}

QString StoreLock::pathFor(const QString &store)
{
    const QFileInfo file(store);
    const bool isStore = file.suffix() == "store"_L1;
    return file.path() + u'/' + (isStore ? file.completeBaseName() : file.fileName()) + u".lock"_s;
}

int StoreLock::openFile(const QString &path)
{
    const QByteArray name = QFile::encodeName(path);
    const int made = ::open(name.constData(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (made < 0)
        return errno == EEXIST ? ::open(name.constData(), O_RDWR | O_CLOEXEC) : -1;
    // The process's umask may have removed these permissions.
    ::fchmod(made, S_IRUSR | S_IWUSR);
    return made;
}

bool StoreLock::tryLocking(int descriptor)
{
    struct flock whole = {};
    whole.l_type = F_WRLCK;
    whole.l_whence = SEEK_SET;
    // This lock belongs to the open file, not to the process: closing another descriptor does not release it.
    if (::fcntl(descriptor, F_OFD_SETLK, &whole) == 0)
        return true;
    // Some kernels that emulate Linux only support process locks.
    return errno == EINVAL && ::fcntl(descriptor, F_SETLK, &whole) == 0;
}

std::optional<StoreLock::Holder> StoreLock::readHolder(int descriptor)
{
    std::array<char, 512> bytes{};
    const ssize_t size = ::pread(descriptor, bytes.data(), bytes.size(), 0);
    if (size <= 0)
        return std::nullopt;
    const QStringList words = QString::fromUtf8(bytes.data(), size).split(u' ');
    if (words.size() != 3 || !words.at(2).endsWith(u'\n'))
        return std::nullopt;
    return Holder{.process = words.at(0).toLongLong(),
                  .host = words.at(1),
                  .use = words.at(2).startsWith(kSession) ? Use::Session : Use::Command};
}

void StoreLock::writeHolder() const
{
    QString host = QSysInfo::machineHostName();
    host.replace(u' ', u'-');
    const QByteArray line =
        u"%1 %2 %3\n"_s.arg(::getpid())
            .arg(host.isEmpty() ? u"localhost"_s : host, m_use == Use::Session ? kSession : kCommand)
            .toUtf8();
    // On a full disk nobody can see who holds the lock, but it still works.
    if (::ftruncate(m_descriptor, 0) == 0)
        static_cast<void>(!::pwrite(m_descriptor, line.constData(), static_cast<size_t>(line.size()), 0));
}

StoreError StoreLock::describe(const QString &path, const std::optional<Holder> &holder)
{
    const StoreFault fault = StoreFault::HeldElsewhere;
    if (!holder)
        return {.text =
                    tr("The notes are open in another program, which has locked the file “%1”.").arg(path),
                .fault = fault};
    const QString text =
        holder->use == Use::Session
            ? tr("Vesk is running in another session (process %1 on %2), and only one Vesk can have the "
                 "notes open. Quit it there first.")
            : tr("Another command, process %1 on %2, is writing to the notes.");
    return {.text = text.arg(holder->process).arg(holder->host), .fault = fault};
}

} // namespace vesk
