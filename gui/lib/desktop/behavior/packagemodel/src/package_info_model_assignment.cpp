#include <packagemodel/package_info_model.h>

#include "localized_texts.h"
#include "package_icon.h"
#include "package_info_data.h"
#include "whole_change.h"

#include <memory>
#include <utility>
#include <vector>

namespace Zel {
namespace {

// Copies of the children of one kind and of their records.
template<typename Child>
struct ChildCopies {
    template<typename Copy>
    ChildCopies(const QVector<Child *> &children, Copy copy) {
        for (const Child *child : children) {
            models.emplace_back(copy(*child));
            models.back()->setParent(nullptr);
            records.push_back(ChildAccess::data(*child).record());
        }
    }

    std::vector<std::unique_ptr<Child>> models;
    std::vector<typename ChildKind<Child>::Record> records;
};

// The source package at the start of the assignment; receivers may change or delete it meanwhile.
struct Snapshot {
    explicit Snapshot(const PackageInfoModel &package)
        : source(&package)
        , record(package.packageInfo())
        , version(package.version())
        , names(package.names())
        , descriptions(package.descriptions())
        , supportedLanguages(package.supportedLanguages())
        , descriptionLanguages(package.descriptionLanguages())
        , robotRequirements(package.robotRequirements())
        , brioRequirements(package.brioRequirements())
        , behaviors(package.behaviors(), [](auto &child) { return new BehaviorInfoModel(child); })
        , dialogs(package.dialogs(), [](auto &child) { return new DialogInfoModel(child); })
        , services(package.services(),
                   [](auto &child) { return new ServiceInfoModel(child, nullptr); }) {}

    QPointer<const PackageInfoModel> source; // for the icon
    Tano::PackageInfo record;
    SoftwareVersion version;
    Language::LocalizedStrings names;
    Language::LocalizedStrings descriptions;
    RobotLanguages supportedLanguages;
    RobotLanguages descriptionLanguages;
    QVector<RobotRequirement> robotRequirements;
    QVector<BrioRequirement> brioRequirements;
    ChildCopies<BehaviorInfoModel> behaviors;
    ChildCopies<DialogInfoModel> dialogs;
    ChildCopies<ServiceInfoModel> services;
};

class PackageAssignment {
public:
    PackageAssignment(const PackageInfoModel &from, PackageInfoModel &to, const WholeChange &change)
        : m_from(from)
        , m_to(to)
        , m_change(change) {}

    const Snapshot &source() const { return m_from; }

    // All steps before the requirements; each announces its changes.
    void copyFields();
    void copyChildren();
    void copyDescriptions() { copyTexts(m_from.descriptions, &PackageInfoModel::setDescription); }

    // Runs a step for each value while the assignment is current.
    template<typename Values, typename Step>
    void forEach(Values &&values, Step step) {
        for (auto &value : values) {
            if (!m_change.isCurrent())
                return;
            step(value);
        }
    }

private:
    void copyText(const std::string &text, void (PackageInfoModel::*set)(const QString &)) {
        if (m_change.isCurrent())
            (m_to.*set)(fromUtf8(text));
    }
    void copyTexts(const Language::LocalizedStrings &texts,
                   void (PackageInfoModel::*set)(const QString &, const RobotLanguage &)) {
        forEach(texts, [&](const auto &text) { (m_to.*set)(text.first, text.second); });
    }
    // Replaces a list of languages by that of the other package.
    void replaceLanguages(const RobotLanguages &(PackageInfoModel::*current)() const,
                          void (PackageInfoModel::*remove)(const RobotLanguage &),
                          const RobotLanguages &added,
                          void (PackageInfoModel::*add)(const RobotLanguage &));
    template<typename Child>
    void addCopies(ChildCopies<Child> &copies, void (PackageInfoModel::*add)(Child *)) {
        forEach(copies.models, [&](auto &model) { (m_to.*add)(model.release()); });
    }

