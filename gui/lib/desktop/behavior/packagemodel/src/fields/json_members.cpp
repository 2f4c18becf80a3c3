#include "json_members.h"

#include "field_words.h"

#include <packagemodel/package_json.h>

#include <QCoreApplication>
#include <QStringBuilder>

#include <limits>

namespace Zel::PackageModel {
namespace {

QString positionIn(const QByteArray &json, int offset) {
    const QByteArray before = json.left(offset);
    const auto line = before.count('\n') + 1;
    const auto column = QString::fromUtf8(before.mid(before.lastIndexOf('\n') + 1)).size() + 1;
    return QCoreApplication::translate("Zel::PackageModel", "line %1, column %2")
        .arg(QString::number(line), QString::number(column));
}

} // namespace

const QLatin1String formatMember("format");

JsonMembers::JsonMembers(const QJsonObject &object, const QString &place)
    : m_object(object)
    , m_place(place) {
}

JsonMembers JsonMembers::ofDocument(const QByteArray &json) {
    QJsonParseError fault;
    const QJsonDocument document = QJsonDocument::fromJson(json, &fault);
    JsonMembers members(document.object(), {});
    if (fault.error != QJsonParseError::NoError) {
        members.error = inWords(QT_TRANSLATE_NOOP("Zel::PackageModel", "It is not JSON at %1: %2."))
                            .arg(positionIn(json, fault.offset), fault.errorString());
        return members;
    }
    const int format = members.takeNumber(formatMember);
    if (members.error.isEmpty() && format != jsonFormat)
        members.fail(formatMember,
                     inWords(QT_TRANSLATE_NOOP("Zel::PackageModel", "Format %1 is not supported."))
                         .arg(format));
    return members;
}

QJsonValue JsonMembers::take(QLatin1String name, QJsonValue::Type type) {
    if (!error.isEmpty())
        return {};
    QJsonValue value = m_object.take(name);
    if (value.isUndefined())
        fail(name, inWords(QT_TRANSLATE_NOOP("Zel::PackageModel", "It is missing.")));
    else if (type != QJsonValue::Undefined && value.type() != type)
        fail(name, misfit());
    return value;
}

QString JsonMembers::takeOptionalText(QLatin1String name) {
    return has(name) ? take(name, QJsonValue::String).toString() : QString();
}

int JsonMembers::takeNumber(QLatin1String name) {
    const double number = take(name, QJsonValue::Double).toDouble();
    const bool isIndex =
        number >= 0 && number <= std::numeric_limits<int>::max() && double(int(number)) == number;
    if (error.isEmpty() && !isIndex)
        fail(name, inWords(QT_TRANSLATE_NOOP("Zel::PackageModel",
                                             "It must be a whole number, 0 or more.")));
    return isIndex ? int(number) : 0;
}

void JsonMembers::fail(const QString &name, const QString &reason) {
    error = m_place % name % QStringLiteral(": ") % reason;
}

void JsonMembers::refuseOthers() {
    if (error.isEmpty() && !m_object.isEmpty())
        fail(m_object.begin().key(),
             inWords(QT_TRANSLATE_NOOP("Zel::PackageModel", "There is no such member.")));
}

QByteArray toText(const QJsonObject &object) {
    return QJsonDocument(object).toJson().replace("\xEF\xBB\xBF", "\\ufeff");
}

} // namespace Zel::PackageModel
