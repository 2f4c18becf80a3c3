#include "source_excerpt.h"

#include "console/text_layout.h"

#include <algorithm>

namespace ZelPackage {
namespace {

bool continuesCharacter(char c) {
    return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U;
}

// Makes a part printable and shows tabs as one space, so that widths add up.
QString shownPart(std::string_view bytes) {
    QString text = QString::fromUtf8(bytes.data(), int(bytes.size()));
    return printable(text.replace(u'\t', u' '));
}

// The longest prefix or suffix of a text that fits into `width` columns.
QString fitted(const QString &text, int width, bool atStart) {
    if (displayWidth(text) <= width)
        return text;
    const QString dots = QStringLiteral("…");
    auto size = std::min(text.size(), decltype(text.size())(width));
    const auto part = [&] { return atStart ? text.left(size) : text.right(size); };
    while (size > 0 && displayWidth(part()) + 1 > width)
        --size;
    return atStart ? QString(part() % dots) : QString(dots % part());
}

} // namespace

// Advances by one character or line end; returns false at the end of the content.
bool SourceExcerpt::advance() {
    if (m_offset >= m_content.size())
        return false;
    const char c = m_content[m_offset++];
    if (c == '\r' && m_offset < m_content.size() && m_content[m_offset] == '\n')
        ++m_offset;
    if (c == '\r' || c == '\n') {
        m_lineStart = m_offset;
        m_position = {m_position.line + 1, 1};
        return true;
    }
    while (m_offset < m_content.size() && continuesCharacter(m_content[m_offset]))
        ++m_offset;
    ++m_position.column;
    return true;
}

bool SourceExcerpt::moveTo(Tano::SourcePosition position) {
    const auto key = [](Tano::SourcePosition place) { return std::pair(place.line, place.column); };
    if (key(position) < key(m_position)) {
        m_lineStart = m_offset = 0;
        m_position = {1, 1};
    }
    while (key(m_position) < key(position) && advance()) {
    }
    return m_position.line == position.line;
}

QString SourceExcerpt::at(Tano::SourcePosition position, Style caretStyle, const Console &console) {
    if (position.line == 0 || !moveTo(position))
        return {};
    const QString number = QString::number(position.line).rightJustified(5);
    const QString margin = QStringLiteral(" | ");
    const int width = console.width() - int(number.size() + margin.size());

    // A character has at most four bytes, and takes at least one column here.
    const std::size_t most = std::size_t(width) * 4;
    const std::size_t start = std::max(m_lineStart, m_offset - std::min(m_offset, most));
    std::size_t begin = start;
    while (begin < m_offset && continuesCharacter(m_content[begin]))
        ++begin;
    const std::string_view behind = m_content.substr(m_offset, most);
    const QString before =
        fitted(shownPart(m_content.substr(begin, m_offset - begin)), width * 2 / 3, false);
    const QString after = fitted(shownPart(behind.substr(0, behind.find_first_of("\r\n"))),
                                 width - displayWidth(before), true);
    return console.styled(number % margin, Style::Faint) % before % after % u'\n' %
           console.styled(QString(number.size(), u' ') % margin, Style::Faint) %
           QString(displayWidth(before), u' ') % console.styled(QStringLiteral("^"), caretStyle) %
           u'\n';
}

} // namespace ZelPackage
