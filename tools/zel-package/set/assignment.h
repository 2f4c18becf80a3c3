#pragma once

#include <tano/field_path.h>

#include <QString>

#include <optional>

namespace ZelPackage {

/// An edit given as an argument: "author=Ines", "behaviors[greet].tags[en_US][+]@0=hello" or
/// "behaviors[greet]@2".
struct Assignment {
    QString field; ///< as written
    Tano::FieldPath path;
    std::optional<int> index;     ///< after '@': where to insert, or the target of a move
    std::optional<QString> value; ///< after '='
};

/// Whether an argument is an edit rather than a file name: it has a '=' with no '/' before it, or
/// ends with the index of a move.
bool looksLikeAssignment(const QString &text);

/// Parses an assignment; nullopt if it is malformed.
std::optional<Assignment> parseAssignment(const QString &text);

} // namespace ZelPackage
