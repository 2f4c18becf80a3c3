#include <packagemodel/edit_session.h>

#include "../log_category.h"

#include <packagemodel/text_conversion.h>

#include <tano/log.h>
#include <tano/save_file.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QUuid>

#include <algorithm>
#include <utility>

namespace Zel::PackageModel {
namespace {

const QLatin1String editsSuffix(".edits.json");
const QLatin1String lockSuffix(".lock");

QString idOf(const QString &fileName) {
    if (fileName.isEmpty())
        return QStringLiteral("new-") + QUuid::createUuid().toString(QUuid::WithoutBraces);
    const QFileInfo file(fileName); // may be reachable through several links
    const QString path = file.exists() ? file.canonicalFilePath() : file.absoluteFilePath();
    return QString::fromLatin1(manifestDigest(path.toUtf8()));
}

void makePrivateFolder(const QString &folder) {
    if (!QDir(folder).exists() && QDir().mkpath(folder))
        QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

// Saving preserves the mode of the replaced file, so it is created private first.
void makePrivateFile(const QString &fileName) {
    QFile file(fileName);
    if (file.open(QIODevice::WriteOnly | QIODevice::NewOnly))
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
}

std::optional<UnsavedEdits> readUnsavedEdits(const QString &fileName) {
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly) || file.size() == 0)
        return {};
    const ParsedUnsavedEdits parsed = unsavedEditsFromJson(file.readAll());
    if (parsed.error.isEmpty())
        return parsed.unsaved;
    Tano::log::write(logCategory, Tano::log::Level::Warning, "leftover",
                     QStringLiteral("Ignoring %1: %2").arg(fileName, parsed.error));
    return {};
}

} // namespace

struct PACKAGEMODEL_NO_EXPORT EditSession::Data {
    Data(const QString &folder, const QString &id)
        : base(QDir(folder).filePath(id))
        , lock(base + lockSuffix) {
        makePrivateFolder(folder);
        lock.setStaleLockTime(0); // only the end of the process makes it stale
        lock.tryLock(0);
    }
    QString editsFile() const { return base + editsSuffix; }
    // If the folder is not writable, nobody else can lock it either.
    bool isOurs() const { return lock.isLocked() || lock.error() != QLockFile::LockFailedError; }

    QString base;
    QLockFile lock;
};

EditSession::EditSession(const QString &folder, const QString &fileName)
    : m_data(std::make_unique<Data>(folder, idOf(fileName))) {
}

EditSession::EditSession(std::unique_ptr<Data> data)
    : m_data(std::move(data)) {
}

EditSession EditSession::ofLeftover(const QString &folder, const QString &id) {
    return EditSession(std::make_unique<Data>(folder, id));
}

EditSession::EditSession(EditSession &&other) noexcept = default;
EditSession &EditSession::operator=(EditSession &&other) noexcept = default;
EditSession::~EditSession() = default;

std::optional<EditSession::Owner> EditSession::otherOwner() const {
    Owner owner{};
    if (m_data->isOurs() ||
        !m_data->lock.getLockInfo(&owner.process, &owner.host, &owner.application))
        return {};
    return owner;
}

std::optional<UnsavedEdits> EditSession::leftover() const {
    return m_data->isOurs() ? readUnsavedEdits(m_data->editsFile()) : std::nullopt;
}

QString EditSession::keep(const UnsavedEdits &unsaved) {
    if (!m_data->isOurs())
        return {};
    makePrivateFile(m_data->editsFile());
    Tano::FileToSave file;
    file.path = toUtf8(m_data->editsFile());
    file.bytes = toJson(unsaved).toStdString();
    file.links = Tano::FileToSave::Links::Refuse;
    return fromUtf8(Tano::saveFile(file).error);
}

void EditSession::discard() {
    if (m_data->isOurs())
        QFile::remove(m_data->editsFile());
}

QVector<Leftover> leftovers(const QString &folder) {
    QVector<Leftover> found;
    const auto idsOf = [&](QLatin1String suffix) {
        QStringList ids = QDir(folder).entryList({QLatin1Char('*') + suffix}, QDir::Files);
        for (QString &id : ids)
            id.chop(suffix.size());
        return ids;
    };
    const QStringList kept = idsOf(editsSuffix);
    for (const QString &id : kept) {
        if (const auto unsaved = EditSession::ofLeftover(folder, id).leftover())
            found.append({id, *unsaved});
    }
    const QStringList locks = idsOf(lockSuffix);
    for (const QString &id : locks)
        EditSession::ofLeftover(folder, id); // removes the lock of a killed process
    std::stable_sort(found.begin(), found.end(), [](const Leftover &a, const Leftover &b) {
        return a.unsaved.time > b.unsaved.time;
    });
    return found;
}

} // namespace Zel::PackageModel
