#include "text_diff.h"

#include <QStringList>

#include <algorithm>
#include <string_view>
#include <vector>

namespace ZelPackage {
namespace {

constexpr int contextLines = 3;
// Beyond so many differences, all that lies between the first and the last counts as changed: time
// and memory grow with the square of their number.
constexpr int mostDifferences = 2000;

using Lines = std::vector<std::string_view>;

enum class Change { None, Deletion, Addition };

struct ScriptLine {
    Change change;
    std::string_view text;
};

using Script = std::vector<ScriptLine>;

bool isChange(const ScriptLine &line) {
    return line.change != Change::None;
}

// The lines with their line feeds, so that a missing one at the end counts as a difference.
Lines linesOf(std::string_view text) {
    Lines lines;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size() - 1) + 1;
        lines.push_back(text.substr(0, end));
        text.remove_prefix(end);
    }
    return lines;
}

// Computes the shortest edit script (E. W. Myers, "An O(ND) Difference Algorithm and Its
// Variations", 1986). Keeps the farthest points reached with 0, 1, 2... differences on each
// diagonal, and traces the path back from the end.
class ShortestScript {
public:
    ShortestScript(const Lines &before, const Lines &after)
        : m_before(before)
        , m_after(after) {}

    Script find() {
        while (m_farthest.size() <= mostDifferences) {
            if (reachesEnd())
                return wayBack();
        }
        Script script;
        for (const std::string_view line : m_before)
            script.push_back({Change::Deletion, line});
        for (const std::string_view line : m_after)
            script.push_back({Change::Addition, line});
        return script;
    }

private:
    // The positions in the old text, on the diagonals -d, -d + 2 ... d.
    using Round = std::vector<int>;

    int newPosition(int oldPosition, int diagonal) const { return oldPosition - diagonal; }

    // Whether a diagonal is reached from the one above, by adding a line.
    static bool isAddition(const Round &last, int d, int diagonal) {
        const auto at = std::size_t((diagonal + d) / 2);
        return diagonal == -d || (diagonal != d && last[at - 1] < last[at]);
    }

    static int start(const Round &last, int d, int diagonal) {
        const auto at = std::size_t((diagonal + d) / 2);
        return isAddition(last, d, diagonal) ? last[at] : last[at - 1] + 1;
    }

    bool reachesEnd() {
        const int d = int(m_farthest.size());
        const int oldSize = int(m_before.size());
        const int newSize = int(m_after.size());
        Round round;
        bool isEnd = false;
        for (int diagonal = -d; diagonal <= d; diagonal += 2) {
            int position = d == 0 ? 0 : start(m_farthest.back(), d, diagonal);
            while (position < oldSize && newPosition(position, diagonal) < newSize &&
                   m_before[std::size_t(position)] ==
                       m_after[std::size_t(newPosition(position, diagonal))])
                ++position;
            round.push_back(position);
            isEnd = isEnd || (position >= oldSize && newPosition(position, diagonal) >= newSize);
        }
        m_farthest.push_back(round);
        return isEnd;
    }

    Script wayBack() const {
        Script script;
        int position = int(m_before.size());
        int diagonal = position - int(m_after.size());
        for (int d = int(m_farthest.size()) - 1; d >= 0; --d) {
            const Round *last = d == 0 ? nullptr : &m_farthest[std::size_t(d) - 1];
            const int begin = last ? start(*last, d, diagonal) : 0;
            while (position > begin)
                script.push_back({Change::None, m_before[std::size_t(--position)]});
            if (!last)
                break;
            if (isAddition(*last, d, diagonal)) {
                script.push_back(
                    {Change::Addition, m_after[std::size_t(newPosition(position, diagonal) - 1)]});
                ++diagonal;
            } else {
                script.push_back({Change::Deletion, m_before[std::size_t(--position)]});
                --diagonal;
            }
        }
        std::reverse(script.begin(), script.end());
        return script;
    }

    const Lines &m_before;
    const Lines &m_after;
    std::vector<Round> m_farthest;
};

// Common lines at both ends need no search.
Script editScript(Lines before, Lines after) {
    const auto prefix =
        std::mismatch(before.begin(), before.end(), after.begin(), after.end()).first -
        before.begin();
    const auto rest = std::min(before.size(), after.size()) - std::size_t(prefix);
    const auto suffix =
        std::mismatch(before.rbegin(), before.rbegin() + std::ptrdiff_t(rest), after.rbegin())
            .first -
        before.rbegin();
    Script head;
    for (auto it = before.begin(); it != before.begin() + prefix; ++it)
        head.push_back({Change::None, *it});
    Script tail;
    for (auto it = before.end() - suffix; it != before.end(); ++it)
        tail.push_back({Change::None, *it});
    for (Lines *lines : {&before, &after}) {
        lines->erase(lines->end() - suffix, lines->end());
        lines->erase(lines->begin(), lines->begin() + prefix);
    }
    const Script middle = ShortestScript(before, after).find();
    head.insert(head.end(), middle.begin(), middle.end());
    head.insert(head.end(), tail.begin(), tail.end());
    return head;
}

