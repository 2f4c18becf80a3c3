#include "folded_text.h"

#include <algorithm>
#include <array>

namespace Tano {
namespace {

using namespace std::string_view_literals;

constexpr std::string_view whiteSpace = " \t\r\n";

constexpr std::array closingMarks{"."sv, ","sv, ";"sv, ":"sv, "!"sv, "?"sv, ")"sv,
                                  "]"sv, "}"sv, "…"sv, "،"sv, "؛"sv, "؟"sv};
constexpr std::array wideMarks{"、"sv, "。"sv, "，"sv, "．"sv, "："sv, "；"sv, "！"sv,
                               "？"sv, "（"sv, "）"sv, "「"sv, "」"sv, "『"sv, "』"sv,
                               "【"sv, "】"sv, "《"sv, "》"sv, "〈"sv, "〉"sv};

template<typename Marks>
bool startsWithOne(std::string_view text, const Marks &marks) {
    return std::any_of(marks.begin(), marks.end(),
                       [&](std::string_view mark) { return text.substr(0, mark.size()) == mark; });
}

bool endsWithWideMark(std::string_view text) {
    return std::any_of(wideMarks.begin(), wideMarks.end(), [&](std::string_view mark) {
        return text.size() >= mark.size() && text.substr(text.size() - mark.size()) == mark;
    });
}

bool marksKeepApart(std::string_view before, std::string_view after) {
    return endsWithWideMark(before) || startsWithOne(after, wideMarks) ||
           startsWithOne(after, closingMarks);
}

} // namespace

void FoldedText::append(std::string_view piece) {
    while (!piece.empty()) {
        const std::size_t start = std::min(piece.find_first_not_of(whiteSpace), piece.size());
        if (start > 0)
            m_gap = WhiteSpace;
        piece.remove_prefix(start);
        if (piece.empty())
            return;
        const std::string_view word = piece.substr(0, piece.find_first_of(whiteSpace));
        const bool needsSpace =
            m_gap == WhiteSpace || (m_gap == Separator && !marksKeepApart(m_text, word));
        if (needsSpace && !m_text.empty())
            m_text += ' ';
        m_gap = NoGap;
        m_text += word;
        piece.remove_prefix(word.size());
    }
}

} // namespace Tano
