#pragma once

#include <tano/tano_base_export.h>

#include <cstddef>
#include <cstdint>
#include <string>

class QFile;

namespace Tano {

/// Opens a file for reading. Returns why that failed, for example "Is a directory"; the empty text
/// after a success.
[[nodiscard]] TANO_BASE_EXPORT std::string openInput(QFile &file);

/// Reads an open file from its current position, but refuses what has no end or is too long.
///
/// Directories, devices other than terminals, and regular files with more than `maxSize` bytes left
/// are refused before anything is read. Pipes, sockets and terminals are read until the limit.
class TANO_BASE_EXPORT InputFile {
public:
    /// `file` must outlive this.
    InputFile(QFile &file, std::int64_t maxSize);

    /// Reads up to `size` bytes. Returns how many there were, 0 at the end, and -1 where error()
    /// has the reason.
    [[nodiscard]] std::int64_t read(char *room, std::size_t size);
    /// Returns to where reading began.
    [[nodiscard]] bool rewind();
    /// Whether the end is known only when it is reached.
    bool isSequential() const;
    /// How many bytes are left in a file that is not sequential.
    std::int64_t left() const;
    /// Why reading failed, for example "it is larger than 1 GiB"; empty if it did not.
    const std::string &error() const { return m_error; }

private:
    std::string tooLarge() const;

    QFile &m_file;
    std::int64_t m_maxSize;
    std::int64_t m_start;
    std::int64_t m_done = 0;
    std::string m_error;
};

} // namespace Tano
