#pragma once

#include <QJsonDocument>
#include <QJsonObject>
#include <QString>

namespace ZelPackage {

/// The object as JSON text. What would garble a terminal is escaped, which JSON by itself does only
/// in part.
QString jsonText(const QJsonObject &object, QJsonDocument::JsonFormat format);

} // namespace ZelPackage
