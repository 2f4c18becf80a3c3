#include "copy_beside.h"

#include "file_lock.h"
#include "file_writing.h"

#include <QByteArray>
#include <QRandomGenerator>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <utility>

namespace Tano {
namespace {

constexpr std::size_t suffixLength = 8;
constexpr std::size_t maxNameLength = 200; // of the 255 bytes that a file name may have

std::string randomSuffix() {
    return QByteArray::number(QRandomGenerator::global()->generate(), 16)
        .rightJustified(int(suffixLength), '0')
        .toStdString();
}

bool isLinked(int file) {
    struct stat status = {};
    return ::fstat(file, &status) == 0 && status.st_nlink > 0;
}

void removeIfStale(const std::string &path) {
    const FileDescriptor file(
        ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY));
    struct stat status = {};
    if (file && ::fstat(file.number(), &status) == 0 && S_ISREG(status.st_mode) &&
        tryReadLock(file.number()) == Lock::Taken)
        ::unlink(path.c_str());
}

} // namespace

std::string folderOf(const std::string &path) {
    const std::size_t slash = path.rfind('/');
    return slash == std::string::npos ? std::string("./") : path.substr(0, slash + 1);
}

CopyBeside::CopyBeside(std::string target)
    : m_target(std::move(target)) {
}

CopyBeside::~CopyBeside() {
    if (!m_path.empty())
        ::unlink(m_path.c_str());
}

std::string CopyBeside::prefix() const {
    const std::string name = m_target.substr(m_target.rfind('/') + 1);
    return '.' + name.substr(0, maxNameLength) + ".saving-";
}

std::string CopyBeside::create(mode_t mode) {
    for (;;) {
        std::string path = folderOf(m_target) + prefix() + randomSuffix();
        m_file = FileDescriptor(
            ::open(path.c_str(), O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, mode));
        if (!m_file && errno == EEXIST)
            continue;
        if (!m_file)
            return systemReason();
        m_path = std::move(path);
        // Another process may have removed it as stale before it was locked.
        static_cast<void>(waitForLock(file()));
        if (isLinked(file()))
            return {};
    }
}

int CopyBeside::moveToTarget(bool isNew) {
    const char *from = m_path.c_str();
    const char *to = m_target.c_str();
    int result = -1;
    if (isNew)
        result = ::renameat2(AT_FDCWD, from, AT_FDCWD, to, RENAME_NOREPLACE);
    if (!isNew || (result != 0 && (errno == EINVAL || errno == ENOSYS)))
        result = ::rename(from, to);
    if (result != 0)
        return errno;
    m_path.clear();
    return 0;
}

void CopyBeside::removeStale() const {
    const std::string start = prefix();
    std::error_code error;
    std::filesystem::directory_iterator entry(folderOf(m_target), error);
    for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error)) {
        const std::string name = entry->path().filename().string();
        if (name.size() == start.size() + suffixLength && name.compare(0, start.size(), start) == 0)
            removeIfStale(entry->path().string());
    }
}

} // namespace Tano
