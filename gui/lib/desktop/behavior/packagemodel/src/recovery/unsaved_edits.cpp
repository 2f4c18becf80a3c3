#include <packagemodel/edit_session.h>

#include "../fields/edits_json.h"
#include "../fields/field_words.h"

#include <tano/save_file.h>

namespace Zel::PackageModel {
namespace {

const QLatin1String manifestMember("manifest");
const QLatin1String contentMember("content");
const QLatin1String digestMember("xxh3");
const QLatin1String timeMember("time");
const QLatin1String iconMember("icon");

std::optional<QByteArray> takeIcon(JsonMembers &members) {
    if (!members.has(iconMember))
        return {};
    const QByteArray text = members.take(iconMember, QJsonValue::String).toString().toLatin1();
    const auto icon = QByteArray::fromBase64Encoding(text, QByteArray::AbortOnBase64DecodingErrors);
    if (members.error.isEmpty() && !icon)
        members.fail(iconMember, misfit());
    return icon.decoded;
}

} // namespace

QByteArray toJson(const UnsavedEdits &unsaved) {
    QJsonObject object{
        {formatMember, jsonFormat},
        {digestMember, QLatin1String(unsaved.digest)},
        {timeMember, unsaved.time.toUTC().toString(Qt::ISODate)},
    };
    if (unsaved.fileName.isEmpty())
        object.insert(contentMember, QString::fromUtf8(unsaved.manifest));
    else
        object.insert(manifestMember, unsaved.fileName);
    if (unsaved.icon)
        object.insert(iconMember, QString::fromLatin1(unsaved.icon->toBase64()));
    insertEdits(object, unsaved.edits);
    return toText(object);
}

ParsedUnsavedEdits unsavedEditsFromJson(const QByteArray &json) {
    JsonMembers members = JsonMembers::ofDocument(json);
    ParsedUnsavedEdits parsed;
    UnsavedEdits &unsaved = parsed.unsaved;
    unsaved.fileName = members.takeOptionalText(manifestMember);
    if (unsaved.fileName.isEmpty())
        unsaved.manifest = members.take(contentMember, QJsonValue::String).toString().toUtf8();
    unsaved.digest = members.take(digestMember, QJsonValue::String).toString().toLatin1();
    unsaved.time =
        QDateTime::fromString(members.take(timeMember, QJsonValue::String).toString(), Qt::ISODate);
    if (members.error.isEmpty() && !unsaved.time.isValid())
        members.fail(timeMember, misfit());
    unsaved.icon = takeIcon(members);
    unsaved.edits = takeEdits(members);
    members.refuseOthers();
    if (!members.error.isEmpty())
        return {{}, members.error};
    return parsed;
}

QByteArray manifestDigest(const QByteArray &manifest) {
    const auto fingerprint = Tano::FileFingerprint::ofContent(manifest.toStdString());
    return QByteArray::fromStdString(fingerprint.digest).toHex();
}

} // namespace Zel::PackageModel
