#pragma once

#include <csignal>
#include <optional>
#include <string>

namespace Tano {

// Functions that return a text return why they failed; the empty text after a success.

/// The text of an error number, by default of the last one.
std::string systemReason();
std::string systemReason(int error);

/// The whole content of an open file; nothing where it cannot be read.
std::optional<std::string> contentOf(int file);

/// Writes the bytes at the beginning of an open file.
[[nodiscard]] std::string writeAll(int file, const std::string &bytes);

/// Makes the bytes the content of an open file and syncs it.
[[nodiscard]] std::string replaceContent(int file, const std::string &bytes);

/// The same, but after a failure, the file gets its old content again. If that fails too, or there
/// is no `old`, `isDamaged` is set.
[[nodiscard]] std::string overwrite(int file, const std::string &bytes,
                                    const std::optional<std::string> &old, bool &isDamaged);

/// Syncs a file or folder. A file system that cannot sync it does not count as a failure.
[[nodiscard]] std::string syncToDisk(int file);

/// As long as it exists, writing beyond the limit of a file's size is an error and does not end the
/// process.
class FileSizeSignalBlock {
public:
    FileSizeSignalBlock();
    ~FileSizeSignalBlock();
    FileSizeSignalBlock(const FileSizeSignalBlock &) = delete;
    FileSizeSignalBlock &operator=(const FileSizeSignalBlock &) = delete;

private:
    sigset_t m_signal = {};
    sigset_t m_before = {};
    bool m_wasPending = false;
};

} // namespace Tano
