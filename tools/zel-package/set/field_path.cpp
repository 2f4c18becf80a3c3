#include "field_path.h"

#include <QRegularExpression>

namespace ZelPackage {

std::optional<Assignment> parseAssignment(const QString &text) {
    static const QRegularExpression name(QStringLiteral("\\G[A-Za-z]+"));
    static const QRegularExpression key(QStringLiteral(R"(\G\[(.*?)\](?=[\[.=]))"),
                                        QRegularExpression::DotMatchesEverythingOption);
    Assignment assignment;
    int position = 0;
    while (true) {
        QRegularExpressionMatch match = name.match(text, position);
        if (!match.hasMatch())
            return {};
        FieldStep step{match.captured(), {}};
        position = int(match.capturedEnd());
        for (match = key.match(text, position); match.hasMatch();
             match = key.match(text, position)) {
            step.keys += match.captured(1);
            position = int(match.capturedEnd());
        }
        assignment.path.push_back(step);
        const QChar next = position < text.size() ? text.at(position) : QChar();
        if (next == u'=')
            break;
        if (next != u'.')
            return {};
        ++position;
    }
    assignment.field = text.left(position);
    assignment.value = text.mid(position + 1);
    return assignment;
}

} // namespace ZelPackage
