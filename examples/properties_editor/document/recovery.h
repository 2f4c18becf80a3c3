#pragma once

#include "document.h"

#include <packagemodel/edit_session.h>

#include <QTimer>

#include <chrono>
#include <optional>

namespace Editor {

/// Keeps the unsaved edits of a document on disk, a few seconds after each edit, and finds those of
/// an editor that ended without saving. Also locks the manifest, so that a second window notices
/// the first.
///
/// The icon is not among the edits.
class Recovery : public QObject {
    Q_OBJECT

public:
    /// Watches a document, which has to outlive this object.
    Recovery(Document &document, const QString &folder, QObject *parent = nullptr);
    /// Removes what was kept: the user was asked about unsaved changes before.
    ~Recovery() override;

    /// The folder for the program's state, as the XDG Base Directory Specification has it.
    static QString stateFolder();

    /// How long after an edit it is kept; three seconds unless set.
    void setDelay(std::chrono::milliseconds delay) { m_timer.setInterval(delay); }

    /// Who else has the document's file open.
    std::optional<Zel::PackageModel::EditSession::Owner> otherOwner() const;
    /// Unsaved edits of the document's file that were there when it was opened.
    const std::optional<Zel::PackageModel::UnsavedEdits> &leftover() const { return m_leftover; }
    /// Whether the file has changed since the leftover edits were made.
    bool isFileChanged() const;
    /// Applies the leftover edits as one undo step. Returns why they cannot be applied; then they
    /// stay on disk.
    QString restore();
    /// Removes the leftover edits.
    void dismiss();

    /// Unsaved edits of files that no window has open, the newest first.
    QVector<Zel::PackageModel::Leftover> leftovers() const;
    /// Opens the package of leftover edits, which is one without a file if it never had one.
    /// Returns why it cannot be opened.
    QString open(const Zel::PackageModel::Leftover &leftover);
    void dismiss(const Zel::PackageModel::Leftover &leftover);

Q_SIGNALS:
    /// A package was opened whose file somebody else has open, or has leftover edits of.
    void noticed();
    /// The edits cannot be kept.
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
    // Keeps edits while the leftover ones, which could not be applied, keep their file.
    std::optional<Zel::PackageModel::EditSession> m_spare;
    std::optional<Zel::PackageModel::UnsavedEdits> m_leftover;
    QString m_adopted; // the id of the leftover that is being opened
    bool m_isKept = false;
};

} // namespace Editor
