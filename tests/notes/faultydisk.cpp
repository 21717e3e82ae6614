// SPDX-License-Identifier: MIT
#include "faultydisk.h"

#include "virtualdesktop/files.h"

#include <optional>
#include <sys/stat.h>

namespace vesk {

namespace {

std::optional<quint64> inodeOf(const char *name)
{
    struct stat status = {};
    return ::stat(name, &status) == 0 ? std::optional<quint64>(status.st_ino) : std::nullopt;
}

} // namespace

FaultyDisk::FaultyDisk()
    : m_real(sqlite3_vfs_find(nullptr))
    , m_vfs(*m_real)
{
    m_vfs.zName = "faulty";
    m_vfs.pAppData = this;
    m_vfs.szOsFile = int(sizeof(File)) + m_real->szOsFile;
    m_vfs.xOpen = [](sqlite3_vfs *vfs, sqlite3_filename name, sqlite3_file *file, int flags, int *outFlags) {
        return static_cast<FaultyDisk *>(vfs->pAppData)->open(name, file, flags, outFlags);
    };
    m_vfs.xDelete = [](sqlite3_vfs *vfs, const char *name, int syncsFolder) {
        return static_cast<FaultyDisk *>(vfs->pAppData)->remove(name, syncsFolder);
    };
    sqlite3_vfs_register(&m_vfs, 1);
}

FaultyDisk::~FaultyDisk()
{
    sqlite3_vfs_unregister(&m_vfs);
    sqlite3_vfs_register(m_real, 1);
}

void FaultyDisk::follow(const Plan &plan)
{
    m_plan = plan;
    m_steps = 0;
}

void FaultyDisk::cutPower(const QString &folder, Loss loss, std::mt19937 &random)
{
    for (const QFileInfo &entry : QDir(folder).entryInfoList(QDir::Files)) {
        const auto inode = inodeOf(QFile::encodeName(entry.filePath()).constData());
        const auto found = inode ? m_media.find(*inode) : m_media.end();
        if (found == m_media.end() || loss == Loss::None)
            continue;
        QByteArray contents = found->second.durable;
        for (Change change : found->second.changes) {
            const auto luck = loss == Loss::Random ? random() % 3 : 0;
            if (luck == 1)
                change.bytes.truncate(change.bytes.size() / 2);
            if (luck != 0)
                apply(contents, change);
        }
        if (!writeFile(entry.filePath(), contents))
            qFatal("A file could not be set back.");
    }
    m_media.clear();
}

sqlite3_file *FaultyDisk::real(sqlite3_file *file)
{
    return reinterpret_cast<sqlite3_file *>(reinterpret_cast<File *>(file) + 1);
}

template <auto kMethod>
void FaultyDisk::forward(sqlite3_io_methods &methods)
{
    const auto bind =
        []<typename Result, typename... Arguments>(Result (*&method)(sqlite3_file *, Arguments...)) {
            method = [](sqlite3_file *file, Arguments... arguments) -> Result {
                return (real(file)->pMethods->*kMethod)(real(file), arguments...);
            };
        };
    bind(methods.*kMethod);
}

sqlite3_io_methods FaultyDisk::methods()
{
    using Methods = sqlite3_io_methods;
    // Version 2: supports the shared memory of a journal, but does not map the file itself.
    sqlite3_io_methods methods = {};
    methods.iVersion = 2;
    forward<&Methods::xClose>(methods);
    forward<&Methods::xFileSize>(methods);
    forward<&Methods::xLock>(methods);
    forward<&Methods::xUnlock>(methods);
    forward<&Methods::xCheckReservedLock>(methods);
    forward<&Methods::xFileControl>(methods);
    forward<&Methods::xSectorSize>(methods);
    forward<&Methods::xDeviceCharacteristics>(methods);
    forward<&Methods::xShmMap>(methods);
    forward<&Methods::xShmLock>(methods);
    forward<&Methods::xShmBarrier>(methods);
    forward<&Methods::xShmUnmap>(methods);
    methods.xRead = &FaultyDisk::read;
    methods.xWrite = &FaultyDisk::write;
    methods.xTruncate = &FaultyDisk::truncate;
    methods.xSync = &FaultyDisk::sync;
    return methods;
}

void FaultyDisk::apply(QByteArray &contents, const Change &change)
{
    if (change.bytes.isEmpty()) {
        contents.resize(change.offset);
        return;
    }
    if (contents.size() < change.offset + change.bytes.size())
        contents.append(change.offset + change.bytes.size() - contents.size(), '\0');
    contents.replace(change.offset, change.bytes.size(), change.bytes);
}

bool FaultyDisk::isNextFailing()
{
    const qint64 step = m_steps++;
    return step >= m_plan.first && step - m_plan.first < m_plan.count;
}

int FaultyDisk::open(sqlite3_filename name, sqlite3_file *file, int flags, int *outFlags)
{
    file->pMethods = nullptr;
    if (isNextFailing())
        return SQLITE_CANTOPEN;
    const int result = m_real->xOpen(m_real, name, real(file), flags, outFlags);
    if (result != SQLITE_OK)
        return result;
    auto *own = reinterpret_cast<File *>(file);
    own->base.pMethods = &m_methods;
    own->disk = this;
    own->inode = name ? inodeOf(name).value_or(0) : 0;
    // A new file may have the number of one that is gone.
    const QByteArray contents = name ? contentsOf(QFile::decodeName(name)) : QByteArray();
    if (contents.isEmpty())
        m_media.erase(own->inode);
    m_media.try_emplace(own->inode, Medium{.durable = contents, .changes = {}});
    return SQLITE_OK;
}

int FaultyDisk::remove(const char *name, int syncsFolder)
{
    return isNextFailing() ? SQLITE_IOERR_DELETE : m_real->xDelete(m_real, name, syncsFolder);
}

int FaultyDisk::read(sqlite3_file *file, void *bytes, int size, sqlite3_int64 offset)
{
    FaultyDisk &disk = *reinterpret_cast<const File *>(file)->disk;
    if (disk.m_plan.readsToo && disk.isNextFailing())
        return SQLITE_IOERR_READ;
    return real(file)->pMethods->xRead(real(file), bytes, size, offset);
}

int FaultyDisk::write(sqlite3_file *file, const void *bytes, int size, sqlite3_int64 offset)
{
    const auto *own = reinterpret_cast<const File *>(file);
    FaultyDisk &disk = *own->disk;
    const bool fails = disk.isNextFailing();
    if (fails && !disk.m_plan.tears)
        return disk.m_plan.code;
    const int written = fails ? size / 2 : size;
    const int result = real(file)->pMethods->xWrite(real(file), bytes, written, offset);
    if (result != SQLITE_OK)
        return result;
    disk.m_media.at(own->inode)
        .changes.push_back(
            {.offset = offset, .bytes = QByteArray(static_cast<const char *>(bytes), written)});
    return fails ? disk.m_plan.code : SQLITE_OK;
}

int FaultyDisk::truncate(sqlite3_file *file, sqlite3_int64 size)
{
    const auto *own = reinterpret_cast<const File *>(file);
    FaultyDisk &disk = *own->disk;
    if (disk.isNextFailing())
        return disk.m_plan.code;
    disk.m_media.at(own->inode).changes.push_back({.offset = size, .bytes = {}});
    return real(file)->pMethods->xTruncate(real(file), size);
}

int FaultyDisk::sync(sqlite3_file *file, int /*flags*/)
{
    const auto *own = reinterpret_cast<const File *>(file);
    FaultyDisk &disk = *own->disk;
    Medium &medium = disk.m_media.at(own->inode);
    const bool fails = disk.isNextFailing();
    if (!fails) {
        for (const Change &change : medium.changes)
            apply(medium.durable, change);
    }
    // After a failed sync Linux forgets the pages, and the next sync succeeds without writing them.
    medium.changes.clear();
    return fails ? SQLITE_IOERR_FSYNC : SQLITE_OK;
}

} // namespace vesk
