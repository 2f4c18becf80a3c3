#pragma once

#include <csignal>
#include <optional>
#include <string>

namespace Tano {

// Functions that return a string return an error message, empty on success.

/// The message of an error number, by default of errno.
std::string systemReason();
std::string systemReason(int error);

/// The content of an open file, nullopt if it cannot be read.
std::optional<std::string> contentOf(int file);

/// Writes the bytes at the beginning of an open file.
[[nodiscard]] std::string writeAll(int file, const std::string &bytes);

/// Makes the bytes the content of an open file and syncs it.
[[nodiscard]] std::string replaceContent(int file, const std::string &bytes);

/// Like replaceContent(), but restores `old` on failure. Sets `isDamaged` if that fails too or
/// there is no `old`.
[[nodiscard]] std::string overwrite(int file, const std::string &bytes,
                                    const std::optional<std::string> &old, bool &isDamaged);

/// Syncs a file or folder to disk. A file system without support for it is not an error.
[[nodiscard]] std::string syncToDisk(int file);

/// While it exists, exceeding the file size limit is an error instead of ending the process.
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
