#pragma once

#include <tano/field_path.h>

#include <QString>

#include <optional>

namespace ZelPackage {

/// An edit as an argument: "author=Ines", "behaviors[greet].tags[en_US][+]@0=hello" or
/// "behaviors[greet]@2".
struct Assignment {
    QString field; ///< as written
    Tano::FieldPath path;
    std::optional<int> index;     ///< after the '@': where to insert or to move
    std::optional<QString> value; ///< after the '='
};

/// Whether an argument is meant as an edit rather than as a file: it has a '=' that no '/'
/// precedes, or it ends with the index of a move.
bool looksLikeAssignment(const QString &text);

/// Parses an assignment; returns nothing for a text of another form.
std::optional<Assignment> parseAssignment(const QString &text);

} // namespace ZelPackage
