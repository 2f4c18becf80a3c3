#pragma once

#include "file_descriptor.h"

#include <string>
#include <sys/types.h>

namespace Tano {

/// A temporary file beside the target that holds the new content during a save. It stays locked
/// while this object exists; the destructor removes it.
class CopyBeside {
public:
    explicit CopyBeside(std::string target);
    ~CopyBeside();
    CopyBeside(const CopyBeside &) = delete;
    CopyBeside &operator=(const CopyBeside &) = delete;

    /// Creates the file, open for reading and writing; on failure, returns the reason.
    [[nodiscard]] std::string create(mode_t mode);
    /// Renames the file to the target. If `isNew`, an existing target is not replaced. Returns an
    /// errno value, 0 on success.
    [[nodiscard]] int moveToTarget(bool isNew);
    /// Disowns the file, so that the destructor does not remove it.
    void keep() { m_path.clear(); }

    int file() const { return m_file.number(); }
    const std::string &path() const { return m_path; }

    /// Removes the copies of the same target left behind by processes that have ended.
    void removeStale() const;

private:
    std::string prefix() const;

    std::string m_target;
    std::string m_path; // empty if there is nothing to remove
    FileDescriptor m_file;
};

std::string folderOf(const std::string &path);

} // namespace Tano
