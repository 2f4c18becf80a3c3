#pragma once

#include <QJsonDocument>
#include <QJsonObject>
#include <QString>

namespace ZelPackage {

/// JSON text in UTF-8 as it is printed: what would garble a terminal is escaped, which JSON by
/// itself does only in part.
QString printableJson(const QByteArray &json);

/// The object as printable JSON text.
QString jsonText(const QJsonObject &object, QJsonDocument::JsonFormat format);

} // namespace ZelPackage
