#pragma once

#include <packagemodel/package_edits.h>

#include <QJsonValue>

namespace Zel::PackageModel {

/// A value as JSON: a text, a flag, or an object for an entry.
QJsonValue jsonOf(const FieldValue &value);

/// The value of a kind that is read from JSON; nothing if it is malformed, then sets `error`.
std::optional<FieldValue> valueOfJson(FieldKind kind, const QJsonValue &json, QString &error);

} // namespace Zel::PackageModel
