#include "document.h"

#include <packagemodel/edit_session.h>
#include <packagemodel/set_command.h>

#include <tano/kept_content.h>

#include <QBuffer>
#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <utility>

namespace Editor {
namespace {

using Zel::PackageInfoModel;

qint64 keyOf(const QIcon &icon) {
    return icon.isNull() ? 0 : icon.cacheKey();
}

template<typename Sender, typename Function, typename... Signals>
void connectAll(const Sender *sender, const QObject *context, Function function,
                Signals... signals) {
    (QObject::connect(sender, signals, context, function), ...);
}

// The largest size as PNG, empty for a null icon; nullopt on failure.
std::optional<QByteArray> pngOf(const QIcon &icon) {
    if (icon.isNull())
        return QByteArray();
    QSize size(256, 256);
    const auto available = icon.availableSizes();
    if (!available.isEmpty())
        size = available.last();
    QBuffer buffer;
    if (!icon.pixmap(size).save(&buffer, "PNG"))
        return {};
    return buffer.data();
}

// Whether loading the written manifest gives the same package for edits. Loading places comments
// and unknown content by their neighbors, and uses every supported language for descriptions.
bool loadsAsItIs(const PackageInfoModel &package, const std::string &manifest) {
    const auto has = [&](const char *part) { return manifest.find(part, 1) != std::string::npos; };
    const auto &supported = package.supportedLanguages();
    return !has("<!--") && !has("<?") && !has("xmlns") &&
           Tano::unknownNodes(package.packageInfo()).empty() &&
           std::all_of(supported.begin(), supported.end(), [&](const auto &language) {
               return package.hasLanguageDescription(language);
           });
}

} // namespace

Document::Document(QObject *parent)
    : QObject(parent)
    , m_package(std::make_unique<PackageInfoModel>()) {
    connect(&m_undoStack, &QUndoStack::indexChanged, this, &Document::finishEdit);
    m_pause.setSingleShot(true);
    m_pause.setInterval(std::chrono::seconds(1));
    connect(&m_pause, &QTimer::timeout, this, &Document::closeRun);
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, &Document::checkDisk);
    watchPackage();
    m_package->syncRecord();
    m_saved = m_package->packageInfo();
    m_template = QByteArray::fromStdString(m_saved.saveToManifestContent());
    trackIssues();
}

Document::~Document() {
    m_undoStack.disconnect(this);
    m_undoStack.clear(); // delete the commands before the package
}

bool Document::open(const QString &fileName) {
    // Taken before reading, so that a concurrent change is noticed later.
    const auto content = Tano::FileFingerprint::ofFile(Zel::toUtf8(fileName));
    auto package = std::make_unique<PackageInfoModel>();
    if (!package->loadFromManifestFile(fileName)) {
        m_errorString = Zel::fromUtf8(package->packageInfo().errorString());
        return false;
    }
    replacePackage(std::move(package), QFileInfo(fileName).absoluteFilePath(), content);
    return true;
}

bool Document::openTemplate(const QByteArray &manifest) {
    auto package = std::make_unique<PackageInfoModel>();
    if (!package->loadFromManifestContent(manifest)) {
        m_errorString = Zel::fromUtf8(package->packageInfo().errorString());
        return false;
    }
    m_template = manifest;
    replacePackage(std::move(package), QString(), {});
    return true;
}

QByteArray Document::digest() const {
    return m_fileName.isEmpty() ? Zel::PackageModel::manifestDigest(m_template)
                                : QByteArray::fromStdString(m_onDisk.digest).toHex();
}

bool Document::save(const QString &fileName) {
    closeRun();
    m_package->syncRecord();
    Tano::FileToSave manifest;
    manifest.path = Zel::toUtf8(fileName);
    manifest.bytes = m_package->packageInfo().saveToManifestContent();
    if (manifest.bytes->empty()) {
        m_errorString = Zel::fromUtf8(m_package->packageInfo().errorString());
        return false;
    }
    const QString path = QFileInfo(fileName).absoluteFilePath();
    const bool isElsewhere = path != m_fileName;
    if (!isElsewhere)
        manifest.expected = m_seenOnDisk;
    const auto written = Tano::FileFingerprint::ofContent(*manifest.bytes);
    const bool isReplayable = m_undoStack.index() == 0 || loadsAsItIs(*m_package, *manifest.bytes);
    std::vector<Tano::FileToSave> files;
    files.push_back(std::move(manifest)); // an initializer list would copy it
    if (!addIcon(fileName, files))
        return false;
    if (const auto result = Tano::saveFiles(files); !result) {
        m_errorString = Zel::fromUtf8(result.error);
        return false;
    }
    m_fileName = path;
    m_isReplayable = isReplayable;
    m_saved = m_package->packageInfo();
    rememberIcon();
    rememberDisk(written);
    m_undoStack.setClean();
    if (isElsewhere)
        trackIssues(); // the files that the package names may not be there
    else
        updateIssues(); // the icon is there now
    Q_EMIT fileNameChanged();
    Q_EMIT edited();
    return true;
}

