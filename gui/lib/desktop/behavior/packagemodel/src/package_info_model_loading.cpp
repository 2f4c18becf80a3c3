#include <packagemodel/package_info_model.h>

#include "copies.h"
#include "localized_texts.h"
#include "meta_types.h"
#include "package_icon.h"
#include "package_info_data.h"

#include <QFile>

#include <ostream>
#include <utility>

namespace Zel {
namespace {

void copyFields(const PackageInfoModel &from, PackageInfoModel &to) {
    to.setVersion(from.version());
    to.setAuthor(from.author());
    to.setChannel(from.channel());
    to.setDate(from.date());
    copyIcon(from, to);
    to.setInstaller(from.installer());
    to.setOrganization(from.organization());
    to.setPath(from.path());
    to.setTypeVersion(from.typeVersion());
    to.setUid(from.uid());

    to.clearNames();
    for (const auto &[text, language] : copyOf(from.names()))
        to.setName(text, language);

    for (const RobotLanguage &language : copyOf(to.supportedLanguages()))
        to.removeSupportedLanguage(language);
    for (const RobotLanguage &language : copyOf(from.supportedLanguages()))
        to.addSupportedLanguage(language);

    for (const RobotLanguage &language : copyOf(to.descriptionLanguages()))
        to.removeDescriptionLanguage(language);
    for (const RobotLanguage &language : copyOf(from.descriptionLanguages()))
        to.addDescriptionLanguage(language);
}

void copyChildren(const PackageInfoModel &from, PackageInfoModel &to) {
    to.clearBehaviors();
    for (const auto &behavior : guarded(from.behaviors())) {
        if (behavior)
            to.addBehavior(new BehaviorInfoModel(*behavior));
    }
    for (const auto &dialog : guarded(to.dialogs())) {
        if (dialog)
            to.removeDialog(dialog.data());
    }
    for (const auto &dialog : guarded(from.dialogs())) {
        if (dialog)
            to.addDialog(new DialogInfoModel(*dialog));
    }
    to.clearServices();
    for (const auto &service : guarded(from.services())) {
        if (service)
            to.addService(new ServiceInfoModel(*service, &to));
    }
}

} // namespace

PackageInfoModel::Data::Data(PackageInfoModel *package, Tano::PackageInfo info)
    : behaviors(package, m_record, &PackageInfoModel::resyncBehaviors)
    , dialogs(package, m_record, &PackageInfoModel::resyncDialogs)
    , services(package, m_record, &PackageInfoModel::resyncServices)
    , m_record(std::move(info)) {
}

void PackageInfoModel::Data::assignRecord(const Tano::PackageInfo &info) {
    m_record = info;
    robotRequirements.isMirrored = false;
    brioRequirements.isMirrored = false;
    behaviors.setOutOfStep();
    dialogs.setOutOfStep();
    services.setOutOfStep();
}

PackageInfoModel::PackageInfoModel(QObject *parent)
    : PackageInfoModel(Tano::PackageInfo(), parent) {
}

PackageInfoModel::PackageInfoModel(const Tano::PackageInfo &info, QObject *parent)
    : QObject(parent)
    , m_data(std::make_unique<Data>(this, info)) {
    registerMetaTypes();
    initFromPackage();
}

PackageInfoModel::PackageInfoModel(const PackageInfoModel &other)
    : QObject(nullptr)
    , m_data(std::make_unique<Data>(this)) {
    *this = other;
}

PackageInfoModel::~PackageInfoModel() = default;

void PackageInfoModel::initFromPackage() {
    readVersionFromPackage();
    for (const Tano::RobotRequirement &record : m_data->record().robotRequirements())
        m_data->robotRequirements.items.append(fromTanoRobotRequirement(record));
    for (const Tano::BrioRequirement &record : m_data->record().brioRequirements())
        m_data->brioRequirements.items.append(fromTanoBrioRequirement(record));

    for (const std::string &code : m_data->record().languageCodes())
        static_cast<void>(languageFromCode(code)); // registers those that are unknown

    // Each addition rewrites the record's list.
    for (const Tano::DialogInfo &dialog : copyOf(m_data->record().dialogs()))
        addDialog(dialog);
    for (const Tano::PackageService &service : copyOf(m_data->record().services()))
        addService(service);

    for (const std::string &code : copyOf(m_data->record().supportedLanguages()))
        m_data->edit().addDescriptionLanguage(code);

    createBehaviorInfoModels();

    m_data->supportedLanguages = languagesFromCodes(m_data->record().supportedLanguages());
    m_data->names = textsFromRecord(m_data->record().names());
    m_data->descriptionLanguages = languagesFromCodes(m_data->record().descriptionLanguages());
    m_data->descriptions = textsFromRecord(m_data->record().descriptions());
}

void PackageInfoModel::readVersionFromPackage() {
    setVersion(SoftwareVersionUtils::fromString(fromUtf8(m_data->record().version())));
}

bool PackageInfoModel::loadFromManifestFile(const QString &path) {
    QFile file(path);
    return loadFromManifestFile(file);
}

bool PackageInfoModel::loadFromManifestFile(QFile &file) {
    clear();
    if (!m_data->edit().loadFromManifestFile(file))
        return false;
    readIconBeside(file, *this);
    initFromPackage();
    Q_EMIT loadedFromManifest();
    return true;
}

bool PackageInfoModel::loadFromManifestContent(const QByteArray &content) {
    clear();
    if (!m_data->edit().loadFromManifestContent(content.constData()))
        return false;
    initFromPackage();
    Q_EMIT loadedFromManifest();
    return true;
}

bool PackageInfoModel::saveToManifestFile(const QString &path) const {
    return m_data->record().saveToManifestFile(toUtf8(path));
}

bool PackageInfoModel::saveToManifestFile(QFile &file) const {
    return m_data->record().saveToManifestFile(file);
}

QByteArray PackageInfoModel::saveToManifestContent() const {
    return m_data->record().saveToManifestContent().c_str();
}

void PackageInfoModel::clear() {
    const PackageInfoModel empty;
    *this = empty;
}

PackageInfoModel &PackageInfoModel::operator=(const PackageInfoModel &other) {
    if (this == &other)
        return *this;
    copyFields(other, *this);
    copyChildren(other, *this);
    for (const auto &[text, language] : copyOf(other.descriptions()))
        setDescription(text, language);

    m_data->robotRequirements = {};
    for (const RobotRequirement &requirement : other.robotRequirements())
        addRobotRequirement(requirement);
    m_data->brioRequirements = {};
    for (const BrioRequirement &requirement : other.brioRequirements())
        addBrioRequirement(requirement);
    m_data->assignRecord(other.packageInfo());
    return *this;
}

std::ostream &operator<<(std::ostream &stream, const PackageInfoModel &package) {
    return stream << package.packageInfo();
}

} // namespace Zel
