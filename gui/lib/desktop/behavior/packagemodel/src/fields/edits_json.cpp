#include "edits_json.h"

#include "field_words.h"

#include <packagemodel/text_conversion.h>

#include <QJsonArray>
#include <QJsonObject>
#include <QStringBuilder>

#include <algorithm>
#include <array>

namespace Zel::PackageModel {
namespace {

const QLatin1String editsMember("edits");
const QLatin1String actionMember("action");
const QLatin1String pathMember("path");
const QLatin1String valueMember("value");
const QLatin1String indexMember("index");

struct ActionRow {
    const char *name;
    bool hasValue;
    bool hasIndex;
};

// In the order of Edit::Action.
constexpr std::array actions{ActionRow{"set", true, false}, ActionRow{"insert", true, true},
                             ActionRow{"remove", false, false}, ActionRow{"move", false, true}};

const ActionRow &rowOf(const Edit &edit) {
    return actions[std::size_t(edit.action)];
}

QJsonObject toObject(const Edit &edit) {
    QJsonObject object{{actionMember, QLatin1String(rowOf(edit).name)},
                       {pathMember, fromUtf8(edit.path.toString())}};
    if (rowOf(edit).hasValue && edit.value)
        object.insert(valueMember, toJson(*edit.value));
    if (rowOf(edit).hasIndex)
        object.insert(indexMember, std::max(0, edit.index));
    return object;
}

std::optional<Edit::Action> actionNamed(const QString &name) {
    const auto row = std::find_if(actions.begin(), actions.end(), [&](const ActionRow &each) {
        return name == QLatin1String(each.name);
    });
    if (row == actions.end())
        return {};
    return static_cast<Edit::Action>(row - actions.begin());
}

void readValue(Edit &edit, const FieldForm &form, JsonMembers &members) {
    QString reason;
    const QJsonValue json = members.take(valueMember, QJsonValue::Undefined);
    if (members.error.isEmpty())
        edit.value = valueFromJson(form.kind, json, &reason);
    if (!reason.isEmpty())
        members.fail(valueMember, reason);
}

Edit readEdit(JsonMembers &members) {
    const QString action = members.take(actionMember, QJsonValue::String).toString();
    const QString printedPath = members.take(pathMember, QJsonValue::String).toString();
    if (!members.error.isEmpty())
        return {};
    Edit edit{};
    const auto known = actionNamed(action);
    const auto path = Tano::FieldPath::parse(toUtf8(printedPath));
    QString reason;
    const auto form = path ? formOf(*path, &reason) : std::nullopt;
    if (!known)
        members.fail(actionMember,
                     inWords(QT_TRANSLATE_NOOP("Zel::PackageModel",
                                               "It must be 'set', 'insert', 'remove' or 'move'.")));
    else if (!path)
        members.fail(pathMember, inWords(QT_TRANSLATE_NOOP("Zel::PackageModel",
                                                           "'%1' is not the path of a field."))
                                     .arg(printedPath));
    else if (!form)
        members.fail(pathMember, reason);
    if (!members.error.isEmpty())
        return edit;
    edit = {*known, *path};
    if (rowOf(edit).hasValue)
        readValue(edit, *form, members);
    if (rowOf(edit).hasIndex)
        edit.index = members.takeNumber(indexMember);
    members.refuseOthers();
    return edit;
}

} // namespace

void insertEdits(QJsonObject &object, const Edits &edits) {
    QJsonArray array;
    for (const Edit &edit : edits)
        array.append(toObject(edit));
    object.insert(editsMember, array);
}

Edits takeEdits(JsonMembers &members) {
    const QJsonArray array = members.take(editsMember, QJsonValue::Array).toArray();
    Edits edits;
    for (int i = 0; i < array.size() && members.error.isEmpty(); ++i) {
        const QString place = editsMember % u'[' % QString::number(i) % u']';
        if (!array.at(i).isObject()) {
            members.fail(place, misfit());
            break;
        }
        JsonMembers edit(array.at(i).toObject(), place % u'.');
        edits.append(readEdit(edit));
        members.error = edit.error;
    }
    return members.error.isEmpty() ? edits : Edits();
}

QByteArray toJson(const Edits &edits) {
    QJsonObject object{{formatMember, jsonFormat}};
    insertEdits(object, edits);
    return toText(object);
}

ParsedEdits editsFromJson(const QByteArray &json) {
    JsonMembers members = JsonMembers::ofDocument(json);
    const Edits edits = takeEdits(members);
    members.refuseOthers();
    return {members.error.isEmpty() ? edits : Edits(), members.error};
}

} // namespace Zel::PackageModel
