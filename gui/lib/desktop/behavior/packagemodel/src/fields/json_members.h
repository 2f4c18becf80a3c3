#pragma once

#include <QJsonDocument>
#include <QJsonObject>

namespace Zel::PackageModel {

/// Takes the members of a JSON object one by one and keeps the first error. Members that were not
/// taken are unknown.
class JsonMembers {
public:
    /// The object of a document. Sets an error if the document is not JSON or has an unsupported
    /// format version.
    static JsonMembers ofDocument(const QByteArray &json);
    /// Errors prefix member names with `place`.
    JsonMembers(const QJsonObject &object, const QString &place);

    QString error; ///< the first error, a sentence that names the member

    /// Takes a required member. QJsonValue::Undefined accepts any type.
    QJsonValue take(QLatin1String name, QJsonValue::Type type);
    /// Takes an optional text.
    bool has(QLatin1String name) const { return m_object.contains(name); }
    QString takeOptionalText(QLatin1String name);
    int takeNumber(QLatin1String name);
    void fail(const QString &name, const QString &reason);
    void refuseOthers();

private:
    QJsonObject m_object;
    QString m_place;
};

extern const QLatin1String formatMember;

/// Serializes JSON. Escapes a U+FEFF, which readers would drop at the start of a text as a byte
/// order mark.
QByteArray toText(const QJsonObject &object);

} // namespace Zel::PackageModel
