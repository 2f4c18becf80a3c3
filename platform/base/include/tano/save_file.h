#pragma once

#include <tano/tano_base_export.h>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

class QFile;

namespace Tano {

/// The content that a file had at one moment. A default fingerprint is that of no file at all.
///
/// Two fingerprints are equal if the contents were: a file that another program rewrote with the
/// same bytes has not changed, and an edit that keeps size and time does not go unnoticed.
struct TANO_BASE_EXPORT FileFingerprint {
    std::int64_t size = -1; // bytes
    std::string digest;     // SHA-256, 32 bytes

    static FileFingerprint ofContent(const std::string &content);
    /// Reads the file at `path`, as in FileToSave; a file that cannot be read counts as none.
    static FileFingerprint ofFile(const std::string &path);

    friend bool operator==(const FileFingerprint &a, const FileFingerprint &b) {
        return a.size == b.size && a.digest == b.digest;
    }
    friend bool operator!=(const FileFingerprint &a, const FileFingerprint &b) { return !(a == b); }
};

/// A file to save, and on which conditions.
struct FileToSave {
    enum class Links { Follow, Refuse };

    /// In UTF-8. Bytes that are not UTF-8 name the file that has exactly this name, since file
    /// systems take any bytes.
    std::string path;
    /// The new content; without one, the file is removed if it exists.
    std::optional<std::string> bytes = {};
    /// If given, the file is saved only while it has this content.
    std::optional<FileFingerprint> expected = {};
    /// Whether a symbolic link at `path` is followed or makes the save fail; one is never removed.
    Links links = Links::Follow;
};

/// How saving ended.
struct SaveResult {
    /// Why it failed, in one sentence that names the file; empty after a success.
    std::string error = {};
    /// It failed because a file did not have the content that was expected.
    bool hasConflict = false;

    explicit operator bool() const { return error.empty(); }
};

/// Makes `bytes` the content of a file: at any moment, also after a crash, it has either the old
/// content or the new one. A failure leaves it unchanged.
///
/// The bytes are written to a file beside it, synced, and renamed over it. Mode, owner, group,
/// access control list and extended attributes are preserved, and at no moment can anyone read the
/// new content who cannot read the old one. Where a rename would change them, or would split hard
/// links, the file is instead overwritten while the synced copy beside it remains.
///
/// The file beside it is named ".NAME.saving-" and eight random characters. One that a killed
/// process has left behind is removed by the next save of the same file that succeeds.
///
/// Only regular files are saved to, and only if they may be written. Programs that save with this
/// function wait for each other; after two seconds it gives up.
[[nodiscard]] TANO_BASE_EXPORT SaveResult saveFile(const FileToSave &file);

/// Saves several files, all or none: if one fails, those that were saved before it get their old
/// content again. A crash in between can leave some old and some new.
[[nodiscard]] TANO_BASE_EXPORT SaveResult saveFiles(const std::vector<FileToSave> &files);

/// Makes `bytes` the content of a file that the caller has opened for writing, and leaves its
/// position behind them. After a failure, it gets its old content again if it can be read. A pipe
/// is written to from where it is; a file open for appending is refused.
[[nodiscard]] TANO_BASE_EXPORT SaveResult saveToOpenFile(QFile &file, const std::string &bytes);

} // namespace Tano
