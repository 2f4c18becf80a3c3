#include "show_json.h"

#include "console/json_text.h"

#include <packagemodel/package_info_model.h>

#include <QJsonArray>
#include <QJsonObject>

#include <algorithm>

namespace ZelPackage {
namespace {

using Zel::SoftwareVersionUtils::toString;

QJsonValue valueOf(const QString &text) {
    return text;
}

QJsonValue valueOf(const QStringList &texts) {
    return QJsonArray::fromStringList(texts);
}

// One text or one list of texts per language.
template<typename Values>
QJsonObject byLanguage(const Values &values) {
    QJsonObject object;
    for (const auto &[value, language] : values)
        object[language.isoCode()] = valueOf(value);
    return object;
}

QJsonArray codesOf(const Zel::RobotLanguages &languages) {
    QJsonArray codes;
    for (const Zel::RobotLanguage &language : languages)
        codes += language.isoCode();
    return codes;
}

template<typename Items, typename ToObject>
QJsonArray arrayOf(const Items &items, ToObject toObject) {
    QJsonArray array;
    for (const auto &item : items)
        array += toObject(item);
    return array;
}

QJsonObject robotRequirement(const Zel::RobotRequirement &requirement) {
    return {{QStringLiteral("model"), requirement.model},
            {QStringLiteral("minHeadVersion"), toString(requirement.minHeadVersion)},
            {QStringLiteral("maxHeadVersion"), toString(requirement.maxHeadVersion)},
            {QStringLiteral("minBodyVersion"), toString(requirement.minBodyVersion)},
            {QStringLiteral("maxBodyVersion"), toString(requirement.maxBodyVersion)}};
}

QJsonObject brioRequirement(const Zel::BrioRequirement &requirement) {
    return {{QStringLiteral("minVersion"), toString(requirement.minVersion)},
            {QStringLiteral("maxVersion"), toString(requirement.maxVersion)}};
}

QJsonObject behaviorObject(const Zel::BehaviorInfoModel *behavior) {
    QStringList permissions = behavior->permissions().values();
    std::sort(permissions.begin(), permissions.end());
    QJsonObject conditions;
    const Tano::BehaviorInfo record = behavior->toBehaviorInfo();
    for (const auto &[purpose, values] : record.purposesToConditions()) {
        const QString key = Zel::fromUtf8(purpose);
        conditions[key] = valueOf(behavior->conditions(key));
    }
    return {
        {QStringLiteral("path"), behavior->path()},
        {QStringLiteral("nature"), behavior->nature()},
        {QStringLiteral("userRequestable"), behavior->isUserRequestable()},
        {QStringLiteral("permissions"), valueOf(permissions)},
        {QStringLiteral("conditions"), conditions},
        {QStringLiteral("names"), byLanguage(behavior->names())},
        {QStringLiteral("descriptions"), byLanguage(behavior->descriptions())},
        {QStringLiteral("tags"), byLanguage(behavior->languagesToTags())},
        {QStringLiteral("triggerSentences"), byLanguage(behavior->languagesToTriggerSentences())},
        {QStringLiteral("loadingResponses"), byLanguage(behavior->languagesToLoadingResponses())}};
}

QJsonObject dialogObject(const Zel::DialogInfoModel *dialog) {
    return {{QStringLiteral("topicName"), dialog->topicName()},
            {QStringLiteral("typeVersion"), dialog->typeVersion()},
            {QStringLiteral("topics"), byLanguage(dialog->topics())}};
}

QJsonObject serviceObject(const Zel::ServiceInfoModel *service) {
    QJsonObject properties;
    const Tano::PackageService record = service->toPackageService();
    for (const auto &[name, value] : record.properties)
        properties[Zel::fromUtf8(name)] = Zel::fromUtf8(value);
    return {{QStringLiteral("name"), service->name()},
            {QStringLiteral("execStart"), service->execStart()},
            {QStringLiteral("autoRun"), service->isAutoRun()},
            {QStringLiteral("properties"), properties}};
}

QJsonObject packageObject(const Zel::PackageInfoModel &package) {
    return {
        {QStringLiteral("uid"), package.uid()},
        {QStringLiteral("version"), toString(package.version())},
        {QStringLiteral("typeVersion"), package.typeVersion()},
        {QStringLiteral("installer"), package.installer()},
        {QStringLiteral("author"), package.author()},
        {QStringLiteral("organization"), package.organization()},
        {QStringLiteral("date"), package.date()},
        {QStringLiteral("channel"), package.channel()},
        {QStringLiteral("path"), package.path()},
        {QStringLiteral("supportedLanguages"), codesOf(package.supportedLanguages())},
        {QStringLiteral("descriptionLanguages"), codesOf(package.descriptionLanguages())},
        {QStringLiteral("names"), byLanguage(package.names())},
        {QStringLiteral("descriptions"), byLanguage(package.descriptions())},
        {QStringLiteral("robotRequirements"),
         arrayOf(package.robotRequirements(), robotRequirement)},
        {QStringLiteral("brioRequirements"), arrayOf(package.brioRequirements(), brioRequirement)},
        {QStringLiteral("behaviors"), arrayOf(package.behaviors(), behaviorObject)},
        {QStringLiteral("dialogs"), arrayOf(package.dialogs(), dialogObject)},
        {QStringLiteral("services"), arrayOf(package.services(), serviceObject)}};
}

} // namespace

QString jsonOf(const Zel::PackageInfoModel &package) {
    return jsonText(packageObject(package), QJsonDocument::Indented);
}

} // namespace ZelPackage
