#pragma once

#include <QJsonDocument>
#include <QJsonObject>
#include <QString>

namespace ZelPackage {

/// JSON as printable UTF-8: escapes characters that could garble a terminal, which JSON requires
/// only for some of them.
QString printableJson(const QByteArray &json);

/// The object as printable JSON.
QString jsonText(const QJsonObject &object, QJsonDocument::JsonFormat format);

} // namespace ZelPackage
