#include "file_save.h"

#include "file_attributes.h"
#include "file_lock.h"
#include "file_name.h"
#include "file_writing.h"

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <memory>
#include <sys/stat.h>

namespace Tano {
namespace {

bool isSameFile(const struct stat &a, const struct stat &b) {
    return a.st_dev == b.st_dev && a.st_ino == b.st_ino;
}

} // namespace

FileSave::FileSave(const FileToSave &file)
    : m_file(file) {
}

std::string FileSave::prepare() {
    for (const auto step : {&FileSave::resolve, &FileSave::openTarget, &FileSave::openFolder,
                            &FileSave::checkExpected, &FileSave::writeCopy}) {
        std::string reason = (this->*step)();
        if (!reason.empty())
            return reason;
    }
    return {};
}

std::string FileSave::resolve() {
    m_target = nativeName(m_file.path);
    struct stat status = {};
    if (::lstat(m_target.c_str(), &status) != 0 || !S_ISLNK(status.st_mode))
        return {};
    if (m_file.links == FileToSave::Links::Refuse || !m_file.bytes)
        return "it is a symbolic link";
    const std::unique_ptr<char, decltype(&std::free)> resolved(
        ::realpath(m_target.c_str(), nullptr), &std::free);
    if (!resolved)
        return errno == ENOENT ? "it is a link to a missing file" : systemReason();
    m_target = resolved.get();
    return {};
}

// Opens and locks the file, unless it is new. The file may be replaced while this waits for the
// lock; then the lock is on the wrong file and the loop starts over.
std::string FileSave::openTarget() {
    do {
        struct stat status = {};
        if (::lstat(m_target.c_str(), &status) != 0) {
            m_opened = FileDescriptor();
            return errno == ENOENT ? std::string() : systemReason();
        }
        if (!S_ISREG(status.st_mode))
            return "it is not a regular file";
        m_opened = FileDescriptor(
            ::open(m_target.c_str(), O_RDWR | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY));
        if (!m_opened)
            return systemReason();
        if (waitForLock(m_opened.number()) == Lock::Busy)
            return "another program has locked it";
    } while (false);
    return {};
}

bool FileSave::isStillThere() const {
    struct stat opened = {};
    struct stat present = {};
    return ::fstat(m_opened.number(), &opened) == 0 && ::lstat(m_target.c_str(), &present) == 0 &&
           isSameFile(opened, present);
}

// A folder without read permission cannot be opened, and so not be synced.
std::string FileSave::openFolder() {
    m_folder =
        FileDescriptor(::open(folderOf(m_target).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    return m_folder || errno == EACCES ? std::string() : systemReason();
}

std::string FileSave::checkExpected() {
    m_hasConflict = m_file.expected && FileFingerprint::ofFile(m_file.path) != *m_file.expected;
    return m_hasConflict ? "another program has changed it since it was read" : "";
}

std::string FileSave::writeCopy() {
    m_copy = std::make_unique<CopyBeside>(m_target);
    return m_file.bytes ? copyBeside(*m_file.bytes) : std::string();
}

// Attributes are copied after the bytes, since writing resets some of them.
std::string FileSave::copyBeside(const std::string &bytes) {
    std::string reason = m_copy->create(m_opened ? 0600 : 0666);
    if (reason.empty())
        reason = writeAll(m_copy->file(), bytes);
    if (!reason.empty())
        return reason;
    struct stat status = {};
    m_isInPlace = m_opened && (::fstat(m_opened.number(), &status) != 0 || status.st_nlink > 1 ||
                               !copyAttributes(m_opened.number(), m_copy->file()));
    return syncToDisk(m_copy->file());
}

std::string FileSave::commit() {
    if (std::string reason = checkExpected(); !reason.empty())
        return reason;
    if (!m_file.bytes)
        return removeTarget();
    return m_isInPlace ? writeInPlace() : moveCopy();
}

std::string FileSave::moveCopy() {
    const int error = m_copy->moveToTarget(!m_opened);
    if (error == EBUSY) // the file is a mount point
        return writeInPlace();
    m_hasConflict = error == EEXIST;
    m_isChanged = error == 0;
    return m_isChanged ? syncFolder() : systemReason(error);
}

std::string FileSave::writeInPlace() {
    m_isInPlace = true;
    if (!isStillThere())
        return "another program has replaced it";
    m_old = contentOf(m_opened.number());
    std::string reason = m_old ? syncFolder() : systemReason();
    if (!reason.empty())
        return reason;
    bool isDamaged = false;
    reason = overwrite(m_opened.number(), *m_file.bytes, m_old, isDamaged);
    m_isChanged = reason.empty();
    if (isDamaged) {
        reason += ", and its old content is lost; the new one is in \"" + m_copy->path() + '"';
        m_copy->keep();
    }
    return reason;
}

std::string FileSave::removeTarget() {
    m_isChanged = ::unlink(m_target.c_str()) == 0;
    return m_isChanged || errno == ENOENT ? syncFolder() : systemReason();
}

std::string FileSave::syncFolder() {
    return m_folder ? syncToDisk(m_folder.number()) : std::string();
}

// The old file is still open, even if it was replaced or removed.
std::string FileSave::rollBack() {
    if (!m_isChanged)
        return {};
    if (!m_opened)
        return removeTarget();
    if (m_isInPlace)
        return replaceContent(m_opened.number(), *m_old);
    const auto old = contentOf(m_opened.number());
    if (!old)
        return systemReason();
    if (m_file.bytes)
        return replaceContent(m_copy->file(), *old);
    std::string reason = copyBeside(*old);
    if (!reason.empty())
        return reason;
    const int error = m_copy->moveToTarget(true);
    return error == 0 ? std::string() : systemReason(error);
}

void FileSave::finish() {
    m_copy->removeStale();
    m_copy.reset();
}

} // namespace Tano
