#include "document.h"

#include "field_place.h"

#include <packagemodel/set_command.h>

#include <QBuffer>
#include <QDir>
#include <QFileInfo>

#include <utility>

namespace Editor {
namespace {

using Zel::BehaviorInfoModel;
using Zel::PackageInfoModel;
using Zel::PackageInfoValidator;
using Zel::PackageModel::Issue;
using Zel::PackageModel::Severity;

qint64 keyOf(const QIcon &icon) {
    return icon.isNull() ? 0 : icon.cacheKey();
}

QPixmap largest(const QIcon &icon) {
    QSize size(256, 256);
    const auto available = icon.availableSizes();
    if (!available.isEmpty())
        size = available.last();
    return icon.pixmap(size);
}

} // namespace

Document::Document(QObject *parent)
    : QObject(parent)
    , m_package(std::make_unique<PackageInfoModel>()) {
    connect(&m_undoStack, &QUndoStack::indexChanged, this, &Document::finishEdit);
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, &Document::checkDisk);
    watchPackage();
    refreshIssues();
}

Document::~Document() {
    m_undoStack.disconnect(this);
    m_undoStack.clear(); // the commands go before the package
}

bool Document::open(const QString &fileName) {
    // Taken first: an edit that comes while the file is read is noticed later.
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
    replacePackage(std::move(package), QString(), {});
    return true;
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
    if (path == m_fileName)
        manifest.expected = m_seenOnDisk;
    const auto written = Tano::FileFingerprint::ofContent(*manifest.bytes);
    std::vector<Tano::FileToSave> files{std::move(manifest)};
    if (!addIcon(fileName, files))
        return false;
    if (const auto result = Tano::saveFiles(files); !result) {
        m_errorString = Zel::fromUtf8(result.error);
        return false;
    }
    m_fileName = path;
    m_savedIcon = keyOf(m_package->icon());
    rememberDisk(written);
    m_undoStack.setClean();
    Q_EMIT fileNameChanged();
    return true;
}

bool Document::addIcon(const QString &manifest, std::vector<Tano::FileToSave> &files) {
    const QIcon icon = m_package->icon();
    const QDir directory = QFileInfo(manifest).absoluteDir();
    const bool isElsewhere = directory != QFileInfo(m_fileName).absoluteDir();
    const bool isSame = keyOf(icon) == m_savedIcon;
    if (isElsewhere ? icon.isNull() : isSame)
        return true;
    Tano::FileToSave file;
    file.path = Zel::toUtf8(directory.filePath(QStringLiteral("icon.png")));
    file.links = Tano::FileToSave::Links::Refuse;
    if (!icon.isNull()) {
        QBuffer buffer;
        if (!largest(icon).save(&buffer, "PNG")) {
            m_errorString = tr("The icon cannot be converted to PNG.");
            return false;
        }
        file.bytes = buffer.data().toStdString();
    }
    files.push_back(std::move(file));
    return true;
}

bool Document::publish(const QString &fileName) {
    closeRun();
    m_package->syncRecord();
    PackageInfoModel published(*m_package);
    published.trimExtraInfo();
    published.genPlainTextFromScript();
    published.syncRecord();
    if (published.saveToManifestFile(fileName))
        return true;
    m_errorString = Zel::fromUtf8(published.packageInfo().errorString());
    return false;
}

Document::DiskState Document::checkDisk() {
    if (m_fileName.isEmpty())
        return DiskState::Same;
    const auto present = Tano::FileFingerprint::ofFile(Zel::toUtf8(m_fileName));
    const DiskState state = present == Tano::FileFingerprint() ? DiskState::Vanished
                            : present == m_onDisk              ? DiskState::Same
                                                               : DiskState::Changed;
    // One that was replaced is not watched any more.
    if (state != DiskState::Vanished && !m_watcher.files().contains(m_fileName))
        m_watcher.addPath(m_fileName);
    const bool isNew = state != m_reported || present != m_seenOnDisk;
    m_reported = state;
    m_seenOnDisk = present;
    if (!isNew)
        return state;
    if (state == DiskState::Vanished)
        m_undoStack.resetClean(); // nothing on disk holds this any more
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
    m_openRun = nullptr;
    {
        const QSignalBlocker blocker(m_undoStack);
        m_undoStack.clear();
    }
    m_validator.reset();
    // Until everybody has heard, somebody may still look at the old one.
    const std::unique_ptr<PackageInfoModel> old = std::exchange(m_package, std::move(package));
    m_fileName = fileName;
    m_savedIcon = keyOf(m_package->icon());
    rememberDisk(content);
    watchPackage();
    ++m_behaviorTextsRevision;
    m_issuesStale = true;
    refreshIssues();
    Q_EMIT packageReplaced();
    m_undoStack.clear(); // tells its views and actions
    Q_EMIT fileNameChanged();
    finishEdit();
}

