#pragma once

#include <packagemodel/package_edits.h>

#include <QByteArray>
#include <QJsonValue>

#include <functional>

/// @file
/// Packages and edits as JSON (RFC 8259, UTF-8). Members are named like fields in paths, and
/// "format" is the version of the form. See schema/package.schema.json and
/// schema/edits.schema.json.

namespace Zel::PackageModel {

/// The version of the forms that this library writes, and the newest that it reads.
constexpr int jsonFormat = 1;

/// Writes all fields of a package as one JSON object, in pieces, so that large packages take little
/// memory. Writes nothing for a null package.
///
/// ```cpp
/// writeJson(&package, [&](const QByteArray &piece) { file.write(piece); });
/// ```
PACKAGEMODEL_EXPORT void writeJson(const PackageInfoModel *package,
                                   const std::function<void(const QByteArray &piece)> &write);

/// A value as JSON: a text, a flag, or an entry as an object of its fields. An entry with comments
/// or content that no field describes is `{"manifest": "<package>..."}`, a manifest with this entry
/// alone.
PACKAGEMODEL_EXPORT QJsonValue toJson(const FieldValue &value);

/// Reads a value that toJson() wrote. An entry may lack any field except its key. For other JSON,
/// returns nullopt and sets `error`, if given, to one sentence.
PACKAGEMODEL_EXPORT std::optional<FieldValue> valueFromJson(FieldKind kind, const QJsonValue &json,
                                                            QString *error = nullptr);

/// Edits as JSON:
///
/// ```json
/// {"format": 1, "edits": [
///     {"action": "set", "path": "names[fr_FR]", "value": "Thé"},
///     {"action": "insert", "path": "behaviors", "index": 0, "value": {"path": "greet"}},
///     {"action": "move", "path": "services[clock]", "index": 1},
///     {"action": "remove", "path": "dialogs[talk]"}]}
/// ```
///
/// Reading the result gives the same edits.
PACKAGEMODEL_EXPORT QByteArray toJson(const Edits &edits);

/// The outcome of reading edits.
struct ParsedEdits {
    Edits edits;   ///< empty on failure
    QString error; ///< one sentence with the position; empty on success
};

/// Reads the output of toJson(). Refused are unknown members and actions, values of a wrong type,
/// and paths that no package has. Whether a certain package has the fields is checked by apply().
PACKAGEMODEL_EXPORT ParsedEdits editsFromJson(const QByteArray &json);

} // namespace Zel::PackageModel
