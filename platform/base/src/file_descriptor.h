#pragma once

#include <unistd.h>
#include <utility>

namespace Tano {

/// Owns a file descriptor; may be empty.
class FileDescriptor {
public:
    explicit FileDescriptor(int number = -1)
        : m_number(number) {}
    FileDescriptor(FileDescriptor &&other) noexcept
        : m_number(std::exchange(other.m_number, -1)) {}
    FileDescriptor &operator=(FileDescriptor &&other) noexcept {
        std::swap(m_number, other.m_number);
        return *this;
    }
    FileDescriptor(const FileDescriptor &) = delete;
    FileDescriptor &operator=(const FileDescriptor &) = delete;
    ~FileDescriptor() {
        if (m_number >= 0)
            ::close(m_number);
    }

    int number() const { return m_number; }
    explicit operator bool() const { return m_number >= 0; }

private:
    int m_number;
};

} // namespace Tano