bool Document::addIcon(const QString &manifest, std::vector<Tano::FileToSave> &files) {
    const QIcon icon = m_package->icon();
    const QDir directory = QFileInfo(manifest).absoluteDir();
    const bool isElsewhere = directory != QFileInfo(m_fileName).absoluteDir();
    const bool isThere = icon.isNull() || directory.exists(QStringLiteral("icon.png"));
    if (isElsewhere ? icon.isNull() : isThere && !isIconEdited())
        return true;
    Tano::FileToSave file;
    file.path = Zel::toUtf8(directory.filePath(QStringLiteral("icon.png")));
    file.links = Tano::FileToSave::Links::Refuse;
    const auto png = pngOf(icon);
    if (!png) {
        m_errorString = tr("The icon cannot be converted to PNG.");
        return false;
    }
    if (!icon.isNull())
        file.bytes = png->toStdString();
    files.push_back(std::move(file));
    return true;
}

std::optional<QByteArray> Document::pendingIcon() const {
    return isIconEdited() ? pngOf(m_package->icon()) : std::nullopt;
}

void Document::rememberIcon() {
    m_savedIcon = keyOf(m_package->icon());
    m_iconOnDisk = iconOnDisk();
}

bool Document::isIconEdited() const {
    return keyOf(m_package->icon()) != m_savedIcon;
}

void Document::setIcon(const QByteArray &png) {
    QPixmap picture;
    if (!picture.loadFromData(png, "PNG") && !png.isEmpty())
        return; // damaged
    push(new Zel::PackageGenericValueCommand<QIcon>(m_package.get(), QIcon(picture)));
}

bool Document::publish(const QString &fileName) {
    closeRun();
    const auto copy = published();
    if (copy->saveToManifestFile(fileName))
        return true;
    m_errorString = Zel::fromUtf8(copy->packageInfo().errorString());
    return false;
}

std::unique_ptr<PackageInfoModel> Document::published() const {
    m_package->syncRecord();
    auto copy = std::make_unique<PackageInfoModel>(*m_package);
    copy->trimExtraInfo();
    copy->genPlainTextFromScript();
    copy->syncRecord();
    return copy;
}

std::unique_ptr<PackageInfoModel> Document::readAgain() {
    auto package = std::make_unique<PackageInfoModel>();
    if (package->loadFromManifestFile(m_fileName))
        return package;
    m_errorString = Zel::fromUtf8(package->packageInfo().errorString());
    return nullptr;
}

std::optional<QVector<Zel::PackageModel::MergeConflict>> Document::mergeWithFile() {
    using Zel::PackageModel::Edit;
    const auto content = Tano::FileFingerprint::ofFile(Zel::toUtf8(m_fileName));
    const auto theirs = readAgain();
    if (!theirs)
        return {};
    closeRun();
    m_package->syncRecord();
    const auto merged =
        Zel::PackageModel::merge(m_saved, m_package->packageInfo(), theirs->packageInfo());
    if (!merged.error.isEmpty()) {
        m_errorString = merged.error;
        return {};
    }
    m_saved = theirs->packageInfo();
    rememberDisk(content);
    m_undoStack.resetClean(); // no step leads to the file's contents
    edit({{Edit::Action::Set, {}, merged.record}}, tr("Merge with the file"));
    return merged.conflicts;
}

Document::DiskState Document::checkDisk() {
    if (m_fileName.isEmpty())
        return DiskState::Same;
    const auto present = Tano::FileFingerprint::ofFile(Zel::toUtf8(m_fileName));
    const DiskState state = present == Tano::FileFingerprint() ? DiskState::Vanished
                            : present == m_onDisk              ? DiskState::Same
                                                               : DiskState::Changed;
    // The watcher drops replaced files.
    if (state != DiskState::Vanished && !m_watcher.files().contains(m_fileName))
        m_watcher.addPath(m_fileName);
    const bool isNew = state != m_reported || present != m_seenOnDisk;
    m_reported = state;
    m_seenOnDisk = present;
    if (!isNew)
        return state;
    if (state == DiskState::Vanished)
        m_undoStack.resetClean(); // the file has no longer any of these states
    Q_EMIT fileDiffers(state);
    return state;
}

void Document::rememberDisk(const Tano::FileFingerprint &content) {
    const QStringList watched = m_watcher.files();
    if (!watched.isEmpty())
        m_watcher.removePaths(watched);
    m_onDisk = content;
    m_reported = DiskState::Same;
    m_seenOnDisk = content;
    if (!m_fileName.isEmpty())
        m_watcher.addPath(m_fileName);
}

void Document::replacePackage(std::unique_ptr<PackageInfoModel> package, const QString &fileName,
                              const Tano::FileFingerprint &content) {
    closeRun();
    m_isReplacing = true;
    m_undoStack.clear(); // its views and actions follow at once
    m_isReplacing = false;
    m_stackIndex = 0;
    m_isReplayable = true;
    // Receivers of packageReplaced() may still use the old package.
    const std::unique_ptr<PackageInfoModel> old = std::exchange(m_package, std::move(package));
    m_fileName = fileName;
    m_saved = m_package->packageInfo();
    rememberIcon();
    rememberDisk(content);
    watchPackage();
    m_languages.reset();
    m_coverages.reset();
    trackIssues();
    Q_EMIT packageReplaced();
    Q_EMIT fileNameChanged();
    finishEdit();
}

void Document::watchPackage() {
    using Package = PackageInfoModel;
    connectAll(
        m_package.get(), this, [this] { m_languages.reset(); }, &Package::languageAdded,
        &Package::languageRemoved, &Package::descriptionAdded, &Package::descriptionRemoved,
        &Package::nameUpdated, &Package::descriptionUpdated);
}

} // namespace Editor
