#include "text_table.h"

#include "labeled_list.h"
#include "text_layout.h"

#include <algorithm>
#include <numeric>

namespace ZelPackage {
namespace {

constexpr int gap = 2;
constexpr int narrowestText = 20;

int spacesBefore(TextTable::Align align, int spaces) {
    switch (align) {
    case TextTable::Align::Left:
        return 0;
    case TextTable::Align::Center:
        return (spaces + 1) / 2;
    case TextTable::Align::Right:
        return spaces;
    }
    return 0;
}

} // namespace

TextTable::TextTable(std::vector<Column> columns)
    : m_columns(std::move(columns)) {
    for (const Column &column : m_columns)
        m_widths.push_back(displayWidth(column.title));
}

void TextTable::addRow(const Row &row) {
    Q_ASSERT(row.size() <= m_columns.size());
    for (std::size_t i = 0; i < row.size(); ++i)
        m_widths[i] = std::max(m_widths[i], displayWidth(row[i].text));
    m_rows.push_back(row);
}

int TextTable::width() const {
    return std::accumulate(m_widths.begin(), m_widths.end(), gap * (int(m_widths.size()) - 1));
}

QString TextTable::groupLine() const {
    QString line;
    for (std::size_t i = 0; i < m_columns.size();) {
        const QString &group = m_columns[i].group;
        int width = m_widths[i];
        for (++i; i < m_columns.size() && !group.isEmpty() && m_columns[i].group == group; ++i)
            width += gap + m_widths[i];
        const int spaces = std::max(0, width - displayWidth(group) - 2);
        const QString title = group.isEmpty() || spaces < 2
                                  ? group
                                  : QString(spaces / 2, u'─') % u' ' % group % u' ' %
                                        QString(spaces - spaces / 2, u'─');
        line += padded(title, width + gap);
    }
    return line;
}

QString TextTable::toText(const Console &console, int indent) const {
    const int missing = indent + width() - console.tableWidth();
    const int lastWidth = m_widths.back() - std::max(missing, 0);
    return missing <= 0 || lastWidth >= narrowestText ? toLines(console, indent, lastWidth)
                                                      : toRecords(console, indent);
}

QString TextTable::toRecords(const Console &console, int indent) const {
    QString text;
    for (const Row &row : m_rows) {
        LabeledList cells;
        for (std::size_t i = 1; i < row.size(); ++i) {
            const Column &column = m_columns[i];
            cells.addFilled(column.group.isEmpty() ? column.title
                                                   : column.group % u' ' % column.title,
                            row[i].text);
        }
        text +=
            QString(indent, u' ') % row.front().text % u'\n' % cells.toText(console, indent + 2);
    }
    return text;
}

QString TextTable::toLines(const Console &console, int indent, int lastWidth) const {
    QString text;
    const QString margin(indent, u' ');
    const auto addLine = [&](const Row &row) {
        QString line;
        for (std::size_t i = 0; i < row.size(); ++i) {
            const int spaces = m_widths[i] - displayWidth(row[i].text);
            const int before = spacesBefore(m_columns[i].align, spaces);
            line += QString(before, u' ') % console.styled(row[i].text, row[i].style) %
                    QString(spaces - before + gap, u' ');
        }
        text += withoutSpacesAtEnd(margin % line) % u'\n';
    };

    const QString groups = withoutSpacesAtEnd(groupLine());
    if (!groups.isEmpty())
        text += margin % console.styled(groups, Style::Faint) % u'\n';
    Row titles;
    for (const Column &column : m_columns)
        titles.push_back({column.title, Style::Faint});
    addLine(titles);
    for (const Row &row : m_rows) {
        const bool isFull = row.size() == m_columns.size();
        if (!isFull || lastWidth == m_widths.back()) {
            addLine(row);
            continue;
        }
        Row line = row;
        const auto parts = wrapped(row.back().text, lastWidth);
        for (const QString &part : parts) {
            line.back().text = part;
            addLine(line);
            std::fill(line.begin(), line.end() - 1, Cell{});
        }
    }
    return text;
}

} // namespace ZelPackage