void Document::watchPackage() {
    const auto setStale = [this] { m_issuesStale = true; };
    const auto setSentencesStale = [this] { m_sentencesStale = true; };
    PackageInfoModel *package = m_package.get();
    m_validator = std::make_unique<PackageInfoValidator>(package);
    PackageInfoValidator *validator = m_validator.get();
    connect(validator, &PackageInfoValidator::applicationUIDStateChanged, this, setStale);
    connect(validator, &PackageInfoValidator::robotRequirementsStateChanged, this, setStale);
    connect(validator, &PackageInfoValidator::brioRequirementsStateChanged, this, setStale);
    connect(validator, &PackageInfoValidator::applicationNamesStateChanged, this, setStale);
    connect(validator, &PackageInfoValidator::applicationDescriptionsStateChanged, this, setStale);
    connect(validator, &PackageInfoValidator::triggerSentencesStateChanged, this, setStale);
    validator->activate();

    connect(package, &PackageInfoModel::languageAdded, this, setSentencesStale);
    connect(package, &PackageInfoModel::languageRemoved, this, setSentencesStale);
    connect(package, &PackageInfoModel::behaviorRemoved, this, [this] {
        m_sentencesStale = true;
        ++m_behaviorTextsRevision;
    });
    connect(package, &PackageInfoModel::behaviorAdded, this, [this](BehaviorInfoModel *behavior) {
        m_sentencesStale = true;
        ++m_behaviorTextsRevision;
        watchBehavior(behavior);
    });
    const auto behaviors = package->behaviors();
    for (const BehaviorInfoModel *behavior : behaviors)
        watchBehavior(behavior);
}

void Document::watchBehavior(const BehaviorInfoModel *behavior) {
    // The issues name their behavior by its path.
    connect(behavior, &BehaviorInfoModel::pathUpdated, this, [this] { m_issuesStale = true; });
    const auto countRevision = [this] { ++m_behaviorTextsRevision; };
    connect(behavior, &BehaviorInfoModel::behaviorNameUpdated, this, countRevision);
    connect(behavior, &BehaviorInfoModel::behaviorDescriptionUpdated, this, countRevision);
    connect(behavior, &BehaviorInfoModel::triggerSentenceAdded, this, countRevision);
    connect(behavior, &BehaviorInfoModel::triggerSentenceInserted, this, countRevision);
    connect(behavior, &BehaviorInfoModel::triggerSentenceRemoved, this, countRevision);
}

void Document::finishEdit() {
    refreshIssues();
    Q_EMIT edited();
}

void Document::refreshIssues() {
    if (std::exchange(m_sentencesStale, false)) {
        m_validator->validateBehaviorTriggerSentences();
        m_issuesStale = true;
    }
    if (!std::exchange(m_issuesStale, false))
        return;
    m_issues = Zel::PackageModel::issues(m_package.get());
    m_issueByPath.clear();
    m_behaviorSeverity.clear();
    const auto keepWorst = [](auto &entry, const auto &candidate, bool isWorse) {
        if (isWorse)
            entry = candidate;
    };
    for (const Issue &issue : std::as_const(m_issues)) {
        const bool isError = issue.severity == Severity::Error;
        const bool isFirst = !m_issueByPath.contains(issue.path);
        keepWorst(m_issueByPath[issue.path], issue,
                  isFirst || (isError && m_issueByPath[issue.path].severity != Severity::Error));
        const FieldPlace path = FieldPlace::parse(issue.path);
        if (path.list == QLatin1String("behaviors")) {
            const bool isNew = !m_behaviorSeverity.contains(path.key);
            keepWorst(m_behaviorSeverity[path.key], issue.severity, isNew || isError);
        }
    }
    Q_EMIT issuesChanged();
}

std::optional<Issue> Document::issueAt(const QString &path) const {
    const auto found = m_issueByPath.constFind(path);
    return found == m_issueByPath.cend() ? std::nullopt : std::optional<Issue>(*found);
}

std::optional<Severity> Document::behaviorSeverity(const QString &behaviorPath) const {
    const auto found = m_behaviorSeverity.constFind(behaviorPath);
    return found == m_behaviorSeverity.cend() ? std::nullopt : std::optional<Severity>(*found);
}

void Document::push(QUndoCommand *command) {
    closeRun();
    m_undoStack.push(command);
}

void Document::pushTyped(const MakeCommand &make) {
    m_undoStack.push(make(false));
    m_openRun = make;
    m_openRunIndex = m_undoStack.index();
}

void Document::closeRun() {
    const MakeCommand make = std::exchange(m_openRun, nullptr);
    const bool isOnTop = m_undoStack.index() == m_openRunIndex && !m_undoStack.canRedo();
    // A stack does not merge into its clean step, which is closed for that reason.
    if (make && isOnTop && !m_undoStack.isClean())
        m_undoStack.push(make(true));
}

void Document::abandonRun() {
    if (m_openRun && m_undoStack.index() == m_openRunIndex && !m_undoStack.canRedo())
        m_undoStack.undo();
    m_openRun = nullptr;
}

} // namespace Editor
