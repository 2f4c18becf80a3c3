#include <tano/package_info.h>

#include <tano/manifest_reader.h>
#include <tano/save_file.h>

#include "manifest_writer.h"
#include "record_fields.h"

#include <QFile>

#include <algorithm>
#include <ostream>

namespace Tano {
namespace {

void addOnce(PackageInfo &record, UniqueTexts PackageData::*list, const std::string &value) {
    if (!(RecordAccess::data(record).*list).contains(value))
        (RecordAccess::edit(record).*list).append(value);
}

void removeOnce(PackageInfo &record, UniqueTexts PackageData::*list, const std::string &value) {
    if ((RecordAccess::data(record).*list).contains(value))
        (RecordAccess::edit(record).*list).remove(std::string(value)); // may be in the list
}

template<typename Entry>
bool replaceEntry(PackageInfo &record, std::vector<Entry> PackageData::*list, int index,
                  const Entry &entry) {
    if (index < 0 || std::size_t(index) >= (RecordAccess::data(record).*list).size())
        return false;
    (RecordAccess::edit(record).*list)[std::size_t(index)] = entry;
    return true;
}

template<typename Entry>
bool removeEntry(PackageInfo &record, std::vector<Entry> PackageData::*list, int index) {
    if (index < 0 || std::size_t(index) >= (RecordAccess::data(record).*list).size())
        return false;
    auto &entries = RecordAccess::edit(record).*list;
    entries.erase(entries.begin() + index);
    return true;
}

template<typename Entry>
void insertEntry(PackageInfo &record, std::vector<Entry> PackageData::*list, int index,
                 const Entry &entry) {
    auto &entries = RecordAccess::edit(record).*list;
    entries.insert(entries.begin() + std::clamp(index, 0, int(entries.size())), entry);
}

template<typename List>
bool moveEntry(PackageInfo &record, List PackageData::*list, int from, int to) {
    const int size = int((RecordAccess::data(record).*list).size());
    if (from < 0 || to < 0 || from >= size || to >= size)
        return false;
    moveWithin(RecordAccess::edit(record).*list, from, to);
    return true;
}

void insertOnce(PackageInfo &record, UniqueTexts PackageData::*list, int index,
                const std::string &value) {
    if (!(RecordAccess::data(record).*list).contains(value))
        (RecordAccess::edit(record).*list).insert(index, value);
}

bool removeText(PackageInfo &record, TextMap PackageData::*texts, const std::string &code) {
    return (RecordAccess::data(record).*texts).count(code) != 0 &&
           (RecordAccess::edit(record).*texts).erase(code) != 0;
}

// Both are sorted, and most maps hold all of the keys, so the next key is usually the wanted one.
template<typename Map>
void addKeys(std::set<std::string> &keys, const Map &map) {
    auto next = keys.begin();
    for (const auto &entry : map) {
        if (next == keys.end() || *next != entry.first)
            next = keys.insert(entry.first).first;
        ++next;
    }
}

// Adds the languages of a record's language lists, of its texts, and of its entries.
template<typename Data>
void addLanguages(std::set<std::string> &codes, const Data &data) {
    forEachElement<Data>([&](Element /*child*/, const auto &row) {
        using Value = typename std::decay_t<decltype(row)>::Value;
        if constexpr (isTexts<Value>) {
            forEachElement<Value>(
                [&](Element /*text*/, const auto &text) { addKeys(codes, data.*text.member); });
        } else if constexpr (std::is_same_v<Value, UniqueTexts>) {
            const std::vector<std::string> &list = data.*row.member;
            codes.insert(list.begin(), list.end());
        } else if constexpr (isEntryList<Value>) {
            for (const auto &entry : data.*row.member)
                addLanguages(codes, dataOf(entry));
        } else if constexpr (std::is_same_v<Value, TextMap>) {
            if (row.key.begin() == byLanguage)
                addKeys(codes, data.*row.member);
        }
    });
}

} // namespace

bool operator==(const RobotRequirement &a, const RobotRequirement &b) {
    return equalFields(a, b);
}

bool operator==(const BrioRequirement &a, const BrioRequirement &b) {
    return equalFields(a, b);
}

bool operator==(const PackageService &a, const PackageService &b) {
    return equalFields(a, b);
}

const std::string &PackageInfo::uuid() const {
    return RecordAccess::data(*this).uuid;
}

void PackageInfo::setUuid(const std::string &uuid) {
    RecordAccess::edit(*this).uuid = uuid;
}

const std::string &PackageInfo::version() const {
    return RecordAccess::data(*this).version;
}

void PackageInfo::setVersion(const std::string &version) {
    RecordAccess::edit(*this).version = version;
}

const std::string &PackageInfo::typeVersion() const {
    return RecordAccess::data(*this).typeVersion;
}

void PackageInfo::setTypeVersion(const std::string &typeVersion) {
    RecordAccess::edit(*this).typeVersion = typeVersion;
}

const std::string &PackageInfo::installer() const {
    return RecordAccess::data(*this).installer;
}

void PackageInfo::setInstaller(const std::string &installer) {
    RecordAccess::edit(*this).installer = installer;
}

const std::string &PackageInfo::author() const {
    return RecordAccess::data(*this).author;
}

void PackageInfo::setAuthor(const std::string &author) {
    RecordAccess::edit(*this).author = author;
}

const std::string &PackageInfo::organization() const {
    return RecordAccess::data(*this).organization;
}

void PackageInfo::setOrganization(const std::string &organization) {
    RecordAccess::edit(*this).organization = organization;
}

const std::string &PackageInfo::date() const {
    return RecordAccess::data(*this).date;
}

void PackageInfo::setDate(const std::string &date) {
    RecordAccess::edit(*this).date = date;
}

const std::string &PackageInfo::channel() const {
    return RecordAccess::data(*this).channel;
}

void PackageInfo::setChannel(const std::string &channel) {
    RecordAccess::edit(*this).channel = channel;
}

const std::string &PackageInfo::path() const {
    return RecordAccess::data(*this).path;
}

void PackageInfo::setPath(const std::string &path) {
    RecordAccess::edit(*this).path = path;
}

const TextMap &PackageInfo::names() const {
    return RecordAccess::data(*this).names;
}

const std::string &PackageInfo::name(const std::string &code) const {
    return textOf(names(), code);
}

void PackageInfo::setName(const std::string &name, const std::string &code) {
    RecordAccess::edit(*this).names[code] = name;
}

bool PackageInfo::removeName(const std::string &code) {
    return removeText(*this, &PackageData::names, code);
}

void PackageInfo::clearNames() {
    RecordAccess::edit(*this).names.clear();
}

const TextMap &PackageInfo::descriptions() const {
    return RecordAccess::data(*this).descriptions;
}

const std::string &PackageInfo::description(const std::string &code) const {
    return textOf(descriptions(), code);
}

void PackageInfo::setDescription(const std::string &description, const std::string &code) {
    RecordAccess::edit(*this).descriptions[code] = description;
}

bool PackageInfo::removeDescription(const std::string &code) {
    return removeText(*this, &PackageData::descriptions, code);
}

const std::vector<std::string> &PackageInfo::supportedLanguages() const {
    return RecordAccess::data(*this).supportedLanguages;
}

void PackageInfo::addSupportedLanguage(const std::string &code) {
    addOnce(*this, &PackageData::supportedLanguages, code);
}

void PackageInfo::removeSupportedLanguage(const std::string &code) {
    removeOnce(*this, &PackageData::supportedLanguages, code);
}

void PackageInfo::insertSupportedLanguage(int index, const std::string &code) {
    insertOnce(*this, &PackageData::supportedLanguages, index, code);
}

bool PackageInfo::moveSupportedLanguage(int from, int to) {
    return moveEntry(*this, &PackageData::supportedLanguages, from, to);
}

const std::vector<std::string> &PackageInfo::descriptionLanguages() const {
    return RecordAccess::data(*this).descriptionLanguages;
}

void PackageInfo::addDescriptionLanguage(const std::string &code) {
    addOnce(*this, &PackageData::descriptionLanguages, code);
}

void PackageInfo::removeDescriptionLanguage(const std::string &code) {
    removeOnce(*this, &PackageData::descriptionLanguages, code);
}

void PackageInfo::insertDescriptionLanguage(int index, const std::string &code) {
    insertOnce(*this, &PackageData::descriptionLanguages, index, code);
}

bool PackageInfo::moveDescriptionLanguage(int from, int to) {
    return moveEntry(*this, &PackageData::descriptionLanguages, from, to);
}

const std::vector<RobotRequirement> &PackageInfo::robotRequirements() const {
    return RecordAccess::data(*this).robotRequirements;
}

void PackageInfo::clearRobotRequirements() {
    RecordAccess::edit(*this).robotRequirements.clear();
}

void PackageInfo::addRobotRequirement(const RobotRequirement &requirement) {
    RecordAccess::edit(*this).robotRequirements.push_back(requirement);
}

bool PackageInfo::replaceRobotRequirement(int index, const RobotRequirement &requirement) {
    return replaceEntry(*this, &PackageData::robotRequirements, index, requirement);
}

bool PackageInfo::removeRobotRequirement(int index) {
    return removeEntry(*this, &PackageData::robotRequirements, index);
}

void PackageInfo::insertRobotRequirement(int index, const RobotRequirement &requirement) {
    insertEntry(*this, &PackageData::robotRequirements, index, requirement);
}

bool PackageInfo::moveRobotRequirement(int from, int to) {
    return moveEntry(*this, &PackageData::robotRequirements, from, to);
}

const std::vector<BrioRequirement> &PackageInfo::brioRequirements() const {
    return RecordAccess::data(*this).brioRequirements;
}

void PackageInfo::clearBrioRequirements() {
    RecordAccess::edit(*this).brioRequirements.clear();
}

void PackageInfo::addBrioRequirement(const BrioRequirement &requirement) {
    RecordAccess::edit(*this).brioRequirements.push_back(requirement);
}

bool PackageInfo::replaceBrioRequirement(int index, const BrioRequirement &requirement) {
    return replaceEntry(*this, &PackageData::brioRequirements, index, requirement);
}

bool PackageInfo::removeBrioRequirement(int index) {
    return removeEntry(*this, &PackageData::brioRequirements, index);
}

void PackageInfo::insertBrioRequirement(int index, const BrioRequirement &requirement) {
    insertEntry(*this, &PackageData::brioRequirements, index, requirement);
}

bool PackageInfo::moveBrioRequirement(int from, int to) {
    return moveEntry(*this, &PackageData::brioRequirements, from, to);
}

const std::vector<BehaviorInfo> &PackageInfo::behaviors() const {
    return RecordAccess::data(*this).behaviors;
}

void PackageInfo::clearBehaviors() {
    RecordAccess::edit(*this).behaviors.clear();
}

void PackageInfo::addBehavior(const BehaviorInfo &behavior) {
    RecordAccess::edit(*this).behaviors.push_back(behavior);
}

bool PackageInfo::replaceBehavior(int index, const BehaviorInfo &behavior) {
    return replaceEntry(*this, &PackageData::behaviors, index, behavior);
}

bool PackageInfo::removeBehavior(int index) {
    return removeEntry(*this, &PackageData::behaviors, index);
}

void PackageInfo::insertBehavior(int index, const BehaviorInfo &behavior) {
    insertEntry(*this, &PackageData::behaviors, index, behavior);
}

bool PackageInfo::moveBehavior(int from, int to) {
    return moveEntry(*this, &PackageData::behaviors, from, to);
}

const std::vector<DialogInfo> &PackageInfo::dialogs() const {
    return RecordAccess::data(*this).dialogs;
}

void PackageInfo::clearDialogs() {
    RecordAccess::edit(*this).dialogs.clear();
}

void PackageInfo::addDialog(const DialogInfo &dialog) {
    RecordAccess::edit(*this).dialogs.push_back(dialog);
}

bool PackageInfo::replaceDialog(int index, const DialogInfo &dialog) {
    return replaceEntry(*this, &PackageData::dialogs, index, dialog);
}

bool PackageInfo::removeDialog(int index) {
    return removeEntry(*this, &PackageData::dialogs, index);
}

void PackageInfo::insertDialog(int index, const DialogInfo &dialog) {
    insertEntry(*this, &PackageData::dialogs, index, dialog);
}

bool PackageInfo::moveDialog(int from, int to) {
    return moveEntry(*this, &PackageData::dialogs, from, to);
}

const std::vector<PackageService> &PackageInfo::services() const {
    return RecordAccess::data(*this).services;
}

void PackageInfo::clearServices() {
    RecordAccess::edit(*this).services.clear();
}

void PackageInfo::addService(const PackageService &service) {
    RecordAccess::edit(*this).services.push_back(service);
}

bool PackageInfo::replaceService(int index, const PackageService &service) {
    return replaceEntry(*this, &PackageData::services, index, service);
}

bool PackageInfo::removeService(int index) {
    return removeEntry(*this, &PackageData::services, index);
}

void PackageInfo::insertService(int index, const PackageService &service) {
    insertEntry(*this, &PackageData::services, index, service);
}

bool PackageInfo::moveService(int from, int to) {
    return moveEntry(*this, &PackageData::services, from, to);
}

std::set<std::string> PackageInfo::languageCodes() const {
    std::set<std::string> codes;
    addLanguages(codes, RecordAccess::data(*this));
    return codes;
}

void PackageInfo::trimExtraInfo() {
    PackageData &data = RecordAccess::edit(*this);
    const KeySet descriptionCodes(data.descriptionLanguages);
    const KeySet supportedCodes(data.supportedLanguages);
    trimTexts(data, descriptionCodes, descriptionCodes);
    for (BehaviorInfo &behavior : data.behaviors)
        trimTexts(RecordAccess::edit(behavior), descriptionCodes, supportedCodes);
}

bool PackageInfo::loadFromManifestFile(QFile &file) {
    ManifestReader reader;
    const bool succeeded = reader.readFile(file, *this);
    m_errorString = reader.errorString();
    return succeeded;
}

bool PackageInfo::loadFromManifestContent(const std::string &content) {
    ManifestReader reader;
    const bool succeeded = reader.readContent(content, *this);
    m_errorString = reader.errorString();
    return succeeded;
}

bool PackageInfo::saveToManifestFile(const std::string &path) const {
    std::string text = saveToManifestContent();
    if (m_errorString.empty())
        m_errorString = saveFile({path, std::move(text)}).error;
    return m_errorString.empty();
}

bool PackageInfo::saveToManifestFile(const std::string &path,
                                     const FileFingerprint &expected) const {
    std::string text = saveToManifestContent();
    if (m_errorString.empty())
        m_errorString = saveFile({path, std::move(text), expected}).error;
    return m_errorString.empty();
}

bool PackageInfo::saveToManifestFile(QFile &file) const {
    if (!file.isOpen())
        return saveToManifestFile(file.fileName().toStdString());
    const std::string text = saveToManifestContent();
    if (m_errorString.empty())
        m_errorString = saveToOpenFile(file, text).error;
    return m_errorString.empty();
}

std::string PackageInfo::saveToManifestContent() const {
    WrittenManifest written = writeManifest(RecordAccess::data(*this));
    m_errorString = std::move(written.error);
    return std::move(written.text);
}

const std::string &PackageInfo::errorString() const {
    return m_errorString;
}

bool operator==(const PackageInfo &a, const PackageInfo &b) {
    return RecordAccess::sharesData(a, b) ||
           sameContent(RecordAccess::data(a), RecordAccess::data(b));
}

std::ostream &operator<<(std::ostream &stream, const PackageInfo &package) {
    const WrittenManifest written = writeManifest(RecordAccess::data(package));
    return stream << (written.error.empty() ? written.text : written.error);
}

} // namespace Tano
