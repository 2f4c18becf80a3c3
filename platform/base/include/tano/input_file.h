#pragma once

#include <tano/tano_base_export.h>

#include <cstddef>
#include <cstdint>
#include <string>

class QFile;

namespace Tano {

/// Opens a file for reading. Returns the reason for a failure, for example "Is a directory", or the
/// empty text on success.
[[nodiscard]] TANO_BASE_EXPORT std::string openInput(QFile &file);

/// Reads an open file from its current position, up to a maximum size.
///
/// Directories, devices other than terminals, and regular files with more than `maxSize` bytes left
/// are refused before anything is read. Pipes, sockets and terminals are read up to the limit.
///
/// ```cpp
/// QFile file(fileName);
/// if (!Tano::openInput(file).empty())
///     return;
/// Tano::InputFile input(file, 1 << 20);
/// std::array<char, 4096> buffer;
/// while (input.read(buffer.data(), buffer.size()) > 0) {
///     // use the bytes
/// }
/// if (!input.error().empty())
///     showMessage(QString::fromStdString(input.error()));
/// ```
class TANO_BASE_EXPORT InputFile {
public:
    /// Reads at most `maxSize` bytes of `file`, which must outlive this object.
    InputFile(QFile &file, std::int64_t maxSize);

    /// Reads up to `size` bytes. Returns the number of bytes read, 0 at the end, and -1 on failure,
    /// which error() explains.
    [[nodiscard]] std::int64_t read(char *room, std::size_t size);
    /// Returns to the position where reading began; false if the file cannot seek.
    [[nodiscard]] bool rewind();
    /// Whether the size is unknown until the end is reached, as for a pipe.
    bool isSequential() const;
    /// The number of bytes left in a file that is not sequential.
    std::int64_t left() const;
    /// Why reading failed, for example "it is larger than 1 GiB"; empty if it succeeded.
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
