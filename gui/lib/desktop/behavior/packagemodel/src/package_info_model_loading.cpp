#include <packagemodel/package_info_model.h>

#include "copies.h"
#include "localized_texts.h"
#include "meta_types.h"
#include "package_icon.h"
#include "package_info_data.h"
#include "whole_change.h"

#include <QFile>

#include <functional>
#include <ostream>
#include <string>
#include <utility>

namespace Zel {

PackageInfoModel::Data::Data(PackageInfoModel *package, Tano::PackageInfo info)
    : behaviors(package, m_record, &PackageInfoModel::resyncBehaviors)
    , dialogs(package, m_record, &PackageInfoModel::resyncDialogs)
    , services(package, m_record, &PackageInfoModel::resyncServices)
    , m_record(std::move(info)) {
}

void PackageInfoModel::Data::setOutOfStep() {
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
    initFromPackage(info, WholeChange(this, m_data->wholeChanges));
}

PackageInfoModel::PackageInfoModel(const PackageInfoModel &other)
    : QObject(nullptr)
    , m_data(std::make_unique<Data>(this)) {
    *this = other;
}

// Deletes the children first, so that receivers of their destroyed() signal can still query the
// package.
PackageInfoModel::~PackageInfoModel() {
    const auto behaviors = guarded(m_data->behaviors.close());
    const auto dialogs = guarded(m_data->dialogs.close());
    const auto services = guarded(m_data->services.close());
    const auto deleteAll = [this](const auto &children) {
        for (const auto &child : children) {
            if (child && child->parent() == this)
                delete child.data();
        }
    };
    deleteAll(behaviors);
    deleteAll(dialogs);
    deleteAll(services);
}

// `loaded` is a copy, since receivers may edit the package and its record at each notification.
bool PackageInfoModel::initFromPackage(const Tano::PackageInfo &loaded, const WholeChange &change) {
    readVersionFromPackage();
    if (!change.isCurrent())
        return false;
    appendRequirements(loaded);

    RobotLanguages mentioned; // keeps these languages alive until the caches hold them
    for (const std::string &code : loaded.languageCodes())
        mentioned.push_back(languageFromCode(code));

    for (const Tano::DialogInfo &dialog : loaded.dialogs()) {
        addDialog(dialog);
        if (!change.isCurrent())
            return false;
    }
    for (const Tano::PackageService &service : loaded.services()) {
        addService(service);
        if (!change.isCurrent())
            return false;
    }
    for (const std::string &code : copyOf(m_data->record().supportedLanguages()))
        m_data->edit().addDescriptionLanguage(code);

    createBehaviors(loaded);
    if (!change.isCurrent())
        return false;
    readCaches(loaded);
    return true;
}

void PackageInfoModel::readCaches(const Tano::PackageInfo &loaded) {
    const Tano::PackageInfo &record = m_data->record();
    m_data->supportedLanguages = languagesFromCodes(record.supportedLanguages());
    m_data->names = textsFromRecord(record.names());
    m_data->descriptionLanguages = languagesFromCodes(record.descriptionLanguages());
    m_data->descriptions = textsFromRecord(record.descriptions());
    if (!(record.robotRequirements() == loaded.robotRequirements()))
        resyncRobotRequirements();
    if (!(record.brioRequirements() == loaded.brioRequirements()))
        resyncBrioRequirements();
    m_data->dialogs.settle();
    m_data->services.settle();
}

void PackageInfoModel::readVersionFromPackage() {
    setVersion(SoftwareVersionUtils::fromString(fromUtf8(m_data->record().version())));
}

bool PackageInfoModel::load(const std::function<bool(Tano::PackageInfo &)> &read,
                            const std::function<void()> &readIcon) {
    const WholeChange change(this, m_data->wholeChanges);
    assign(PackageInfoModel(), change);
    if (!change.isCurrent() || !read(m_data->edit()))
        return false;
    m_data->setOutOfStep();
    const Tano::PackageInfo loaded = m_data->record();
    readIcon();
    if (!change.isCurrent() || !initFromPackage(loaded, change))
        return false;
    Q_EMIT loadedFromManifest();
    return true;
}

bool PackageInfoModel::loadFromManifestFile(const QString &path) {
    QFile file(path);
    return loadFromManifestFile(file);
}

bool PackageInfoModel::loadFromManifestFile(QFile &file) {
    const QPointer<QFile> source(&file); // a receiver may delete it
    const auto read = [&](Tano::PackageInfo &record) {
        return source && record.loadFromManifestFile(*source);
    };
    return load(read, [&] { readIconBeside(*source, *this); });
}

bool PackageInfoModel::loadFromManifestContent(const QByteArray &content) {
    // Copied, since receivers may change the content, which need not be null-terminated.
    const auto length = qstrnlen(content.constData(), uint(content.size()));
    const std::string bytes(content.constData(), length);
    const auto read = [&](Tano::PackageInfo &record) {
        return record.loadFromManifestContent(bytes);
    };
    return load(read, [] {});
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

std::ostream &operator<<(std::ostream &stream, const PackageInfoModel &package) {
    return stream << package.packageInfo();
}

} // namespace Zel
