#pragma once

#include "document.h"

#include <packagemodel/edit_session.h>

#include <QTimer>

#include <chrono>
#include <optional>

namespace Editor {

/// Stores unsaved edits on disk a few seconds after each edit, and finds those of an editor that
/// crashed. Also locks the manifest, so that a second window notices the first.
class Recovery : public QObject {
    Q_OBJECT

public:
    /// `document` must outlive this object.
    Recovery(Document &document, const QString &folder, QObject *parent = nullptr);
    /// Removes the stored edits: the user has been asked about unsaved changes.
    ~Recovery() override;

    /// The program's folder for state according to the XDG Base Directory Specification.
    static QString stateFolder();

    /// The delay between an edit and its storage, by default three seconds.
    void setDelay(std::chrono::milliseconds delay) { m_timer.setInterval(delay); }

    /// The owner of the lock if the file is open elsewhere.
    std::optional<Zel::PackageModel::EditSession::Owner> otherOwner() const;
    /// Unsaved edits of the file that were found when it was opened.
    const std::optional<Zel::PackageModel::UnsavedEdits> &leftover() const { return m_leftover; }
    /// Whether the file has changed since the leftover edits were made.
    bool isFileChanged() const;
    /// Applies the leftover edits as one undo step, and a leftover icon as another. On failure,
    /// returns the reason and keeps them on disk.
    QString restore();
    /// Removes the leftover edits.
    void dismiss();

    /// Unsaved edits of files that are not open, newest first.
    QVector<Zel::PackageModel::Leftover> leftovers() const;
    /// Opens the package of leftover edits, possibly one without a file. On failure, returns the
    /// reason.
    QString open(const Zel::PackageModel::Leftover &leftover);
    void dismiss(const Zel::PackageModel::Leftover &leftover);

Q_SIGNALS:
    /// The opened file is also open elsewhere, or has leftover edits.
    void noticed();
    /// The edits cannot be stored.
    void failed(const QString &reason);

private:
    void begin(const QString &adopted);
    void moveToFile();
    void schedule();
    void keep();
    void discard();

    Document &m_document;
    QString m_folder;
    QTimer m_timer;
    QString m_fileName; // of the session
    std::optional<Zel::PackageModel::EditSession> m_session;
    // Stores edits while leftover ones that could not be applied remain on disk.
    std::optional<Zel::PackageModel::EditSession> m_spare;
    std::optional<Zel::PackageModel::UnsavedEdits> m_leftover;
    QString m_adopted; // the id of the leftover being opened
    bool m_isKept = false;
};

} // namespace Editor
