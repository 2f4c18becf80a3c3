#include "file_writing.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace Tano {
namespace {

constexpr std::size_t pieceSize = std::size_t(1) << 20;

// Reserves space, so that a full disk is noticed before the first byte is overwritten.
bool reserve(int file, std::size_t size) {
    if (size == 0 || ::fallocate(file, FALLOC_FL_KEEP_SIZE, 0, off_t(size)) == 0)
        return true;
    return errno != ENOSPC && errno != EDQUOT && errno != EFBIG && errno != EIO;
}

} // namespace

std::string systemReason() {
    return systemReason(errno);
}

std::string systemReason(int error) {
    return std::generic_category().message(error);
}

std::optional<std::string> contentOf(int file) {
    std::string content;
    for (;;) {
        const std::size_t done = content.size();
        content.resize(done + pieceSize);
        const ssize_t count = ::pread(file, content.data() + done, pieceSize, off_t(done));
        content.resize(done + std::size_t(std::max(count, ssize_t(0))));
        if (count == 0)
            return content;
        if (count < 0 && errno != EINTR)
            return {};
    }
}

std::string writeAll(int file, const std::string &bytes) {
    std::size_t done = 0;
    while (done < bytes.size()) {
        const ssize_t written =
            ::pwrite(file, bytes.data() + done, bytes.size() - done, off_t(done));
        if (written < 0 && errno != EINTR)
            return systemReason();
        done += std::size_t(std::max(written, ssize_t(0)));
    }
    return {};
}

std::string replaceContent(int file, const std::string &bytes) {
    if (std::string reason = writeAll(file, bytes); !reason.empty())
        return reason;
    return ::ftruncate(file, off_t(bytes.size())) == 0 ? syncToDisk(file) : systemReason();
}

std::string overwrite(int file, const std::string &bytes, const std::optional<std::string> &old,
                      bool &isDamaged) {
    if (!reserve(file, bytes.size()))
        return systemReason();
    std::string reason = replaceContent(file, bytes);
    isDamaged = !reason.empty() && !(old && replaceContent(file, *old).empty());
    return reason;
}

std::string syncToDisk(int file) {
    const bool isFine = ::fsync(file) == 0 || errno == EINVAL || errno == ENOSYS;
    return isFine ? std::string() : systemReason();
}

FileSizeSignalBlock::FileSizeSignalBlock() {
    sigset_t pending = {};
    sigpending(&pending);
    m_wasPending = sigismember(&pending, SIGXFSZ) == 1;
    sigemptyset(&m_signal);
    sigaddset(&m_signal, SIGXFSZ);
    pthread_sigmask(SIG_BLOCK, &m_signal, &m_before);
}

FileSizeSignalBlock::~FileSizeSignalBlock() {
    const timespec noWait = {};
    while (!m_wasPending && sigtimedwait(&m_signal, nullptr, &noWait) > 0) {
    }
    pthread_sigmask(SIG_SETMASK, &m_before, nullptr);
}

} // namespace Tano
