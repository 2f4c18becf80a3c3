#include "field_tables.h"

#include "../package_texts.h"
#include "field_lists.h"

namespace Zel::PackageModel {
namespace {

template<typename Row, typename Owner, typename... Arguments>
void add(FieldTable<Owner> &table, Arguments &&...arguments) {
    table.push_back(std::make_unique<Row>(std::forward<Arguments>(arguments)...));
}

FieldValue toRecord(const BehaviorInfoModel &behavior) {
    return behavior.toBehaviorInfo();
}
FieldValue toRecord(const DialogInfoModel &dialog) {
    return dialog.toDialogInfo();
}
FieldValue toRecord(const ServiceInfoModel &service) {
    return service.toPackageService();
}

template<typename Child>
FieldValue recordOf(const Child &child) {
    return toRecord(child);
}

// One of the two lists of languages.
struct LanguageOperations {
    const RobotLanguages &(PackageInfoModel::*all)() const;
    void (PackageInfoModel::*insert)(int index, const RobotLanguage &language);
    void (PackageInfoModel::*remove)(const RobotLanguage &language);
    bool (PackageInfoModel::*move)(int from, int to);
    bool isSupported; // its removal drops the topics of dialogs
};

constexpr LanguageOperations supported{
    &PackageInfoModel::supportedLanguages, &PackageInfoModel::insertSupportedLanguage,
    &PackageInfoModel::removeSupportedLanguage, &PackageInfoModel::moveSupportedLanguage, true};
constexpr LanguageOperations described{&PackageInfoModel::descriptionLanguages,
                                       &PackageInfoModel::insertDescriptionLanguage,
                                       &PackageInfoModel::removeDescriptionLanguage,
                                       &PackageInfoModel::moveDescriptionLanguage, false};

class LanguageItems : public FieldList {
public:
    LanguageItems(PackageInfoModel &package, const LanguageOperations &operations)
        : m_package(&package)
        , m_operations(operations) {}

    int size() const override { return static_cast<int>(all().size()); }
    FieldValue at(int index) const override { return all().at(std::size_t(index)).isoCode(); }
    /// Finds by code, else by index.
    int find(const Selectors &selectors) const override {
        const int index = selectors.size() == 1 ? indexOf(fromUtf8(selectors.front().text)) : -1;
        return index < 0 ? indexIn(selectors, size()) : index;
    }
    std::optional<QStringList> keys() const override {
        QStringList codes;
        for (const RobotLanguage &language : all())
            codes += language.isoCode();
        return codes;
    }
    void select(FieldPath &path, int index) const override {
        path.key(toUtf8(std::get<QString>(at(index))));
    }
    QString refusal(const FieldValue &value, int replaced) const override {
        const auto *code = std::get_if<QString>(&value);
        if (!code || code->isEmpty() || replaced >= 0)
            return misfit();
        return indexOf(*code) >= 0 ? taken(*code) : QString();
    }
    void insert(int index, const FieldValue &value) override {
        if (m_package)
            (m_package->*m_operations.insert)(index, languageOfCode(std::get<QString>(value)));
    }
    void replace(int, const FieldValue &) override {}
    void removeAt(int index) override {
        if (m_package)
            (m_package->*m_operations.remove)(RobotLanguage(all().at(std::size_t(index))));
    }
    void move(int from, int to) override {
        if (m_package)
            (m_package->*m_operations.move)(from, to);
    }
    Edits lostWith(int index) const override;
    Edits gainedWith(const FieldValue &value) const override;

private:
    RobotLanguages all() const {
        return m_package ? (m_package->*m_operations.all)() : RobotLanguages();
    }
    int indexOf(const QString &code) const {
        const RobotLanguages languages = all();
        const auto found =
            std::find_if(languages.begin(), languages.end(),
                         [&](const RobotLanguage &each) { return each.isoCode() == code; });
        return found == languages.end() ? -1 : static_cast<int>(found - languages.begin());
    }

    QPointer<PackageInfoModel> m_package;
    const LanguageOperations &m_operations;
};

class LanguagesRow : public ListRow<PackageInfoModel> {
public:
    LanguagesRow(const char *name, const FieldLabels &labels, const LanguageOperations &operations)
        : ListRow(name, labels, FieldKind::Text, "[CODE]")
        , m_operations(operations) {}

