#include "xml_highlighter.h"

#include <QRegularExpression>

#include <array>

namespace Editor {
namespace {

enum Part { TagPart, AttributePart, ValuePart, ReferencePart, CommentPart };

struct PartColors {
    QRgb light;
    QRgb dark;
};

// In the order of Part; each has a contrast of at least 4.5 to 1 with its background.
constexpr std::array colors{PartColors{0xff1f4f8f, 0xff7fb6f2}, PartColors{0xff7a3e00, 0xffe0a868},
                            PartColors{0xff1c6b2e, 0xff8fd19e}, PartColors{0xff8a1c6a, 0xffe39ad0},
                            PartColors{0xff5d636b, 0xffa3a9b2}};

} // namespace

XmlHighlighter::XmlHighlighter(QTextDocument *document)
    : QSyntaxHighlighter(document) {
}

void XmlHighlighter::setBackground(const QColor &color) {
    const bool isDark = color.lightnessF() < 0.5;
    if (isDark == m_isDark)
        return;
    m_isDark = isDark;
    rehighlight();
}

void XmlHighlighter::highlightBlock(const QString &text) {
    // A token starts at each position where the color changes.
    static const QRegularExpression token(
        QStringLiteral("(?<comment><!--)|(?<tag></?[^\\s/>]*)|(?<reference>&[^;\\s]+;)"));
    static const QRegularExpression tagToken(
        QStringLiteral("(?<end>[?/]?>)|(?<name>[^\\s=\"'/>]+)|(?<quote>[\"'])"));
    const auto paint = [&](int begin, int end, Part part) {
        const auto &[light, dark] = colors[part];
        setFormat(begin, end - begin, QColor::fromRgba(m_isDark ? dark : light));
    };

    int state = std::max(previousBlockState(), int(Text));
    int place = 0;
    const int length = int(text.size());
    // Up to the end of the line, unless the token ends in it.
    const auto endAfter = [&](const QString &end) {
        const int found = int(text.indexOf(end, place));
        return found < 0 ? -1 : found + int(end.size());
    };
    while (place < length) {
        if (state == Comment || state == SingleQuoted || state == DoubleQuoted) {
            const bool isComment = state == Comment;
            const int end = endAfter(isComment               ? QStringLiteral("-->")
                                     : state == SingleQuoted ? QStringLiteral("'")
                                                             : QStringLiteral("\""));
            paint(place, end < 0 ? length : end, isComment ? CommentPart : ValuePart);
            if (end < 0)
                break;
            state = isComment ? Text : Tag;
            place = end;
            continue;
        }
        const auto match = (state == Tag ? tagToken : token).match(text, place);
        if (!match.hasMatch())
            break;
        const int begin = int(match.capturedStart());
        place = int(match.capturedEnd());
        if (state == Tag) {
            const QString quote = match.captured(QStringLiteral("quote"));
            if (!quote.isEmpty()) {
                paint(begin, place, ValuePart);
                state = quote == QLatin1String("'") ? SingleQuoted : DoubleQuoted;
            } else if (match.capturedStart(QStringLiteral("end")) >= 0) {
                paint(begin, place, TagPart);
                state = Text;
            } else {
                paint(begin, place, AttributePart);
            }
        } else if (match.capturedStart(QStringLiteral("comment")) >= 0) {
            place = begin;
            state = Comment;
        } else if (match.capturedStart(QStringLiteral("tag")) >= 0) {
            paint(begin, place, TagPart);
            state = Tag;
        } else {
            paint(begin, place, ReferencePart);
        }
    }
    setCurrentBlockState(state);
}

} // namespace Editor
