#pragma once

#include <string>
#include <string_view>
#include <utility>

namespace Tano {

/// A line of text built from pieces, with runs of white space collapsed to one space and trimmed.
class FoldedText {
public:
    /// A state to rewind to.
    struct Mark {
        std::size_t size = 0;
        int gap = 0;
    };

    /// Appends a piece, which may end in the middle of a word.
    void append(std::string_view piece);

    /// Separates the text so far from the following one by a space, except before punctuation such
    /// as a comma and beside Chinese and Japanese punctuation, which is full-width.
    void separate() {
        if (m_gap == NoGap)
            m_gap = Separator;
    }

    std::size_t size() const { return m_text.size(); }
    Mark mark() const { return {m_text.size(), m_gap}; }
    /// Removes everything appended since `mark`.
    void rewind(const Mark &mark) {
        m_text.resize(mark.size);
        m_gap = mark.gap;
    }

    std::string take() { return std::move(m_text); }

private:
    enum Gap { NoGap, Separator, WhiteSpace };

    std::string m_text;
    int m_gap = NoGap; // between m_text and the next piece
};

} // namespace Tano
