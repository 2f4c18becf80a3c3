#include <packagemodel/package_json.h>

#include <packagemodel/text_conversion.h>

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <array>

namespace Zel::PackageModel {
namespace {

const QLatin1String formatMember("format");
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

QString sentence(const char *text) {
    return QCoreApplication::translate("Zel::PackageModel", text);
}

QString misfit() {
    return sentence(QT_TRANSLATE_NOOP("Zel::PackageModel", "The value is of another type."));
}

QJsonObject toObject(const Edit &edit) {
    QJsonObject object{{actionMember, QLatin1String(rowOf(edit).name)},
                       {pathMember, fromUtf8(edit.path.toString())}};
    if (rowOf(edit).hasValue && edit.value)
        object.insert(valueMember, toJson(*edit.value));
    if (rowOf(edit).hasIndex)
        object.insert(indexMember, edit.index);
    return object;
}

// Takes the members of an object one by one; what is left is unknown.
class Members {
public:
    Members(const QJsonObject &object, const QString &place)
        : m_object(object)
        , m_place(place) {}

    QString error;

    QJsonValue take(QLatin1String name, QJsonValue::Type type) {
        if (!error.isEmpty())
            return {};
        const QJsonValue value = m_object.take(name);
        if (value.isUndefined())
            fail(name, sentence(QT_TRANSLATE_NOOP("Zel::PackageModel", "It is missing.")));
        else if (type != QJsonValue::Undefined && value.type() != type)
            fail(name, misfit());
        return value;
    }
    int takeNumber(QLatin1String name) {
        const double number = take(name, QJsonValue::Double).toDouble();
        const bool isIndex = number >= 0 && number <= 1e9 && double(int(number)) == number;
        if (error.isEmpty() && !isIndex)
            fail(name, sentence(QT_TRANSLATE_NOOP("Zel::PackageModel",
                                                  "It must be a whole number, 0 or more.")));
        return isIndex ? int(number) : 0;
    }
    void fail(const QString &name, const QString &reason) {
        error = m_place % name % QStringLiteral(": ") % reason;
    }
    void refuseOthers() {
        if (error.isEmpty() && !m_object.isEmpty())
            fail(m_object.begin().key(),
                 sentence(QT_TRANSLATE_NOOP("Zel::PackageModel", "There is no such member.")));
    }

private:
    QJsonObject m_object;
    QString m_place; // what the names of the members are added to
};

std::optional<Edit::Action> actionNamed(const QString &name) {
    const auto row = std::find_if(actions.begin(), actions.end(), [&](const ActionRow &each) {
        return name == QLatin1String(each.name);
    });
    if (row == actions.end())
        return {};
    return static_cast<Edit::Action>(row - actions.begin());
}

void readValue(Edit &edit, const FieldForm &form, Members &members) {
    QString reason;
    const QJsonValue json = members.take(valueMember, QJsonValue::Undefined);
    if (members.error.isEmpty())
        edit.value = valueFromJson(form.kind, json, &reason);
    if (!reason.isEmpty())
        members.fail(valueMember, reason);
}

Edit readEdit(Members &members) {
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
                     sentence(QT_TRANSLATE_NOOP(
                         "Zel::PackageModel", "It must be 'set', 'insert', 'remove' or 'move'.")));
    else if (!path)
        members.fail(pathMember, sentence(QT_TRANSLATE_NOOP("Zel::PackageModel",
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

QString positionIn(const QByteArray &json, int offset) {
    const QByteArray before = json.left(offset);
    const auto line = before.count('\n') + 1;
    const auto column = QString::fromUtf8(before.mid(before.lastIndexOf('\n') + 1)).size() + 1;
    return QCoreApplication::translate("Zel::PackageModel", "line %1, column %2")
        .arg(QString::number(line), QString::number(column));
}

} // namespace

QByteArray toJson(const Edits &edits) {
    QJsonArray array;
    for (const Edit &edit : edits)
        array.append(toObject(edit));
    // Readers take a U+FEFF at the beginning of a text for a byte order mark.
    return QJsonDocument({{formatMember, jsonFormat}, {editsMember, array}})
        .toJson()
        .replace("\xEF\xBB\xBF", "\\ufeff");
}

ParsedEdits editsFromJson(const QByteArray &json) {
    QJsonParseError fault;
    const QJsonDocument document = QJsonDocument::fromJson(json, &fault);
    if (fault.error != QJsonParseError::NoError)
        return {{},
                sentence(QT_TRANSLATE_NOOP("Zel::PackageModel", "It is not JSON at %1: %2."))
                    .arg(positionIn(json, fault.offset), fault.errorString())};
    Members members(document.object(), {});
    const int format = members.takeNumber(formatMember);
    if (members.error.isEmpty() && format != jsonFormat)
        members.fail(formatMember,
                     sentence(QT_TRANSLATE_NOOP("Zel::PackageModel", "The format %1 is not known."))
                         .arg(format));
    const QJsonArray array = members.take(editsMember, QJsonValue::Array).toArray();
    members.refuseOthers();

    ParsedEdits result{{}, members.error};
    for (int i = 0; i < array.size() && result.error.isEmpty(); ++i) {
        const QString place = editsMember % u'[' % QString::number(i) % u']';
        if (!array.at(i).isObject()) {
            result.error = place % QStringLiteral(": ") % misfit();
            break;
        }
        Members edit(array.at(i).toObject(), place % u'.');
        result.edits.append(readEdit(edit));
        result.error = edit.error;
    }
    if (!result.error.isEmpty())
        result.edits.clear();
    return result;
}

} // namespace Zel::PackageModel
