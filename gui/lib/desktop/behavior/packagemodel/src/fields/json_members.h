#pragma once

#include <QJsonDocument>
#include <QJsonObject>

namespace Zel::PackageModel {

/// Takes the members of a JSON object one by one. The first member at fault is the error; members
/// that nobody took are unknown.
class JsonMembers {
public:
    /// The object of a document; a document that is not JSON, or of another format than the one
    /// that this library writes, is an error.
    static JsonMembers ofDocument(const QByteArray &json);
    /// `place` precedes the names of members in errors.
    JsonMembers(const QJsonObject &object, const QString &place);

    QString error; ///< one sentence that names the member; empty so far

    /// A member that must exist. QJsonValue::Undefined takes any type.
    QJsonValue take(QLatin1String name, QJsonValue::Type type);
    /// A text that may be absent.
    QString takeOptionalText(QLatin1String name);
    int takeNumber(QLatin1String name);
    void fail(const QString &name, const QString &reason);
    void refuseOthers();

private:
    QJsonObject m_object;
    QString m_place;
};

extern const QLatin1String formatMember;

/// JSON as text. Readers take a U+FEFF at the beginning of a text for a byte order mark, so it is
/// escaped.
QByteArray toText(const QJsonObject &object);

} // namespace Zel::PackageModel
