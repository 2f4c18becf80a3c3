#pragma once

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace ZelPackage {

/// One name of a field's path, with the keys behind it: "tags[en_US][0]".
struct FieldStep {
    QString name;
    QStringList keys;
};

/// An argument FIELD=VALUE, its field taken apart: "behaviors[greet].tags[en_US][0]=hello".
struct Assignment {
    QString field; ///< as it was written
    std::vector<FieldStep> path;
    QString value;
};

/// Takes an assignment apart; nothing where the text is none. A key is any text: it ends at the
/// first "]" that is followed by "[", "." or "=".
[[nodiscard]] std::optional<Assignment> parseAssignment(const QString &text);

} // namespace ZelPackage
