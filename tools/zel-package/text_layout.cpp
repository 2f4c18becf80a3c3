#include "text_layout.h"

#include <QTextBoundaryFinder>

#include <algorithm>
#include <cwchar>

namespace ZelPackage {
namespace {

constexpr bool isBetween(char16_t code, char16_t first, char16_t last) {
    return code >= first && code <= last;
}

// The parts of a text between the boundaries of one type; together they are the text.
QStringList partsOf(const QString &text, QTextBoundaryFinder::BoundaryType type) {
    QStringList parts;
    QTextBoundaryFinder finder(type, text);
    int start = 0;
    for (int end = int(finder.toNextBoundary()); end > start; end = int(finder.toNextBoundary())) {
        parts += text.mid(start, end - start);
        start = end;
    }
    return parts;
}

// Fills lines with parts as long as they fit, a part's trailing spaces set aside.
class LineFiller {
public:
    explicit LineFiller(int width)
        : m_width(width) {}

    bool fits(const QString &part) const {
        return m_lineWidth + displayWidth(withoutSpacesAtEnd(part)) <= m_width;
    }

    void add(const QString &part) {
        if (!fits(part) && !m_line.isEmpty())
            finishLine();
        m_line += part;
        m_lineWidth += displayWidth(part);
    }

    void finishLine() {
        m_lines += withoutSpacesAtEnd(m_line);
        m_line.clear();
        m_lineWidth = 0;
    }

    bool isAtStart() const { return m_line.isEmpty(); }
    QStringList lines() const { return m_lines; }

private:
    int m_width;
    QStringList m_lines;
    QString m_line;
    int m_lineWidth = 0;
};

} // namespace

bool isUnprintable(QChar character) {
    const char16_t code = character.unicode();
    return character.category() == QChar::Other_Control || code == 0x061C ||
           isBetween(code, 0x200E, 0x200F) || isBetween(code, 0x2028, 0x202E) ||
           isBetween(code, 0x2066, 0x206F) || code == 0xFEFF || isBetween(code, 0xFFF9, 0xFFFB);
}

QString printable(const QString &text) {
    if (std::none_of(text.begin(), text.end(), isUnprintable))
        return text;
    QString result;
    for (const QChar character : text) {
        if (isUnprintable(character))
            result += QStringLiteral("<U+%1>")
                          .arg(uint(character.unicode()), 4, 16, QChar(u'0'))
                          .toUpper();
        else
            result += character;
    }
    return result;
}

int displayWidth(const QString &text) {
    int width = 0;
    const auto characters = text.toUcs4();
    // Negative for what the C library does not know yet, which a terminal most likely shows in one
    // column.
    for (const uint character : characters) {
        const int columns = wcwidth(wchar_t(character));
        width += columns < 0 ? 1 : columns;
    }
    return width;
}

QString withoutSpacesAtEnd(const QString &text) {
    int length = int(text.size());
    while (length > 0 && text.at(length - 1).isSpace())
        --length;
    return text.left(length);
}

QString padded(const QString &text, int width) {
    return text % QString(std::max(0, width - displayWidth(text)), u' ');
}

QStringList wrapped(const QString &text, int width) {
    LineFiller filler(std::max(width, 1));
    const auto paragraphs = text.split(u'\n');
    for (const QString &paragraph : paragraphs) {
        const auto parts = partsOf(printable(paragraph), QTextBoundaryFinder::Line);
        for (const QString &part : parts) {
            if (!filler.fits(part) && !filler.isAtStart())
                filler.finishLine();
            if (filler.fits(part)) {
                filler.add(part);
                continue;
            }
            const auto characters = partsOf(part, QTextBoundaryFinder::Grapheme);
            for (const QString &character : characters)
                filler.add(character);
        }
        filler.finishLine();
    }
    return filler.lines();
}

} // namespace ZelPackage
