#include "recovery.h"

#include "change_list.h"

#include <QDir>

#include <utility>

namespace Editor {

using Zel::PackageModel::EditSession;
using Zel::PackageModel::Leftover;
using Zel::PackageModel::UnsavedEdits;

Recovery::Recovery(Document &document, const QString &folder, QObject *parent)
    : QObject(parent)
    , m_document(document)
    , m_folder(folder) {
    m_timer.setSingleShot(true);
    setDelay(std::chrono::seconds(3));
    connect(&m_timer, &QTimer::timeout, this, &Recovery::keep);
    connect(&document, &Document::packageReplaced, this,
            [this] { begin(std::exchange(m_adopted, {})); });
    connect(&document, &Document::fileNameChanged, this, &Recovery::moveToFile);
    connect(&document, &Document::edited, this, &Recovery::schedule);
    connect(document.undoStack(), &QUndoStack::cleanChanged, this, &Recovery::schedule);
    m_session.emplace(m_folder);
}

Recovery::~Recovery() {
    discard();
}

QString Recovery::stateFolder() {
    const QString state = qEnvironmentVariable("XDG_STATE_HOME");
    const QString folder =
        QDir::isAbsolutePath(state) ? state : QDir::home().filePath(QStringLiteral(".local/state"));
    return QDir(folder).filePath(QStringLiteral("zel-properties-editor"));
}

void Recovery::begin(const QString &adopted) {
    discard(); // the user has already decided about them
    m_spare.reset();
    m_session.reset(); // it may hold the lock of the same file
    m_fileName = m_document.fileName();
    if (adopted.isEmpty())
        m_session.emplace(m_folder, m_fileName);
    else
        m_session = EditSession::ofLeftover(m_folder, adopted);
    m_leftover = m_session->leftover();
    if (m_leftover || otherOwner())
        Q_EMIT noticed();
}

// After Save As, the target has this package, so edits left for its earlier contents are dropped.
void Recovery::moveToFile() {
    if (m_document.fileName() == m_fileName)
        return;
    discard();
    m_fileName = m_document.fileName();
    m_leftover.reset();
    m_spare.reset();
    m_session.reset();
    m_session.emplace(m_folder, m_fileName);
    if (otherOwner())
        Q_EMIT noticed();
}

void Recovery::schedule() {
    if (!m_document.isModified())
        discard();
    else if (!m_timer.isActive())
        m_timer.start();
}

void Recovery::keep() {
    UnsavedEdits unsaved;
    unsaved.fileName = m_document.fileName();
    unsaved.manifest = m_document.templateManifest();
    unsaved.digest = m_document.digest();
    unsaved.time = QDateTime::currentDateTimeUtc();
    unsaved.edits = m_document.pendingEdits();
    unsaved.icon = m_document.pendingIcon();
    if (m_leftover && !m_spare)
        m_spare.emplace(m_folder);
    const QString error = (m_leftover ? m_spare : m_session)->keep(unsaved);
    m_isKept = true;
    if (!error.isEmpty())
        Q_EMIT failed(error);
}

void Recovery::discard() {
    m_timer.stop();
    if (std::exchange(m_isKept, false))
        (m_leftover ? m_spare : m_session)->discard();
}

std::optional<EditSession::Owner> Recovery::otherOwner() const {
    return m_session->otherOwner();
}

bool Recovery::isFileChanged() const {
    return m_leftover && m_leftover->digest != m_document.digest();
}

QString Recovery::restore() {
    if (!m_leftover)
        return {};
    const QString error = changesOf(m_document.package(), m_leftover->edits).error;
    if (!error.isEmpty())
        return error;
    const UnsavedEdits unsaved = *std::exchange(m_leftover, std::nullopt);
    m_isKept = true; // until they are saved or undone
    if (!unsaved.edits.isEmpty())
        m_document.edit(unsaved.edits, tr("Recovered edits"));
    if (unsaved.icon)
        m_document.setIcon(*unsaved.icon);
    return {};
}

void Recovery::dismiss() {
    if (std::exchange(m_leftover, std::nullopt))
        m_session->discard();
}

QVector<Leftover> Recovery::leftovers() const {
    return Zel::PackageModel::leftovers(m_folder);
}

QString Recovery::open(const Leftover &leftover) {
    if (!leftover.unsaved.fileName.isEmpty())
        return m_document.open(leftover.unsaved.fileName) ? QString() : m_document.errorString();
    m_adopted = leftover.id;
    if (m_document.openTemplate(leftover.unsaved.manifest))
        return {};
    m_adopted.clear();
    return m_document.errorString();
}

void Recovery::dismiss(const Leftover &leftover) {
    EditSession::ofLeftover(m_folder, leftover.id).discard();
}

} // namespace Editor
