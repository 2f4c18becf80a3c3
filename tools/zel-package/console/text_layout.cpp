#include "text_layout.h"

#include "arguments/native_text.h"

#include <QTextBoundaryFinder>

#include <algorithm>
#include <array>
#include <cwchar>

namespace ZelPackage {
namespace {

struct Range {
    uint first;
    uint last;
};

// Default-ignorable characters outside the format category (Cf).
constexpr std::array invisible{Range{0x034F, 0x034F},  Range{0x115F, 0x1160}, Range{0x17B4, 0x17B5},
                               Range{0x180B, 0x180F},  Range{0x2065, 0x2065}, Range{0x3164, 0x3164},
                               Range{0xFE00, 0xFE0F},  Range{0xFFA0, 0xFFA0}, Range{0xFFF0, 0xFFF8},
                               Range{0xE0000, 0xE0FFF}};

// Joiners and variation selectors shape emoji and the letters of some scripts. After other
// characters, they are only invisible.
bool shapes(uint code, uint base) {
    constexpr uint firstShaped = 0x0600; // beyond the alphabets without joining letters
    return base >= firstShaped &&
           (code == 0x200C || code == 0x200D || code == 0xFE0E || code == 0xFE0F);
}

// Splits a text at all boundaries of one type.
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

// Fills lines with parts while they fit, ignoring trailing spaces.
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

// QString::fromUcs4() would drop a byte order mark.
QString characterOf(uint code) {
    if (!QChar::requiresSurrogates(code))
        return QChar(ushort(code));
    return QString(QChar(QChar::highSurrogate(code))) % QChar(QChar::lowSurrogate(code));
}

} // namespace

bool isUnprintable(uint code) {
    switch (QChar::category(code)) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    default:
        return std::any_of(invisible.begin(), invisible.end(), [code](const Range &range) {
            return code >= range.first && code <= range.last;
        });
    }
}

QString printable(const QString &text) {
    return printableExcept({}, text);
}

QString printableExcept(const QString &kept, const QString &text) {
    const auto needsCare = [](QChar character) {
        return character.isSurrogate() || isUnprintable(character.unicode());
    };
    if (std::none_of(text.begin(), text.end(), needsCare))
        return text;
    QString result;
    uint base = 0;
    const auto codes = withVisibleBytes(text).toUcs4();
    for (const uint code : codes) {
        const QString character = characterOf(code);
        if (shapes(code, base)) {
            result += character;
            continue;
        }
        const bool isShown = !isUnprintable(code) || kept.contains(character);
        result +=
            isShown ? character : QStringLiteral("<U+%1>").arg(code, 4, 16, QChar(u'0')).toUpper();
        base = isShown ? code : 0;
    }
    return result;
}

int displayWidth(const QString &text) {
    int width = 0;
    const auto characters = text.toUcs4();
    // Negative for characters that the C library does not know, most of which take one column.
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
