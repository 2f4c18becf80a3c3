#pragma once

#include <string>
#include <string_view>
#include <utility>

namespace Tano {

/// A line of text made of pieces. White space within it, however much, is one space, and there is
/// none at its ends.
class FoldedText {
public:
    /// A state to go back to.
    struct Mark {
        std::size_t size = 0;
        int gap = 0;
    };

    /// Appends a piece, which may end within a word.
    void append(std::string_view piece);

    /// Keeps what is there and what comes apart, with a space unless punctuation does that already:
    /// there is none before a mark such as a comma, nor beside the marks of Chinese and Japanese,
    /// which are as wide as a letter.
    void separate() {
        if (m_gap == NoGap)
            m_gap = Separator;
    }

    std::size_t size() const { return m_text.size(); }
    Mark mark() const { return {m_text.size(), m_gap}; }
    /// Takes back all that was appended since `mark`.
    void rewind(const Mark &mark) {
        m_text.resize(mark.size);
        m_gap = mark.gap;
    }

    std::string take() { return std::move(m_text); }

private:
    enum Gap { NoGap, Separator, WhiteSpace };

    std::string m_text;
    int m_gap = NoGap; // between m_text and what comes
};

} // namespace Tano
