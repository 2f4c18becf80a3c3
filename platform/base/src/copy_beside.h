#pragma once

#include "file_descriptor.h"

#include <string>
#include <sys/types.h>

namespace Tano {

/// The file beside a target that holds the new content while the target is saved. It is locked as
/// long as this exists, and removed with it.
class CopyBeside {
public:
    explicit CopyBeside(std::string target);
    ~CopyBeside();
    CopyBeside(const CopyBeside &) = delete;
    CopyBeside &operator=(const CopyBeside &) = delete;

    /// Creates it, open for reading and writing; returns why that failed.
    [[nodiscard]] std::string create(mode_t mode);
    /// Renames it to the target, which is then not replaced if `isNew`. Returns an error number, 0
    /// after a success.
    [[nodiscard]] int moveToTarget(bool isNew);
    /// Leaves it there.
    void keep() { m_path.clear(); }

    int file() const { return m_file.number(); }
    const std::string &path() const { return m_path; }

    /// Removes those of the same target whose process has ended.
    void removeStale() const;

private:
    std::string prefix() const;

    std::string m_target;
    std::string m_path; // empty where there is none to remove
    FileDescriptor m_file;
};

/// The folder of a file.
std::string folderOf(const std::string &path);

} // namespace Tano
