#include "file_lock.h"

#include <cerrno>
#include <chrono>
#include <fcntl.h>
#include <thread>

namespace Tano {
namespace {

constexpr int attempts = 100;
constexpr std::chrono::milliseconds pause(20);

// Open file description locks: unlike process locks, they survive closing another descriptor of the
// file; and they do not interfere with flock(1).
Lock lock(int file, short type) {
    struct flock whole = {};
    whole.l_type = type;
    whole.l_whence = SEEK_SET;
    if (::fcntl(file, F_OFD_SETLK, &whole) == 0)
        return Lock::Taken;
    return errno == EAGAIN || errno == EACCES ? Lock::Busy : Lock::Unsupported;
}

} // namespace

Lock waitForLock(int file) {
    Lock state = lock(file, F_WRLCK);
    for (int attempt = 1; attempt < attempts && state == Lock::Busy; ++attempt) {
        std::this_thread::sleep_for(pause);
        state = lock(file, F_WRLCK);
    }
    return state;
}

Lock tryReadLock(int file) {
    return lock(file, F_RDLCK);
}

} // namespace Tano
