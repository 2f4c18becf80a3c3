#pragma once

#include <tano/field_path.h>

#include <QString>

#include <optional>

namespace ZelPackage {

/// An argument FIELD=VALUE, for example "behaviors[greet].tags[en_US][0]=hello".
struct Assignment {
    QString field; ///< as written
    Tano::FieldPath path;
    QString value;
};

/// Parses an assignment; returns nothing for a text of another form.
[[nodiscard]] std::optional<Assignment> parseAssignment(const QString &text);

} // namespace ZelPackage
