#include <packagemodel/package_info_model.h>

#include "copies.h"
#include "localized_texts.h"
#include "package_info_data.h"
#include "package_texts.h"

#include <algorithm>

namespace Zel {
namespace {

QString textOf(const Tano::PackageInfo &record, const PackageText &row) {
    return fromUtf8((record.*row.recorded)());
}

void setText(PackageInfoModel *model, Tano::PackageInfo &record, const PackageText &row,
             const QString &newText) {
    if (textOf(record, row) == newText)
        return;
    const QString text = copyOf(newText);
    (record.*row.record)(toUtf8(text));
    Q_EMIT(model->*row.updated)(text);
}

int indexOf(const RobotLanguages &languages, const RobotLanguage &language) {
    return static_cast<int>(std::find(languages.begin(), languages.end(), language) -
                            languages.begin());
}

int clampedTo(const RobotLanguages &languages, int index) {
    return std::clamp(index, 0, std::max(static_cast<int>(languages.size()) - 1, 0));
}

// While a removal is announced to the dialogs' receivers, the record lacks a language that the
// cache still has; only if the record's list is complete do the indexes agree.
template<typename Data, typename List>
void moveInRecord(Data &data, const List &list, const RobotLanguage &moved, int from, int to) {
    const std::vector<std::string> codes = (data.record().*list.codes)();
    const RobotLanguages &languages = data.*list.cache;
    const auto isRecorded = [&](const RobotLanguage &language) {
        return std::find(codes.begin(), codes.end(), codeOf(language)) != codes.end();
    };
    if (codes.size() != languages.size()) {
        if (!isRecorded(moved))
            return;
        from =
            static_cast<int>(std::find(codes.begin(), codes.end(), codeOf(moved)) - codes.begin());
        to = static_cast<int>(std::count_if(languages.begin(), languages.begin() + to, isRecorded));
    }
    (data.edit().*list.move)(from, to);
}

template<typename Data, typename List>
bool moveLanguage(PackageInfoModel *model, Data &data, const List &list, int from, int to) {
    const int size = static_cast<int>((data.*list.cache).entries().size());
    if (from < 0 || from >= size || to < 0 || to >= size)
        return false;
    if (from == to)
        return true;
    (data.*list.cache).move(from, to);
    const RobotLanguage moved = (data.*list.cache).entries().at(std::size_t(to));
    moveInRecord(data, list, moved, from, to);
    Q_EMIT(model->*list.moved)(moved, from, to);
    return true;
}

} // namespace

const PackageInfoModel::Data::LanguageList PackageInfoModel::Data::supportedList{
    &Data::supportedLanguages, &Tano::PackageInfo::supportedLanguages,
    &Tano::PackageInfo::moveSupportedLanguage, &PackageInfoModel::languageMoved};

const PackageInfoModel::Data::LanguageList PackageInfoModel::Data::descriptionList{
    &Data::descriptionLanguages, &Tano::PackageInfo::descriptionLanguages,
    &Tano::PackageInfo::moveDescriptionLanguage, &PackageInfoModel::descriptionMoved};

const PackageInfoModel::Data::LocalizedTextField PackageInfoModel::Data::nameField{
    &Tano::PackageInfo::names,
    &Tano::PackageInfo::name,
    &Tano::PackageInfo::setName,
    &Tano::PackageInfo::removeName,
    &Data::names,
    &PackageInfoModel::nameUpdated};

const PackageInfoModel::Data::LocalizedTextField PackageInfoModel::Data::descriptionField{
    &Tano::PackageInfo::descriptions,
    &Tano::PackageInfo::description,
    &Tano::PackageInfo::setDescription,
    &Tano::PackageInfo::removeDescription,
    &Data::descriptions,
    &PackageInfoModel::descriptionUpdated};

const Tano::PackageInfo &PackageInfoModel::packageInfo() const {
    return m_data->record();
}

QString PackageInfoModel::installer() const {
    return textOf(m_data->record(), installerText);
}

void PackageInfoModel::setInstaller(const QString &installer) {
    setText(this, m_data->edit(), installerText, installer);
}

QString PackageInfoModel::uid() const {
    return textOf(m_data->record(), uidText);
}

void PackageInfoModel::setUid(const QString &uid) {
    setText(this, m_data->edit(), uidText, uid);
}

QString PackageInfoModel::typeVersion() const {
    return textOf(m_data->record(), typeVersionText);
}

void PackageInfoModel::setTypeVersion(const QString &typeVersion) {
    setText(this, m_data->edit(), typeVersionText, typeVersion);
}

QString PackageInfoModel::author() const {
    return textOf(m_data->record(), authorText);
}

void PackageInfoModel::setAuthor(const QString &author) {
    setText(this, m_data->edit(), authorText, author);
}

QString PackageInfoModel::organization() const {
    return textOf(m_data->record(), organizationText);
}

void PackageInfoModel::setOrganization(const QString &organization) {
    setText(this, m_data->edit(), organizationText, organization);
}

QString PackageInfoModel::date() const {
    return textOf(m_data->record(), dateText);
}

void PackageInfoModel::setDate(const QString &date) {
    setText(this, m_data->edit(), dateText, date);
}

QString PackageInfoModel::channel() const {
    return textOf(m_data->record(), channelText);
}

void PackageInfoModel::setChannel(const QString &channel) {
    setText(this, m_data->edit(), channelText, channel);
}

QString PackageInfoModel::path() const {
    return textOf(m_data->record(), pathText);
}

void PackageInfoModel::setPath(const QString &path) {
    setText(this, m_data->edit(), pathText, path);
}

SoftwareVersion PackageInfoModel::version() const {
    return m_data->version;
}

void PackageInfoModel::setVersion(const SoftwareVersion &newVersion) {
    SoftwareVersion version = newVersion;
    version.setFieldsCount(3);
    m_data->edit().setVersion(toUtf8(SoftwareVersionUtils::toString(version)));
    m_data->version = version;
    Q_EMIT versionUpdated(version);
}

const RobotLanguages &PackageInfoModel::supportedLanguages() const {
    return m_data->supportedLanguages;
}

bool PackageInfoModel::hasLanguageSupport(const RobotLanguage &language) const {
    return m_data->supportedLanguages.contains(language);
}

void PackageInfoModel::addSupportedLanguage(const RobotLanguage &language) {
    if (hasLanguageSupport(language))
        return;
    const RobotLanguage added = copyOf(language);
    m_data->edit().addSupportedLanguage(codeOf(added));
    m_data->supportedLanguages.append(added);
    const QPointer<PackageInfoModel> living(this);
    const std::uint64_t wholeChanges = m_data->wholeChanges;
    Q_EMIT languageAdded(added);
    if (living && m_data->wholeChanges == wholeChanges)
        addDescriptionLanguage(added);
}

void PackageInfoModel::removeSupportedLanguage(const RobotLanguage &language) {
    if (!hasLanguageSupport(language))
        return;
    const RobotLanguage removed = copyOf(language);
    const QPointer<PackageInfoModel> living(this);
    const std::uint64_t wholeChanges = m_data->wholeChanges;
    m_data->edit().removeSupportedLanguage(codeOf(removed));
    for (const auto &dialog : guarded(dialogs())) {
        if (dialog)
            dialog->removeTopic(removed);
    }
    if (!living || m_data->wholeChanges != wholeChanges || !hasLanguageSupport(removed))
        return; // a receiver has loaded another package, or removed the language itself
    m_data->edit().removeSupportedLanguage(codeOf(removed)); // a receiver may have changed it
    m_data->supportedLanguages.remove(removed);
    Q_EMIT languageRemoved(removed);
}

const RobotLanguages &PackageInfoModel::descriptionLanguages() const {
    return m_data->descriptionLanguages;
}

bool PackageInfoModel::hasLanguageDescription(const RobotLanguage &language) const {
    return m_data->descriptionLanguages.contains(language);
}

void PackageInfoModel::addDescriptionLanguage(const RobotLanguage &language) {
    if (hasLanguageDescription(language))
        return;
    const RobotLanguage added = copyOf(language);
    m_data->edit().addDescriptionLanguage(codeOf(added));
    m_data->descriptionLanguages.append(added);
    Q_EMIT descriptionAdded(added);
}

void PackageInfoModel::removeDescriptionLanguage(const RobotLanguage &language) {
    if (!hasLanguageDescription(language))
        return;
    const RobotLanguage removed = copyOf(language);
    m_data->edit().removeDescriptionLanguage(codeOf(removed));
    m_data->descriptionLanguages.remove(removed);
    Q_EMIT descriptionRemoved(removed);
}

void PackageInfoModel::insertSupportedLanguage(int index, const RobotLanguage &language) {
    const RobotLanguage inserted = copyOf(language);
    const QPointer<PackageInfoModel> living(this);
    addSupportedLanguage(inserted);
    if (living)
        moveSupportedLanguage(indexOf(supportedLanguages(), inserted),
                              clampedTo(supportedLanguages(), index));
}

bool PackageInfoModel::moveSupportedLanguage(int from, int to) {
    return moveLanguage(this, *m_data, Data::supportedList, from, to);
}

void PackageInfoModel::insertDescriptionLanguage(int index, const RobotLanguage &language) {
    const RobotLanguage inserted = copyOf(language);
    const QPointer<PackageInfoModel> living(this);
    addDescriptionLanguage(inserted);
    if (living)
        moveDescriptionLanguage(indexOf(descriptionLanguages(), inserted),
                                clampedTo(descriptionLanguages(), index));
}

bool PackageInfoModel::moveDescriptionLanguage(int from, int to) {
    return moveLanguage(this, *m_data, Data::descriptionList, from, to);
}

QString PackageInfoModel::name(const RobotLanguage &language) const {
    return valueFor(m_data->names, language);
}

const Language::LocalizedStrings &PackageInfoModel::names() const {
    return m_data->names;
}

bool PackageInfoModel::hasNameFor(const RobotLanguage &language) const {
    return !name(language).isEmpty();
}

void PackageInfoModel::setName(const QString &name, const RobotLanguage &language) {
    Zel::setText(*m_data, Data::nameField, name, language);
}

bool PackageInfoModel::removeName(const RobotLanguage &language) {
    return removeText(*m_data, Data::nameField, language);
}

void PackageInfoModel::clearNames() {
    m_data->edit().clearNames();
    m_data->names.clear();
    Q_EMIT namesCleared();
}

QString PackageInfoModel::description(const RobotLanguage &language) const {
    return valueFor(m_data->descriptions, language);
}

const Language::LocalizedStrings &PackageInfoModel::descriptions() const {
    return m_data->descriptions;
}

bool PackageInfoModel::hasDescriptionFor(const RobotLanguage &language) const {
    return !description(language).isEmpty();
}

void PackageInfoModel::setDescription(const QString &desc, const RobotLanguage &language) {
    Zel::setText(*m_data, Data::descriptionField, desc, language);
}

bool PackageInfoModel::removeDescription(const RobotLanguage &language) {
    return removeText(*m_data, Data::descriptionField, language);
}

} // namespace Zel
