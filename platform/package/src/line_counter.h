#pragma once

#include <tano/manifest_reader.h>

#include <string_view>

namespace Tano {

/// Counts lines and columns like expat, which would do it for every byte of the input. Lines end
/// with LF, CR or both; columns are characters.
class LineCounter {
public:
    /// Advances over the next bytes, which must end at a character boundary.
    void advance(std::string_view bytes) {
        if (bytes.find('\r') != std::string_view::npos || m_endedInReturn)
            advanceSlowly(bytes);
        else
            advanceByLines(bytes);
    }

    /// The position after the bytes so far, counted from 1.
    SourcePosition position() const { return {m_line, m_column}; }

private:
    void advanceByLines(std::string_view bytes) {
        for (std::size_t end; (end = bytes.find('\n')) != std::string_view::npos;) {
            ++m_line;
            m_column = 1;
            bytes.remove_prefix(end + 1);
        }
        for (const char c : bytes)
            m_column += startsCharacter(c);
    }

    void advanceSlowly(std::string_view bytes) {
        for (const char c : bytes) {
            if (c == '\r' || (c == '\n' && !m_endedInReturn)) {
                ++m_line;
                m_column = 1;
            } else if (c != '\n') {
                m_column += startsCharacter(c);
            }
            m_endedInReturn = c == '\r';
        }
    }

    static unsigned startsCharacter(char c) {
        return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U;
    }

    std::uint64_t m_line = 1;
    std::uint64_t m_column = 1;
    bool m_endedInReturn = false;
};

} // namespace Tano