    void list(PackageInfoModel &package, const FieldPath &base,
              QVector<Field> &fields) const override {
        for (const RobotLanguage &language : (package.*m_operations.all)())
            fields.append({pathIn(base).key(toUtf8(language.isoCode())), FieldKind::Text,
                           language.isoCode(), label()});
    }
    QJsonValue toJson(PackageInfoModel &package) const override {
        return QJsonArray::fromStringList(*LanguageItems(package, m_operations).keys());
    }
    void compare(PackageInfoModel &from, PackageInfoModel &to, const FieldPath &base,
                 Edits &edits) const override {
        const QStringList before = *LanguageItems(from, m_operations).keys();
        const QStringList after = *LanguageItems(to, m_operations).keys();
        SequenceMatch match(int(before.size()), int(after.size()));
        match.pairEqual(before, after);
        const auto newCode = [&](int index) { return FieldValue(after.at(index)); };
        appendEdits({pathIn(base), match, before, after, newCode}, edits);
    }
    bool changesOthers() const override { return m_operations.isSupported; }

protected:
    std::shared_ptr<FieldList> makeList(PackageInfoModel &package) const override {
        return std::make_shared<LanguageItems>(package, m_operations);
    }

private:
    const LanguageOperations &m_operations;
};

class PermissionItems : public FieldList {
public:
    explicit PermissionItems(BehaviorInfoModel &behavior)
        : m_behavior(&behavior) {}

    int size() const override { return static_cast<int>(all().size()); }
    FieldValue at(int index) const override { return all().at(index); }
    /// Permissions are distinct, so they may also be selected by name.
    int find(const Selectors &selectors) const override {
        const int index = indexIn(selectors, size());
        return index < 0 && selectors.size() == 1 && !selectors.front().toIndex()
                   ? int(all().indexOf(fromUtf8(selectors.front().text)))
                   : index;
    }
    void select(FieldPath &path, int index) const override { path.index(index); }
    QString refusal(const FieldValue &value, int replaced) const override {
        const auto *permission = std::get_if<QString>(&value);
        if (!permission)
            return misfit();
        const int present = static_cast<int>(all().indexOf(*permission));
        return present >= 0 && present != replaced ? taken(*permission) : QString();
    }
    void insert(int index, const FieldValue &value) override {
        if (m_behavior)
            m_behavior->insertPermission(std::get<QString>(value), index);
    }
    void replace(int index, const FieldValue &value) override {
        removeAt(index);
        insert(index, value);
    }
    void removeAt(int index) override {
        if (m_behavior)
            m_behavior->removePermission(all().at(index));
    }
    void move(int from, int to) override {
        const FieldValue moved = at(from);
        removeAt(from);
        insert(to, moved);
    }

private:
    QStringList all() const { return m_behavior ? m_behavior->permissionList() : QStringList(); }

    QPointer<BehaviorInfoModel> m_behavior;
};

class PermissionsRow : public ListRow<BehaviorInfoModel> {
public:
    PermissionsRow(const char *name, const FieldLabels &labels)
        : ListRow(name, labels, FieldKind::Text, "[N]") {}

    void list(BehaviorInfoModel &behavior, const FieldPath &base,
              QVector<Field> &fields) const override {
        const QStringList permissions = behavior.permissionList();
        for (int i = 0; i < permissions.size(); ++i)
            fields.append({pathIn(base).index(i), FieldKind::Text, permissions.at(i), label()});
    }
    QJsonValue toJson(BehaviorInfoModel &behavior) const override {
        return QJsonArray::fromStringList(behavior.permissionList());
    }
    void compare(BehaviorInfoModel &from, BehaviorInfoModel &to, const FieldPath &base,
                 Edits &edits) const override {
        appendTextSetEdits(from.permissionList(), to.permissionList(), pathIn(base), edits);
    }

protected:
    std::shared_ptr<FieldList> makeList(BehaviorInfoModel &behavior) const override {
        return std::make_shared<PermissionItems>(behavior);
    }
};

class PropertiesRow : public FieldRow<ServiceInfoModel> {
public:
    PropertiesRow(const char *name, const char *label)
        : FieldRow(name, label, FieldKind::Text, "[NAME]") {}

