#pragma once

#include <packagemodel/issue_tracker.h>
#include <packagemodel/package_coverage.h>
#include <packagemodel/package_edits.h>
#include <packagemodel/package_info_model.h>
#include <packagemodel/package_merge.h>

#include <tano/save_file.h>

#include <QFileSystemWatcher>
#include <QHash>
#include <QObject>
#include <QTimer>
#include <QUndoStack>

#include <chrono>
#include <memory>
#include <optional>
#include <vector>

namespace Zel {
class PackageEditCommand;
}

namespace Editor {

/// The open package: its model, the file it came from, its undo stack, and what is wrong with it.
///
/// Every edit goes through type(), edit() or push(). When one is done, undone or redone, the issues
/// are brought up to date first, then edited() is sent, and fieldChanged() after undo and redo.
class Document : public QObject {
    Q_OBJECT

public:
    enum class DiskState { Same, Changed, Vanished };

    /// An empty package without a file.
    explicit Document(QObject *parent = nullptr);
    ~Document() override;

    /// Replaced as a whole by what opens a package, so do not keep it beyond packageReplaced().
    Zel::PackageInfoModel *package() const { return m_package.get(); }
    QUndoStack *undoStack() { return &m_undoStack; }
    bool isModified() const { return !m_undoStack.isClean(); }

    // Files. What fails returns false, leaves everything as it was, and explains itself in
    // errorString().

    bool open(const QString &fileName);
    /// Starts a package without a file from a manifest's text.
    bool openTemplate(const QByteArray &manifest);
    /// Writes the manifest, and "icon.png" beside it if the icon has changed, both or neither.
    /// Fails if another program has changed the open file since checkDisk() last looked at it.
    bool save(const QString &fileName);
    /// Writes a copy for users: without texts in languages that are not offered, and as plain text.
    bool publish(const QString &fileName);
    const QString &fileName() const { return m_fileName; }
    /// The package as it was opened or last saved.
    const Tano::PackageInfo &saved() const { return m_saved; }
    /// The manifest that a package without a file was started from.
    const QByteArray &templateManifest() const { return m_template; }
    /// The digest of the manifest that was last read or written, see UnsavedEdits.
    QByteArray digest() const;
    const QString &errorString() const { return m_errorString; }

    /// The package as publish() writes it.
    std::unique_ptr<Zel::PackageInfoModel> published() const;
    /// Reads the package that the file has now, which another program may have changed.
    std::unique_ptr<Zel::PackageInfoModel> readAgain();
    /// Merges what another program has written into the file with the edits since it was last read
    /// or saved, as an undo step. Returns the conflicts, which the issues hold too; nothing if the
    /// file cannot be merged.
    std::optional<QVector<Zel::PackageModel::MergeConflict>> mergeWithFile();

    /// Compares the file with what was last read or written. Once for every difference, sends
    /// fileDiffers().
    DiskState checkDisk();

    // Edits.

    /// Sets a field to a typed text. What is typed in one field is one undo step until the run is
    /// closed, which a pause does too. Returns why the field cannot take the text; the field then
    /// has what it had before the run.
    QString type(const Tano::FieldPath &field, const QString &text);
    /// Applies edits as an undo step, or changes nothing and sends editRefused(). Without a text,
    /// the edits in words are the text of the step.
    void edit(const Zel::PackageModel::Edits &edits, const QString &text = {});
    /// Pushes a command for what no edit changes: the icon.
    void push(QUndoCommand *command);
    /// Ends the run, so that what is typed next is another step.
    void closeRun();
    /// Takes the run back, if one is open in that field.
    void abandonRun(const Tano::FieldPath &field);
    /// How long a pause in typing ends the run; a second unless set.
    void setTypingPause(std::chrono::milliseconds pause) { m_pause.setInterval(pause); }

    /// The edits that lead from the package as it was opened or last saved to the present one; the
    /// whole package if edits cannot lead there exactly. The icon is not among them.
    Zel::PackageModel::Edits pendingEdits() const;

    // What is wrong, as it is right now.

    const QVector<Zel::PackageModel::Issue> &issues() const { return m_tracker->issues(); }
    /// The ways to correct one of issues(), the most likely first.
    QVector<Zel::PackageModel::Fix> fixes(const Zel::PackageModel::Issue &issue) const {
        return m_tracker->fixes(issue);
    }
    /// The worst issue of the field with that path.
    std::optional<Zel::PackageModel::Issue> issueAt(const Tano::FieldPath &path) const;
    /// The severity of the worst issue of a behavior.
    std::optional<Zel::PackageModel::Severity> behaviorSeverity(const QString &behaviorPath) const;

    // How far the package is translated. Counted when asked for, since there may be very many
    // texts.

    const Zel::RobotLanguages &languages() const;
    /// The coverage in one of languages(); nothing is expected in others.
    Zel::PackageModel::LanguageCoverage coverage(const QString &languageCode) const;

Q_SIGNALS:
    void packageReplaced();
    void edited();
    /// An undo or redo has changed the field or entry with that path.
    void fieldChanged(const QString &path);
    void editRefused(const QString &reason);
    void issuesChanged();
    void fileNameChanged();
    void fileDiffers(Editor::Document::DiskState state);

private:
    void replacePackage(std::unique_ptr<Zel::PackageInfoModel> package, const QString &fileName,
                        const Tano::FileFingerprint &content);
    void watchPackage();
    void pushCommand(QUndoCommand *command);
    const Zel::PackageEditCommand *commandAt(int index) const;
    Tano::FieldPath changedField(int indexBefore) const;
    QString refusalOf(const Zel::PackageModel::Edits &edits) const;
    void finishEdit();
    void trackIssues();
    void indexIssues();
    void rememberDisk(const Tano::FileFingerprint &content);
    bool addIcon(const QString &manifest, std::vector<Tano::FileToSave> &files);

    std::unique_ptr<Zel::PackageInfoModel> m_package;
    QUndoStack m_undoStack;
    Tano::FieldPath m_run; // the field that is being typed in; empty while no run is open
    QTimer m_pause;
    int m_stackIndex = 0;
    bool m_isReplayable = true; // whether a load of the saved file takes the edits that follow
    bool m_isPushing = false;
    bool m_isReplacing = false;

    std::unique_ptr<Zel::PackageModel::IssueTracker> m_tracker;
    QHash<QString, Zel::PackageModel::Issue> m_issueByPath;
    QHash<QString, Zel::PackageModel::Severity> m_behaviorSeverity;

    // Texts of behaviors and dialogs are edited in these languages only.
    mutable std::optional<Zel::RobotLanguages> m_languages;
    mutable std::optional<std::vector<Zel::PackageModel::LanguageCoverage>> m_coverages;

    QString m_fileName;
    Tano::PackageInfo m_saved;
    QByteArray m_template;
    QString m_errorString;
    QFileSystemWatcher m_watcher;
    Tano::FileFingerprint m_onDisk; // when last read or written
    DiskState m_reported = DiskState::Same;
    Tano::FileFingerprint m_seenOnDisk; // by checkDisk()
    qint64 m_savedIcon = 0;
};

} // namespace Editor