    Snapshot m_from;
    PackageInfoModel &m_to;
    const WholeChange &m_change;
};

void PackageAssignment::copyFields() {
    using Package = PackageInfoModel;
    m_to.setVersion(m_from.version);
    copyText(m_from.record.author(), &Package::setAuthor);
    copyText(m_from.record.channel(), &Package::setChannel);
    copyText(m_from.record.date(), &Package::setDate);
    if (m_change.isCurrent() && m_from.source)
        copyIcon(*m_from.source, m_to);
    copyText(m_from.record.installer(), &Package::setInstaller);
    copyText(m_from.record.organization(), &Package::setOrganization);
    copyText(m_from.record.path(), &Package::setPath);
    copyText(m_from.record.typeVersion(), &Package::setTypeVersion);
    copyText(m_from.record.uuid(), &Package::setUid);

    if (m_change.isCurrent())
        m_to.clearNames();
    copyTexts(m_from.names, &Package::setName);
    replaceLanguages(&Package::supportedLanguages, &Package::removeSupportedLanguage,
                     m_from.supportedLanguages, &Package::addSupportedLanguage);
    replaceLanguages(&Package::descriptionLanguages, &Package::removeDescriptionLanguage,
                     m_from.descriptionLanguages, &Package::addDescriptionLanguage);
}

void PackageAssignment::replaceLanguages(const RobotLanguages &(PackageInfoModel::*current)() const,
                                         void (PackageInfoModel::*remove)(const RobotLanguage &),
                                         const RobotLanguages &added,
                                         void (PackageInfoModel::*add)(const RobotLanguage &)) {
    if (!m_change.isCurrent())
        return;
    const RobotLanguages removed = (m_to.*current)();
    forEach(removed, [&](const RobotLanguage &language) { (m_to.*remove)(language); });
    forEach(added, [&](const RobotLanguage &language) { (m_to.*add)(language); });
}

void PackageAssignment::copyChildren() {
    using Package = PackageInfoModel;
    if (m_change.isCurrent())
        m_to.clearBehaviors();
    addCopies<BehaviorInfoModel>(m_from.behaviors, &Package::addBehavior);
    if (m_change.isCurrent()) {
        forEach(guarded(m_to.dialogs()), [&](const QPointer<DialogInfoModel> &dialog) {
            if (dialog)
                m_to.removeDialog(dialog.data());
        });
    }
    addCopies<DialogInfoModel>(m_from.dialogs, &Package::addDialog);
    if (m_change.isCurrent())
        m_to.clearServices();
    addCopies<ServiceInfoModel>(m_from.services, &Package::addService);
}

// Makes a cache agree with the record, except that the texts in `kept` stay. An empty text equals
// an absent one.
void reconcile(CachedTexts &cache, const Tano::TextMap &record, const CachedTexts &kept = {}) {
    CachedTexts texts;
    for (const auto &[text, language] : cache.entries()) {
        const auto recorded = record.find(codeOf(language));
        const auto *old = kept.find(language);
        if (recorded != record.end())
            texts.append({fromUtf8(recorded->second), language});
        else if (old && old->first == text)
            texts.append({text, language});
    }
    for (const auto &[code, text] : record) {
        const RobotLanguage language = languageFromCode(code);
        if (!text.empty() && !cache.contains(language))
            texts.append({fromUtf8(text), language});
    }
    cache = std::move(texts);
}

} // namespace

void PackageInfoModel::assign(const PackageInfoModel &other, const WholeChange &change) {
    const CachedTexts oldDescriptions = m_data->descriptions;
    PackageAssignment assignment(other, *this, change);
    const Snapshot &source = assignment.source();
    assignment.copyFields();
    assignment.copyChildren();
    assignment.copyDescriptions();
    if (!change.isCurrent())
        return;
    m_data->robotRequirements = {};
    assignment.forEach(source.robotRequirements,
                       [&](const auto &requirement) { addRobotRequirement(requirement); });
    if (!change.isCurrent())
        return;
    m_data->brioRequirements = {};
    assignment.forEach(source.brioRequirements,
                       [&](const auto &requirement) { addBrioRequirement(requirement); });
    if (!change.isCurrent())
        return;

    // Discards edits by receivers, except of the children, which others may refer to.
    const Tano::PackageInfo &record = source.record; // the caches of a package being loaded may lag
    m_data->edit() = record;
    m_data->version = SoftwareVersionUtils::fromString(fromUtf8(record.version()));
    m_data->version.setFieldsCount(3);
    m_data->supportedLanguages = languagesFromCodes(record.supportedLanguages());
    m_data->descriptionLanguages = languagesFromCodes(record.descriptionLanguages());
    reconcile(m_data->names, record.names());
    reconcile(m_data->descriptions, record.descriptions(), oldDescriptions);
    m_data->robotRequirements = {};
    m_data->brioRequirements = {};
    appendRequirements(record);
    m_data->behaviors.settle(source.behaviors.records);
    m_data->dialogs.settle(source.dialogs.records);
    m_data->services.settle(source.services.records);
}

PackageInfoModel &PackageInfoModel::operator=(const PackageInfoModel &other) {
    // A package being destroyed accepts no children.
    if (this != &other && !m_data->behaviors.isClosed())
        assign(other, WholeChange(this, m_data->wholeChanges));
    return *this;
}

void PackageInfoModel::clear() {
    *this = PackageInfoModel();
}

} // namespace Zel
