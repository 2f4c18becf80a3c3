#pragma once

#include <cstddef>
#include <cstdint>

/// Small numbers drawn from the bytes of an input; always 0 after its end.
class Decisions {
public:
    Decisions(const std::uint8_t *data, std::size_t size)
        : m_next(data)
        , m_end(data + size) {}

    bool isAtEnd() const { return m_next == m_end; }

    /// A number below `limit`, which is at most 256.
    unsigned below(unsigned limit) {
        return limit < 2 || isAtEnd() ? 0 : unsigned(*m_next++) % limit;
    }
    unsigned below(std::size_t limit) { return below(unsigned(limit)); }
    unsigned below(int limit) { return below(unsigned(limit)); }

    bool oneIn(unsigned n) { return below(n) + 1 == n; }

private:
    const std::uint8_t *m_next;
    const std::uint8_t *m_end;
};
