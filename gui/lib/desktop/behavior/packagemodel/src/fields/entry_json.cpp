#include <packagemodel/package_json.h>

#include "field_tables.h"

#include <tano/manifest_reader.h>

namespace Zel::PackageModel {
namespace {

const QLatin1String manifestMember("manifest");

QString sentence(const char *text) {
    return QCoreApplication::translate("Zel::PackageModel", text);
}

// The list of the package for entries of a kind.
const FieldRow<PackageInfoModel> &listRowOf(FieldKind kind) {
    const auto &rows = packageFields();
    const auto row = std::find_if(rows.begin(), rows.end(),
                                  [&](const auto &each) { return each->kind() == kind; });
    Q_ASSERT(row != rows.end());
    return **row;
}

// An otherwise empty package with entries of one kind, since only the model can read and write
// entries.
class EntryPackage {
public:
    explicit EntryPackage(FieldKind kind)
        : m_row(listRowOf(kind))
        , m_path(FieldPath().field(m_row.name())) {
        m_package.setUid(QStringLiteral("entry"));
        m_package.setVersion(SoftwareVersionUtils::fromString(QStringLiteral("1")));
    }

    void insert(const FieldValue &entry) { targetOf(m_package, m_path).list->insert(0, entry); }
    QJsonObject toJson() { return m_row.toJson(m_package).toArray().first().toObject(); }
    std::string toManifest() {
        m_package.syncRecord();
        return m_package.packageInfo().saveToManifestContent();
    }
    std::optional<FieldValue> entry() {
        m_package.syncRecord();
        const auto all = entries(&m_package, m_path);
        return all.size() == 1 ? std::optional(all.front()) : std::nullopt;
    }

    std::optional<FieldValue> read(const QJsonObject &object, QString &error);
    std::optional<FieldValue> readManifest(const QJsonValue &manifest, QString &error);

private:
    PackageInfoModel m_package;
    const FieldRow<PackageInfoModel> &m_row;
    FieldPath m_path;
};

// Creates the edits that set the fields of an empty entry from a JSON object.
class EntryEdits {
public:
    EntryEdits(const FieldPath &entry, const QJsonObject &object) {
        for (auto member = object.begin(); member != object.end(); ++member) {
            const FieldPath path = FieldPath(entry).field(toUtf8(member.key()));
            if (member->isObject())
                addByKey(path, member->toObject());
            else
                add(path, *member);
        }
    }

    Edits edits;
    QString error;

private:
    void addByKey(const FieldPath &path, const QJsonObject &values) {
        for (auto value = values.begin(); value != values.end(); ++value)
            add(FieldPath(path).key(toUtf8(value.key())), *value);
    }
    void add(const FieldPath &path, const QJsonValue &json) {
        const QJsonArray items = json.toArray();
        for (int i = 0; i < items.size(); ++i)
            add({Edit::Action::Insert, path, {}, i}, items.at(i));
        if (!json.isArray())
            add({Edit::Action::Set, path}, json);
    }
    void add(Edit edit, const QJsonValue &json) {
        QString reason;
        if (const auto form = formOf(edit.path, &reason))
            edit.value = valueFromJson(form->kind, json, &reason);
        if (!edit.value && error.isEmpty())
            error = fromUtf8(edit.path.toString()) % QStringLiteral(": ") % reason;
        edits.append(edit);
    }
};

std::optional<FieldValue> EntryPackage::read(const QJsonObject &object, QString &error) {
    QJsonObject others = object;
    FieldPath entryPath = m_path;
    if (const char *keyName = m_row.keyName()) {
        const QJsonValue key = others.take(QLatin1String(keyName));
        if (!key.isString()) {
            error = sentence(QT_TRANSLATE_NOOP("Zel::PackageModel", "Its '%1' is missing."))
                        .arg(QLatin1String(keyName));
            return {};
        }
        insert(m_row.emptyEntry(key.toString()));
        entryPath.key(toUtf8(key.toString()));
    } else {
        insert(m_row.emptyEntry({}));
        entryPath.index(0);
    }
    const EntryEdits fields(entryPath, others);
    error = fields.error.isEmpty() ? apply(&m_package, fields.edits).error : fields.error;
    return error.isEmpty() ? entry() : std::nullopt;
}

std::optional<Tano::PackageInfo> packageOf(const QJsonValue &manifest, QString &error) {
    Tano::PackageInfo record;
    Tano::ManifestReader reader;
    if (reader.readContent(toUtf8(manifest.toString()), record))
        return record;
    error = fromUtf8(reader.errorMessage());
    return {};
}

std::optional<FieldValue> EntryPackage::readManifest(const QJsonValue &manifest, QString &error) {
    const auto record = packageOf(manifest, error);
    if (!record)
        return {};
    m_package = PackageInfoModel(*record);
    auto read = entry();
    if (!read)
        error = sentence(QT_TRANSLATE_NOOP("Zel::PackageModel",
                                           "The manifest must have one entry of '%1'."))
                    .arg(QLatin1String(m_row.name()));
    return read;
}

bool isEntry(FieldKind kind) {
    return kind >= FieldKind::RobotRequirement && kind != FieldKind::Package;
}

std::optional<FieldValue> readValue(FieldKind kind, const QJsonValue &json, QString &error) {
    const QJsonObject object = json.toObject();
    const QJsonValue manifest = object.value(manifestMember);
    const bool isManifest = manifest.isString() && object.size() == 1;
    if (kind == FieldKind::Package && isManifest)
        return packageOf(manifest, error);
    if (isEntry(kind) && json.isObject())
        return isManifest ? EntryPackage(kind).readManifest(manifest, error)
                          : EntryPackage(kind).read(object, error);
    if (kind == FieldKind::Flag && json.isBool())
        return json.toBool();
    if (json.isString() && (kind == FieldKind::Text || kind == FieldKind::Version))
        return parsedValue(kind, json.toString(), &error);
    error = sentence(QT_TRANSLATE_NOOP("Zel::PackageModel", "The value has the wrong type."));
    return {};
}

} // namespace

QJsonValue toJson(const FieldValue &value) {
    const auto kind = static_cast<FieldKind>(value.index());
    if (const auto *flag = std::get_if<bool>(&value))
        return *flag;
    if (const auto *record = std::get_if<Tano::PackageInfo>(&value))
        return QJsonObject{{manifestMember, fromUtf8(record->saveToManifestContent())}};
    if (!isEntry(kind))
        return printed(value);
    EntryPackage package(kind);
    package.insert(value);
    const QJsonObject fields = package.toJson();
    QString error;
    const auto same = EntryPackage(kind).read(fields, error);
    const std::string manifest = same == value ? std::string() : package.toManifest();
    return manifest.empty() ? fields : QJsonObject{{manifestMember, fromUtf8(manifest)}};
}

std::optional<FieldValue> valueFromJson(FieldKind kind, const QJsonValue &json, QString *error) {
    QString reason;
    auto value = readValue(kind, json, reason);
    if (error)
        *error = reason;
    return value;
}

} // namespace Zel::PackageModel
