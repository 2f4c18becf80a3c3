#include <packagemodel/behavior_info_model.h>

#include "behavior_info_data.h"
#include "copies.h"
#include "localized_texts.h"
#include "meta_types.h"

#include <packagemodel/package_info_model.h>
#include <packagemodel/text_conversion.h>

namespace Zel {
namespace {

bool isRootBehavior(const QString &path) {
    return path == QLatin1String(".");
}

template<const Tano::TextMap &(Tano::BehaviorInfo::*texts)() const>
CachedTexts decodeTexts(const Tano::BehaviorInfo &record) {
    return textsFromRecord((record.*texts)());
}

template<const Tano::TextListMap &(Tano::BehaviorInfo::*lists)() const>
CachedLists decodeLists(const Tano::BehaviorInfo &record) {
    return listsFromRecord((record.*lists)());
}

// Other languages are known only while the cache holds them.
template<typename Cache, typename Map>
void useLanguages(const Cache &cache, const Map &field) {
    if (!areBuiltIn(field))
        cache.values();
}

} // namespace

const BehaviorInfoModel::Data::TextField BehaviorInfoModel::Data::nameField{
    &Tano::BehaviorInfo::names,
    &Tano::BehaviorInfo::name,
    &Tano::BehaviorInfo::setName,
    &Tano::BehaviorInfo::removeName,
    &Data::names,
    &BehaviorInfoModel::behaviorNameUpdated};

const BehaviorInfoModel::Data::TextField BehaviorInfoModel::Data::descriptionField{
    &Tano::BehaviorInfo::descriptions,
    &Tano::BehaviorInfo::description,
    &Tano::BehaviorInfo::setDescription,
    &Tano::BehaviorInfo::removeDescription,
    &Data::descriptions,
    &BehaviorInfoModel::behaviorDescriptionUpdated};

BehaviorInfoModel::Data::Data(BehaviorInfoModel *behavior, const Tano::BehaviorInfo &info,
                              PackageInfoModel *package)
    : ChildData(behavior, info)
    , model(behavior)
    , names(record(), decodeTexts<&Tano::BehaviorInfo::names>)
    , descriptions(record(), decodeTexts<&Tano::BehaviorInfo::descriptions>)
    , tags(record(), decodeLists<&Tano::BehaviorInfo::languagesToTags>)
    , triggerSentences(record(), decodeLists<&Tano::BehaviorInfo::languagesToTriggerSentences>)
    , loadingResponses(record(), decodeLists<&Tano::BehaviorInfo::languagesToLoadingResponses>)
    , package(package) {
    useLanguages(names, info.names());
    useLanguages(descriptions, info.descriptions());
    useLanguages(tags, info.languagesToTags());
    useLanguages(triggerSentences, info.languagesToTriggerSentences());
    useLanguages(loadingResponses, info.languagesToLoadingResponses());
}

BehaviorInfoModel::Data::Data(BehaviorInfoModel *behavior, const Data &other)
    : ChildData(behavior, other.record())
    , model(behavior)
    , names(record(), other.names)
    , descriptions(record(), other.descriptions)
    , tags(record(), other.tags)
    , triggerSentences(record(), other.triggerSentences)
    , loadingResponses(record(), other.loadingResponses)
    , package(other.package) {
}

const QString &BehaviorInfoModel::natureNone() {
    static const QString nature;
    return nature;
}

const QString &BehaviorInfoModel::natureInteractive() {
    static const QString nature = fromUtf8(Tano::BehaviorInfo::natureInteractive());
    return nature;
}

const QString &BehaviorInfoModel::natureSolitary() {
    static const QString nature = fromUtf8(Tano::BehaviorInfo::natureSolitary());
    return nature;
}

QString BehaviorInfoModel::prettyPath(const QString &path) {
    return isRootBehavior(path) ? rootBehaviorPrettyPath() : path;
}

const QString &BehaviorInfoModel::rootBehaviorPrettyPath() {
    static const QString path = QStringLiteral(". (%1)").arg(QLatin1String("root behavior"));
    return path;
}

BehaviorInfoModel::BehaviorInfoModel(const Tano::BehaviorInfo &info, PackageInfoModel *package,
                                     QObject *parent)
    : QObject(parent ? parent : package)
    , m_data(std::make_unique<Data>(this, info, package)) {
    registerMetaTypes();
}

BehaviorInfoModel::BehaviorInfoModel(const BehaviorInfoModel &other)
    : QObject(nullptr)
    , m_data(std::make_unique<Data>(this, *other.m_data)) {
}

BehaviorInfoModel::~BehaviorInfoModel() = default;

PackageInfoModel *BehaviorInfoModel::parentPackage() const {
    return m_data->package;
}

void BehaviorInfoModel::setParentPackage(PackageInfoModel *package) {
    setParent(package);
    m_data->package = package;
}

Tano::BehaviorInfo BehaviorInfoModel::toBehaviorInfo() const {
    return m_data->record();
}

QString BehaviorInfoModel::path() const {
    return fromUtf8(m_data->record().path());
}

QString BehaviorInfoModel::prettyPath() const {
    return prettyPath(path());
}

QString BehaviorInfoModel::pathWithDefaultBhvSuffix() const {
    const QString ownPath = path();
    return isRootBehavior(ownPath) ? QStringLiteral("behavior.bhv") : ownPath;
}

QString BehaviorInfoModel::nature() const {
    return fromUtf8(m_data->record().nature());
}

QString BehaviorInfoModel::name(const RobotLanguage &lang) const {
    return valueFor(m_data->names.values(), lang);
}

const Language::LocalizedStrings &BehaviorInfoModel::names() const {
    return m_data->names.values();
}

QString BehaviorInfoModel::description(const RobotLanguage &lang) const {
    return valueFor(m_data->descriptions.values(), lang);
}

const Language::LocalizedStrings &BehaviorInfoModel::descriptions() const {
    return m_data->descriptions.values();
}

QSet<QString> BehaviorInfoModel::permissions() const {
    QSet<QString> permissions;
    for (const std::string &permission : m_data->record().permissions())
        permissions.insert(fromUtf8(permission));
    return permissions;
}

QStringList BehaviorInfoModel::permissionList() const {
    return listFromRecord(m_data->record().permissions());
}

QStringList BehaviorInfoModel::purposes() const {
    QStringList purposes;
    for (const auto &entry : m_data->record().purposesToConditions())
        purposes.append(fromUtf8(entry.first));
    return purposes;
}

bool BehaviorInfoModel::hasPermission(const QString &permType) const {
    return m_data->record().hasPermission(toUtf8(permType));
}

bool BehaviorInfoModel::isUserRequestable() const {
    return m_data->record().isUserRequestable();
}

void BehaviorInfoModel::setPath(const QString &newPath) {
    if (path() == newPath)
        return;
    const QString path = copyOf(newPath);
    m_data->editKey().setPath(toUtf8(path));
    m_data->announce(&BehaviorInfoModel::pathUpdated, path);
}

void BehaviorInfoModel::setNature(const QString &newNature) {
    if (nature() == newNature)
        return;
    const QString nature = copyOf(newNature);
    m_data->edit().setNature(toUtf8(nature));
    m_data->announce(&BehaviorInfoModel::natureUpdated, nature);
}

void BehaviorInfoModel::setName(const QString &name, const RobotLanguage &lang) {
    setText(*m_data, Data::nameField, name, lang);
}

void BehaviorInfoModel::setDescription(const QString &desc, const RobotLanguage &lang) {
    setText(*m_data, Data::descriptionField, desc, lang);
}

bool BehaviorInfoModel::removeName(const RobotLanguage &lang) {
    return removeText(*m_data, Data::nameField, lang);
}

bool BehaviorInfoModel::removeDescription(const RobotLanguage &lang) {
    return removeText(*m_data, Data::descriptionField, lang);
}

void BehaviorInfoModel::setUserRequestable(bool userRequestable) {
    if (isUserRequestable() == userRequestable)
        return;
    m_data->edit().setUserRequestable(userRequestable);
    m_data->announce(&BehaviorInfoModel::userRequestableChanged, userRequestable);
}

bool BehaviorInfoModel::addPermission(const QString &permType) {
    return insertPermission(permType, static_cast<int>(m_data->record().permissions().size()));
}

bool BehaviorInfoModel::insertPermission(const QString &permType, int idx) {
    const QString permission = copyOf(permType);
    if (hasPermission(permission))
        return false;
    m_data->edit().insertPermission(toUtf8(permission), idx);
    m_data->announce(&BehaviorInfoModel::permissionAdded, permission);
    return true;
}

bool BehaviorInfoModel::removePermission(const QString &permType) {
    const QString permission = copyOf(permType);
    if (!hasPermission(permission) || !m_data->edit().removePermission(toUtf8(permission)))
        return false;
    m_data->announce(&BehaviorInfoModel::permissionRemoved, permission);
    return true;
}

} // namespace Zel