// The end of the hunk that starts at `change`, which includes further changes while their contexts
// touch.
std::size_t endOfHunk(const Script &script, std::size_t change) {
    std::size_t lastChange = change;
    for (std::size_t i = change; i < script.size() && i - lastChange <= 2 * contextLines + 1; ++i) {
        if (isChange(script[i]))
            lastChange = i;
    }
    return std::min(script.size(), lastChange + 1 + contextLines);
}

QString printed(char mark, std::string_view line, Style style, const Console &console) {
    const bool isEnded = !line.empty() && line.back() == '\n';
    if (isEnded)
        line.remove_suffix(1);
    // After the mark, so that a byte order mark is kept.
    const QString text = QString::fromStdString(mark + std::string(line));
    return console.styled(console.shown(text, QStringLiteral("\t")), style) %
           (isEnded ? QStringLiteral("\n") : QStringLiteral("\n\\ No newline at end of file\n"));
}

// Removed lines precede the lines that replace them.
QString printed(Script::const_iterator begin, Script::const_iterator end, const Console &console) {
    QString text;
    while (begin != end) {
        const auto endOfChange = std::find_if_not(begin, end, isChange);
        for (auto it = begin; it != endOfChange; ++it) {
            if (it->change == Change::Deletion)
                text += printed('-', it->text, Style::Caution, console);
        }
        for (auto it = begin; it != endOfChange; ++it) {
            if (it->change == Change::Addition)
                text += printed('+', it->text, Style::Good, console);
        }
        for (begin = endOfChange; begin != end && !isChange(*begin); ++begin)
            text += printed(' ', begin->text, Style::Plain, console);
    }
    return text;
}

// "12,7": the first line, counted from 1, and the number of lines. If there are none, the line
// before.
QString range(std::ptrdiff_t first, std::ptrdiff_t count) {
    const QString start = QString::number(count == 0 ? first - 1 : first);
    return count == 1 ? start : start % u',' % QString::number(count);
}

} // namespace

QString unifiedDiff(const QString &name, const std::string &before, const std::string &after,
                    const Console &console) {
    const Script script = editScript(linesOf(before), linesOf(after));
    const auto count = [&](std::size_t begin, std::size_t end, Change left) {
        return std::count_if(script.begin() + std::ptrdiff_t(begin),
                             script.begin() + std::ptrdiff_t(end),
                             [&](const ScriptLine &line) { return line.change != left; });
    };
    const QString shownName = console.shown(name);
    QString text;
    std::ptrdiff_t oldLine = 1;
    std::ptrdiff_t newLine = 1;
    std::size_t end = 0; // of the previous hunk
    for (std::size_t change = 0; change < script.size(); ++change) {
        if (change < end || !isChange(script[change]))
            continue;
        const std::size_t begin = change < end + contextLines ? end : change - contextLines;
        oldLine += std::ptrdiff_t(begin - end);
        newLine += std::ptrdiff_t(begin - end);
        end = endOfHunk(script, change);
        const auto oldCount = count(begin, end, Change::Addition);
        const auto newCount = count(begin, end, Change::Deletion);
        if (text.isEmpty())
            text = console.styled(QStringLiteral("--- ") % shownName, Style::Heading) % u'\n' %
                   console.styled(QStringLiteral("+++ ") % shownName, Style::Heading) % u'\n';
        text += console.styled(QStringLiteral("@@ -%1 +%2 @@")
                                   .arg(range(oldLine, oldCount), range(newLine, newCount)),
                               Style::Faint) %
                u'\n' %
                printed(script.begin() + std::ptrdiff_t(begin),
                        script.begin() + std::ptrdiff_t(end), console);
        oldLine += oldCount;
        newLine += newCount;
    }
    return text;
}

std::vector<LineChange> lineChanges(const std::string &before, const std::string &after) {
    const Script script = editScript(linesOf(before), linesOf(after));
    std::vector<LineChange> changes;
    int line = 1;
    bool continues = false;
    for (const ScriptLine &step : script) {
        if (isChange(step) && !continues)
            changes.push_back({line, 0, {}});
        continues = isChange(step);
        if (step.change == Change::Addition)
            changes.back().lines += step.text;
        else
            ++line;
        if (step.change == Change::Deletion)
            ++changes.back().count;
    }
    return changes;
}

} // namespace ZelPackage
