#pragma once

#include <packagemodel/package_edits.h>

#include <QByteArray>
#include <QJsonValue>

#include <functional>

// JSON (RFC 8259, UTF-8) of packages and edits. Members are named like the fields of paths, and
// "format" numbers the form; schema/package.schema.json and schema/edits.schema.json describe both.

namespace Zel::PackageModel {

/// The number of the forms that this library writes, and the newest that it reads.
constexpr int jsonFormat = 1;

/// Writes all fields of a package as one JSON object, in pieces, so that a large package takes
/// little memory. Nothing for a null package.
///
/// ```
/// writeJson(&package, [&](const QByteArray &piece) { file.write(piece); });
/// ```
PACKAGEMODEL_EXPORT void writeJson(const PackageInfoModel *package,
                                   const std::function<void(const QByteArray &piece)> &write);

/// A value as JSON: a text, a flag, or an entry as an object of its fields. An entry with comments
/// or content that no field describes is `{"manifest": "<package>..."}`, a manifest with this entry
/// alone.
PACKAGEMODEL_EXPORT QJsonValue toJson(const FieldValue &value);

/// The value of a kind that toJson() wrote. An entry may lack any fields except the one that names
/// it. Nothing for JSON of another form: then `error`, if given, says why in one sentence.
PACKAGEMODEL_EXPORT std::optional<FieldValue> valueFromJson(FieldKind kind, const QJsonValue &json,
                                                            QString *error = nullptr);

/// Edits as JSON:
///
/// ```
/// {"format": 1, "edits": [
///     {"action": "set", "path": "names[fr_FR]", "value": "Thé"},
///     {"action": "insert", "path": "behaviors", "index": 0, "value": {"path": "greet"}},
///     {"action": "move", "path": "services[clock]", "index": 1},
///     {"action": "remove", "path": "dialogs[talk]"}]}
/// ```
///
/// Reading the result gives the same edits.
PACKAGEMODEL_EXPORT QByteArray toJson(const Edits &edits);

/// Edits that were read, or why there are none.
struct ParsedEdits {
    Edits edits;
    QString error; ///< one sentence that names the place; empty on success
};

/// Reads what toJson() writes. Refused are unknown members and actions, values of another type and
/// paths that no package has; whether a package has the fields shows when the edits are applied.
PACKAGEMODEL_EXPORT ParsedEdits editsFromJson(const QByteArray &json);

} // namespace Zel::PackageModel
