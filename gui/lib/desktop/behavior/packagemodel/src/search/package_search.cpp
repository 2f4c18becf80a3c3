#include <packagemodel/package_search.h>

#include <algorithm>
#include <iterator>
#include <set>

namespace Zel::PackageModel {
namespace {

bool isSearched(const Field &field) {
    return field.kind == FieldKind::Text || field.kind == FieldKind::Version;
}

// Expands the replacement of a match, using the text captured in its field.
QString expanded(const TextMatch &match, const QRegularExpression &pattern, const QString &by,
                 const SearchOptions &options) {
    if (!options.isRegularExpression)
        return by;
    const auto found = pattern.match(match.text, match.start);
    QString result;
    for (int i = 0; i < by.size(); ++i) {
        int digits = 0;
        while (digits < 2 && by.at(i) == u'\\' && i + digits + 1 < by.size() &&
               by.at(i + digits + 1) >= u'0' && by.at(i + digits + 1) <= u'9')
            ++digits;
        if (digits == 0) {
            result += by.at(i);
            continue;
        }
        result += found.captured(by.mid(i + 1, digits).toInt());
        i += digits;
    }
    return result;
}

} // namespace

QRegularExpression searchPattern(const QString &text, const SearchOptions &options) {
    QString pattern = options.isRegularExpression ? text : QRegularExpression::escape(text);
    if (options.matchesWords)
        pattern = QStringLiteral("\\b(?:%1)\\b").arg(pattern);
    QRegularExpression::PatternOptions flags = QRegularExpression::UseUnicodePropertiesOption;
    if (!options.matchesCase)
        flags |= QRegularExpression::CaseInsensitiveOption;
    return QRegularExpression(pattern, flags);
}

TextMatches matches(const QVector<Field> &fields, const QRegularExpression &pattern) {
    TextMatches found;
    for (const Field &field : fields) {
        if (!isSearched(field))
            continue;
        const QString text = printed(field.value);
        auto each = pattern.globalMatch(text);
        while (each.hasNext()) {
            const auto match = each.next();
            if (match.capturedLength() > 0)
                found.append(
                    {field.path, text, int(match.capturedStart()), int(match.capturedLength())});
        }
    }
    return found;
}

Replacement replaced(const PackageInfoModel *package, const TextMatches &matches,
                     const QRegularExpression &pattern, const QString &by,
                     const SearchOptions &options) {
    Replacement result;
    Edits renames;
    std::set<QPair<std::string, QString>> newNames; // together with their lists
    for (auto first = matches.begin(); first != matches.end();) {
        const auto last = std::find_if(
            first, matches.end(), [&](const TextMatch &each) { return each.path != first->path; });
        QString text = first->text;
        for (auto match = std::make_reverse_iterator(last);
             match != std::make_reverse_iterator(first); ++match)
            text.replace(match->start, match->length, expanded(*match, pattern, by, options));

        const auto form = formOf(first->path);
        const auto value = form ? parsedValue(form->kind, text) : std::nullopt;
        const Edit edit{Edit::Action::Set, first->path, value};
        const bool isRename = form && form->isKey;
        const auto newName = qMakePair(first->path.steps().front().field, text);
        if (value && refusal(package, edit).isEmpty() &&
            !(isRename && newNames.count(newName) > 0)) {
            if (isRename)
                newNames.insert(newName);
            (isRename ? renames : result.edits).append(edit);
            result.count += int(last - first);
        } else {
            std::copy(first, last, std::back_inserter(result.fixed));
        }
        first = last;
    }
    // Renaming an entry shifts the paths of later ones with the same name, so start at the last.
    std::reverse(renames.begin(), renames.end());
    result.edits += renames;
    return result;
}

} // namespace Zel::PackageModel