    void list(ServiceInfoModel &service, const FieldPath &base,
              QVector<Field> &fields) const override {
        const auto properties = service.properties();
        for (auto it = properties.begin(); it != properties.end(); ++it)
            fields.append(
                {pathIn(base).key(toUtf8(it.key())), FieldKind::Text, it.value(), label()});
    }
    FieldTarget follow(ServiceInfoModel &service, const Walk &walk) const override {
        if (!walk.isLast() || walk.selectors().size() != 1)
            return {};
        const QString property = fromUtf8(walk.selectors().front().text);
        const auto properties = service.properties();
        std::optional<FieldValue> current;
        if (properties.contains(property))
            current = properties.value(property);
        const Kept<ServiceInfoModel> kept(service);
        const auto set = [kept, property](const FieldValue &value) {
            if (kept.get())
                kept.get()->setServiceProperty(property, std::get<QString>(value));
        };
        const auto remove = [kept, property] {
            if (kept.get())
                kept.get()->removeServiceProperty(property);
        };
        return {FieldCell{FieldKind::Text, current, set, remove}};
    }
    QJsonValue toJson(ServiceInfoModel &service) const override {
        QJsonObject values;
        const auto properties = service.properties();
        for (auto it = properties.begin(); it != properties.end(); ++it)
            values.insert(it.key(), it.value());
        return values;
    }
    void compare(ServiceInfoModel &from, ServiceInfoModel &to, const FieldPath &base,
                 Edits &edits) const override {
        appendTextEdits(toJson(from).toObject(), toJson(to).toObject(), pathIn(base), edits);
    }
};

Edits LanguageItems::lostWith(int index) const {
    Edits edits;
    if (!m_operations.isSupported)
        return edits;
    const RobotLanguage language = all().at(std::size_t(index));
    QHash<QString, int> counts;
    const auto dialogs = m_package->dialogs();
    for (const DialogInfoModel *dialog : dialogs) {
        FieldPath path;
        path.field("dialogs").entry(toUtf8(dialog->topicName()), counts[dialog->topicName()]++);
        path.field("topics").key(toUtf8(language.isoCode()));
        for (const auto &[topic, each] : dialog->topics()) {
            if (each == language)
                edits.append({Edit::Action::Set, path, FieldValue(topic)});
        }
    }
    return edits +
           gainedWith(at(index)); // a language that is added back becomes a description language
}

// Adding a supported language also adds it to the description languages.
Edits LanguageItems::gainedWith(const FieldValue &value) const {
    const QString code = std::get<QString>(value);
    if (!m_operations.isSupported || m_package->hasLanguageDescription(languageOfCode(code)))
        return {};
    FieldPath path;
    path.field("descriptionLanguages").key(toUtf8(code));
    return {{Edit::Action::Remove, path}};
}

template<typename Requirement>
const RequirementOperations<Requirement> &operationsOf();
template<>
const RequirementOperations<RobotRequirement> &operationsOf<RobotRequirement>();
template<>
const RequirementOperations<BrioRequirement> &operationsOf<BrioRequirement>();

// A field of a requirement.
template<typename Requirement, typename Value>
void addMember(FieldTable<RequirementPlace<Requirement>> &table, const char *name,
               const char *label, Value Requirement::*member) {
    using Place = RequirementPlace<Requirement>;
    const auto get = [member](const Place &place) {
        return (place.package.*operationsOf<Requirement>().all)().value(place.index).*member;
    };
    const auto set = [member](Place &place, const Value &value) {
        Requirement requirement =
            (place.package.*operationsOf<Requirement>().all)().value(place.index);
        requirement.*member = value;
        (place.package.*operationsOf<Requirement>().update)(place.index, requirement);
    };
    add<CellRow<Place, Value>>(table, name, label, get, set);
}

const FieldTable<RequirementPlace<RobotRequirement>> &robotFields() {
    static const auto rows = [] {
        FieldTable<RequirementPlace<RobotRequirement>> table;
        using R = RobotRequirement;
        addMember(table, "model", QT_TRANSLATE_NOOP("Zel::PackageModel", "Model"), &R::model);
        addMember(table, "minHeadVersion",
                  QT_TRANSLATE_NOOP("Zel::PackageModel", "Lowest head version"),
                  &R::minHeadVersion);
        addMember(table, "maxHeadVersion",
                  QT_TRANSLATE_NOOP("Zel::PackageModel", "Highest head version"),
                  &R::maxHeadVersion);
        addMember(table, "minBodyVersion",
                  QT_TRANSLATE_NOOP("Zel::PackageModel", "Lowest body version"),
                  &R::minBodyVersion);
        addMember(table, "maxBodyVersion",
                  QT_TRANSLATE_NOOP("Zel::PackageModel", "Highest body version"),
                  &R::maxBodyVersion);
        return table;
    }();
    return rows;
}

const FieldTable<RequirementPlace<BrioRequirement>> &brioFields() {
    static const auto rows = [] {
        FieldTable<RequirementPlace<BrioRequirement>> table;
        addMember(table, "minVersion", QT_TRANSLATE_NOOP("Zel::PackageModel", "Lowest version"),
                  &BrioRequirement::minVersion);
        addMember(table, "maxVersion", QT_TRANSLATE_NOOP("Zel::PackageModel", "Highest version"),
                  &BrioRequirement::maxVersion);
        return table;
    }();
    return rows;
}

template<>
const RequirementOperations<RobotRequirement> &operationsOf<RobotRequirement>() {
    using P = PackageInfoModel;
    static const RequirementOperations<RobotRequirement> operations{
        &P::robotRequirements,
        &P::insertRobotRequirement,
        &P::updateRobotRequirement,
        &P::removeRobotRequirement,
        &P::moveRobotRequirement,
        &robotFields,
        QT_TRANSLATE_NOOP("Zel::PackageModel", "%1 of robot requirement %2")};
    return operations;
}

template<>
const RequirementOperations<BrioRequirement> &operationsOf<BrioRequirement>() {
    using P = PackageInfoModel;
    static const RequirementOperations<BrioRequirement> operations{
        &P::brioRequirements,
        &P::insertBrioRequirement,
        &P::updateBrioRequirement,
        &P::removeBrioRequirement,
        &P::moveBrioRequirement,
        &brioFields,
        QT_TRANSLATE_NOOP("Zel::PackageModel", "%1 of Brio requirement %2")};
    return operations;
}

std::vector<RobotLanguage> languagesOf(const Language::LocalizedStringLists &lists) {
    std::vector<RobotLanguage> languages;
    for (const auto &entry : lists)
        languages.push_back(entry.second);
    return languages;
}

const FieldTable<BehaviorInfoModel> &behaviorFields() {
    using B = BehaviorInfoModel;
    using Texts = TextsRow<B>;
    using Lists = BehaviorTextsRow<RobotLanguage>;
    static const auto rows = [] {
        FieldTable<B> table;
        add<KeyRow<B>>(table, "path", QT_TRANSLATE_NOOP("Zel::PackageModel", "Path"), &B::path,
                       &B::setPath, &PackageInfoModel::behavior, &recordOf<B>);
        add<CellRow<B, QString>>(table, "nature", QT_TRANSLATE_NOOP("Zel::PackageModel", "Nature"),
                                 &B::nature, &B::setNature);
        add<CellRow<B, bool>>(table, "userRequestable",
                              QT_TRANSLATE_NOOP("Zel::PackageModel", "User requests"),
                              &B::isUserRequestable, &B::setUserRequestable);
        add<PermissionsRow>(table, "permissions",
                            FieldLabels(QT_TRANSLATE_NOOP("Zel::PackageModel", "Permission"),
                                        QT_TRANSLATE_NOOP("Zel::PackageModel", "Permissions")));
        add<BehaviorTextsRow<QString>>(
            table, "conditions",
            FieldLabels(QT_TRANSLATE_NOOP("Zel::PackageModel", "Condition"),
                        QT_TRANSLATE_NOOP("Zel::PackageModel", "Conditions")),
            "[PURPOSE][N]",
            [](const B &behavior) {
                const QStringList purposes = behavior.purposes();
                return std::vector<QString>(purposes.begin(), purposes.end());
            },
            BehaviorTexts<QString>::Operations{&B::conditions, &B::addCondition,
                                               &B::insertCondition, &B::updateCondition,
                                               &B::removeCondition});
        add<Texts>(table, "names", QT_TRANSLATE_NOOP("Zel::PackageModel", "Name"), &B::names,
                   &B::setName, &B::removeName);
        add<Texts>(table, "descriptions", QT_TRANSLATE_NOOP("Zel::PackageModel", "Description"),
                   &B::descriptions, &B::setDescription, &B::removeDescription);
        add<Lists>(
            table, "tags",
            FieldLabels(QT_TRANSLATE_NOOP("Zel::PackageModel", "Tag"),
                        QT_TRANSLATE_NOOP("Zel::PackageModel", "Tags")),
            "[CODE][N]", [](const B &behavior) { return languagesOf(behavior.languagesToTags()); },
            BehaviorTexts<RobotLanguage>::Operations{&B::tags, &B::addTag, &B::insertTag,
                                                     &B::updateTag, &B::removeTag});
        add<Lists>(
            table, "triggerSentences",
            FieldLabels(QT_TRANSLATE_NOOP("Zel::PackageModel", "Trigger sentence"),
                        QT_TRANSLATE_NOOP("Zel::PackageModel", "Trigger sentences")),
            "[CODE][N]",
            [](const B &behavior) { return languagesOf(behavior.languagesToTriggerSentences()); },
            BehaviorTexts<RobotLanguage>::Operations{
                &B::triggerSentences, &B::addTriggerSentence, &B::insertTriggerSentence,
                &B::updateTriggerSentence, &B::removeTriggerSentence});
        add<Lists>(
            table, "loadingResponses",
            FieldLabels(QT_TRANSLATE_NOOP("Zel::PackageModel", "Loading response"),
                        QT_TRANSLATE_NOOP("Zel::PackageModel", "Loading responses")),
            "[CODE][N]",
            [](const B &behavior) { return languagesOf(behavior.languagesToLoadingResponses()); },
            BehaviorTexts<RobotLanguage>::Operations{
                &B::loadingResponses, &B::addLoadingResponse, &B::insertLoadingResponse,
                &B::updateLoadingResponse, &B::removeLoadingResponse});
        return table;
    }();
    return rows;
}

const FieldTable<DialogInfoModel> &dialogFields() {
    using D = DialogInfoModel;
    static const auto rows = [] {
        FieldTable<D> table;
        add<KeyRow<D>>(table, "topicName", QT_TRANSLATE_NOOP("Zel::PackageModel", "Topic name"),
                       &D::topicName, &D::setTopicName, &PackageInfoModel::dialog, &recordOf<D>);
        add<CellRow<D, QString>>(table, "typeVersion",
                                 QT_TRANSLATE_NOOP("Zel::PackageModel", "Type version"),
                                 &D::typeVersion, &D::setTypeVersion);
        add<TextsRow<D>>(
            table, "topics", QT_TRANSLATE_NOOP("Zel::PackageModel", "Topic file"), &D::topics,
            [](D &dialog, const QString &path, const RobotLanguage &language) {
                dialog.setTopic(language, path);
            },
            &D::removeTopic);
        return table;
    }();
    return rows;
}

const FieldTable<ServiceInfoModel> &serviceFields() {
    using S = ServiceInfoModel;
    static const auto rows = [] {
        FieldTable<S> table;
        add<KeyRow<S>>(table, "name", QT_TRANSLATE_NOOP("Zel::PackageModel", "Name"), &S::name,
                       &S::setName, &PackageInfoModel::service, &recordOf<S>);
        add<CellRow<S, bool>>(table, "autoRun", QT_TRANSLATE_NOOP("Zel::PackageModel", "Autostart"),
                              &S::isAutoRun, &S::setAutoRun);
        add<CellRow<S, QString>>(table, "execStart",
                                 QT_TRANSLATE_NOOP("Zel::PackageModel", "Command"), &S::execStart,
                                 &S::setExecStart);
        add<PropertiesRow>(table, "properties", QT_TRANSLATE_NOOP("Zel::PackageModel", "Property"));
        return table;
    }();
    return rows;
}

using P = PackageInfoModel;

const EntryKind<BehaviorInfoModel> behaviorEntries{
    &P::behaviors,
    &BehaviorInfoModel::path,
    &recordOf<BehaviorInfoModel>,
    [](const std::string &key) {
        Tano::BehaviorInfo record;
        record.setPath(key);
        return FieldValue(record);
    },
    [](P &package, int index, const FieldValue &record) {
        package.insertBehavior(index, std::get<Tano::BehaviorInfo>(record));
    },
    &P::removeBehavior,
    &P::moveBehavior,
    [](const FieldValue &value) { return std::holds_alternative<Tano::BehaviorInfo>(value); },
    &behaviorFields};

const EntryKind<DialogInfoModel> dialogEntries{
    &P::dialogs,
    &DialogInfoModel::topicName,
    &recordOf<DialogInfoModel>,
    [](const std::string &key) {
        Tano::DialogInfo record;
        record.setTopicName(key);
        return FieldValue(record);
    },
    [](P &package, int index, const FieldValue &record) {
        package.insertDialog(index, std::get<Tano::DialogInfo>(record));
    },
    &P::removeDialog,
    &P::moveDialog,
    [](const FieldValue &value) { return std::holds_alternative<Tano::DialogInfo>(value); },
    &dialogFields};

const EntryKind<ServiceInfoModel> serviceEntries{
    &P::services,
    &ServiceInfoModel::name,
    &recordOf<ServiceInfoModel>,
    [](const std::string &key) {
        Tano::PackageService record;
        record.name = key;
        return FieldValue(record);
    },
    [](P &package, int index, const FieldValue &record) {
        package.insertService(index, std::get<Tano::PackageService>(record));
    },
    &P::removeService,
    &P::moveService,
    [](const FieldValue &value) { return std::holds_alternative<Tano::PackageService>(value); },
    &serviceFields};

} // namespace

const FieldTable<PackageInfoModel> &packageFields() {
    static const auto rows = [] {
        FieldTable<P> table;
        for (const PackageText *row : packageTexts) {
            add<CellRow<P, QString>>(table, row->field, row->label, row->text, row->setText);
            if (row == &uidText)
                add<CellRow<P, SoftwareVersion>>(table, "version",
                                                 QT_TRANSLATE_NOOP("Zel::PackageModel", "Version"),
                                                 &P::version, &P::setVersion);
        }
        add<LanguagesRow>(
            table, "supportedLanguages",
            FieldLabels(QT_TRANSLATE_NOOP("Zel::PackageModel", "Supported language"),
                        QT_TRANSLATE_NOOP("Zel::PackageModel", "Supported languages")),
            supported);
        add<LanguagesRow>(
            table, "descriptionLanguages",
            FieldLabels(QT_TRANSLATE_NOOP("Zel::PackageModel", "Description language"),
                        QT_TRANSLATE_NOOP("Zel::PackageModel", "Description languages")),
            described);
        add<TextsRow<P>>(table, "names", QT_TRANSLATE_NOOP("Zel::PackageModel", "Name"), &P::names,
                         &P::setName, &P::removeName);
        add<TextsRow<P>>(table, "descriptions",
                         QT_TRANSLATE_NOOP("Zel::PackageModel", "Description"), &P::descriptions,
                         &P::setDescription, &P::removeDescription);
        add<RequirementsRow<RobotRequirement>>(
            table, "robotRequirements",
            FieldLabels(QT_TRANSLATE_NOOP("Zel::PackageModel", "Robot requirement"),
                        QT_TRANSLATE_NOOP("Zel::PackageModel", "Robot requirements")),
            operationsOf<RobotRequirement>());
        add<RequirementsRow<BrioRequirement>>(
            table, "brioRequirements",
            FieldLabels(QT_TRANSLATE_NOOP("Zel::PackageModel", "Brio requirement"),
                        QT_TRANSLATE_NOOP("Zel::PackageModel", "Brio requirements")),
            operationsOf<BrioRequirement>());
        add<EntriesRow<BehaviorInfoModel>>(
            table, "behaviors",
            FieldLabels(QT_TRANSLATE_NOOP("Zel::PackageModel", "Behavior"),
                        QT_TRANSLATE_NOOP("Zel::PackageModel", "Behaviors")),
            FieldKind::Behavior, "[PATH]", behaviorEntries);
        add<EntriesRow<DialogInfoModel>>(
            table, "dialogs",
            FieldLabels(QT_TRANSLATE_NOOP("Zel::PackageModel", "Dialog"),
                        QT_TRANSLATE_NOOP("Zel::PackageModel", "Dialogs")),
            FieldKind::Dialog, "[NAME]", dialogEntries);
        add<EntriesRow<ServiceInfoModel>>(
            table, "services",
            FieldLabels(QT_TRANSLATE_NOOP("Zel::PackageModel", "Service"),
                        QT_TRANSLATE_NOOP("Zel::PackageModel", "Services")),
            FieldKind::Service, "[NAME]", serviceEntries);
        return table;
    }();
    return rows;
}

} // namespace Zel::PackageModel
