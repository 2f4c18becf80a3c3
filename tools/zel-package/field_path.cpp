#include "field_path.h"

#include <QRegularExpression>

namespace ZelPackage {

std::optional<Assignment> parseAssignment(const QString &text) {
    static const QRegularExpression name(QStringLiteral("[A-Za-z]+"));
    static const QRegularExpression key(QStringLiteral(R"(\[(.*?)\](?=[\[.=]))"),
                                        QRegularExpression::DotMatchesEverythingOption);
    const auto matchAt = [&](const QRegularExpression &expression, int position) {
        return expression.match(text, position, QRegularExpression::NormalMatch,
                                QRegularExpression::AnchoredMatchOption);
    };
    Assignment assignment;
    int position = 0;
    while (true) {
        QRegularExpressionMatch match = matchAt(name, position);
        if (!match.hasMatch())
            return {};
        FieldStep step{match.captured(), {}};
        position = int(match.capturedEnd());
        for (match = matchAt(key, position); match.hasMatch(); match = matchAt(key, position)) {
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
