#pragma once

#include <packagemodel/issue_tracker.h>
#include <packagemodel/package_coverage.h>
#include <packagemodel/package_edits.h>
#include <packagemodel/package_info_model.h>
#include <packagemodel/package_merge.h>

#include <tano/save_file.h>

#include <QDateTime>
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

/// The open package: its model, file, undo stack and issues.
///
/// All edits go through type(), edit() or push(). After an edit, an undo or a redo, the issues are
/// updated, then edited() is emitted, and after undo and redo fieldChanged(). edited() also follows
/// a save and changes of files beside the manifest.
class Document : public QObject {
    Q_OBJECT

public:
    enum class DiskState { Same, Changed, Vanished };

    /// Creates an empty package without a file.
    explicit Document(QObject *parent = nullptr);
    ~Document() override;

    /// Replaced when another package is opened, so do not use it after packageReplaced().
    Zel::PackageInfoModel *package() const { return m_package.get(); }
    QUndoStack *undoStack() { return &m_undoStack; }
    bool isModified() const { return !m_undoStack.isClean(); }
    /// Whether a command is being done, undone or redone, or an undo or redo is being announced. No
    /// edit may be made meanwhile.
    bool isStepping() const { return m_isStepping; }

    // Files. On failure, these functions return false, change nothing, and set errorString().

    bool open(const QString &fileName);
    /// Opens a package without a file from the text of a manifest.
    bool openTemplate(const QByteArray &manifest);
    /// Writes the manifest and, if the icon has changed, "icon.png" beside it: both or neither.
    /// Fails if another program has changed the open file since the last checkDisk().
    bool save(const QString &fileName);
    /// Writes a copy for publication: without texts in unlisted languages, and with plain text
    /// instead of scripts.
    bool publish(const QString &fileName);
    const QString &fileName() const { return m_fileName; }
    /// The package when it was opened or last saved.
    const Tano::PackageInfo &saved() const { return m_saved; }
    /// The template of a package without a file.
    const QByteArray &templateManifest() const { return m_template; }
    /// The digest of the manifest when it was last read or written, see UnsavedEdits.
    QByteArray digest() const;
    const QString &errorString() const { return m_errorString; }

    /// The package as written by publish().
    std::unique_ptr<Zel::PackageInfoModel> published() const;
    /// Reads the package that is in the file now.
    std::unique_ptr<Zel::PackageInfoModel> readAgain();
    /// Merges the file's current contents with the unsaved edits, as an undo step. Returns the
    /// conflicts, which are also issues, or nullopt if the file cannot be merged.
    std::optional<QVector<Zel::PackageModel::MergeConflict>> mergeWithFile();

    /// Compares the file with its last known state. Emits fileDiffers() once per difference.
    DiskState checkDisk();
    /// Updates the issues and the icon to the files beside the manifest; an icon that was edited
    /// stays. Takes as long as an edit.
    void checkFiles();

    // Edits.

    /// Sets a field to typed text. Typing in one field is one undo step until the run is closed, by
    /// closeRun() or by a pause. If the field cannot take the text, restores its value before the
    /// run and returns the reason.
    QString type(const Tano::FieldPath &field, const QString &text);
    /// Applies edits as an undo step, or changes nothing and emits editRefused(). By default, the
    /// text of the step describes the edits.
    void edit(const Zel::PackageModel::Edits &edits, const QString &text = {});
    /// Pushes a command for changes that edits cannot express, that is, of the icon.
    void push(QUndoCommand *command);
    /// Ends the run, so that further typing is a new undo step.
    void closeRun();
    /// Reverts the run if one is open in this field.
    void abandonRun(const Tano::FieldPath &field);
    /// The length of a pause that ends the run, by default one second.
    void setTypingPause(std::chrono::milliseconds pause) { m_pause.setInterval(pause); }

    /// The edits from the package as opened or last saved to the current one, or the whole package
    /// if edits cannot express the change exactly. Excludes the icon.
    Zel::PackageModel::Edits pendingEdits() const;
    /// The icon as PNG if it has changed since, empty if there is none any more.
    std::optional<QByteArray> pendingIcon() const;
    /// Whether the icon has changed since.
    bool isIconEdited() const;
    /// Sets the icon from a PNG file's content, as an undo step; removes it if there is none.
    /// Ignores other content.
    void setIcon(const QByteArray &png);

    // The current issues.

    const QVector<Zel::PackageModel::Issue> &issues() const { return m_tracker->issues(); }
    /// The ways to correct one of issues(), the most likely first.
    QVector<Zel::PackageModel::Fix> fixes(const Zel::PackageModel::Issue &issue) const {
        return m_tracker->fixes(issue);
    }
    /// The most severe issue of a field.
    std::optional<Zel::PackageModel::Issue> issueAt(const Tano::FieldPath &path) const;
    /// The greatest severity among the issues of the entries of a list with this key.
    std::optional<Zel::PackageModel::Severity> entrySeverity(const QString &list,
                                                             const QString &key) const;
    /// The greatest severity among the issues of a field and, for a list, of its entries.
    std::optional<Zel::PackageModel::Severity> fieldSeverity(const Tano::FieldPath &path) const;

    // Translation progress, computed on demand since there may be very many texts.

    const Zel::RobotLanguages &languages() const;
    /// The coverage of a language; nothing is expected in languages outside languages().
    Zel::PackageModel::LanguageCoverage coverage(const QString &languageCode) const;

Q_SIGNALS:
    void packageReplaced();
    void edited();
    /// Undo or redo has changed this field or entry.
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
    bool updateIssues();
    QPair<QDateTime, qint64> iconOnDisk() const;
    bool followIcon();
    void rememberIcon();
    void indexIssues();
    void rememberDisk(const Tano::FileFingerprint &content);
    bool addIcon(const QString &manifest, std::vector<Tano::FileToSave> &files);

    std::unique_ptr<Zel::PackageInfoModel> m_package;
    QUndoStack m_undoStack;
    Tano::FieldPath m_run; // the field being typed in; empty if no run is open
    QTimer m_pause;
    int m_stackIndex = 0;
    bool m_isReplayable = true; // whether a reload can be followed by the pending edits
    bool m_isPushing = false;
    bool m_isStepping = false;
    bool m_isReplacing = false;

    std::unique_ptr<Zel::PackageModel::IssueTracker> m_tracker;
    QHash<QString, Zel::PackageModel::Issue> m_issueByPath;
    QHash<QPair<QString, QString>, Zel::PackageModel::Severity> m_entrySeverity; // by list and key

    // The only languages in which texts of behaviors and dialogs can be edited.
    mutable std::optional<Zel::RobotLanguages> m_languages;
    mutable std::optional<std::vector<Zel::PackageModel::LanguageCoverage>> m_coverages;

    QString m_fileName;
    Tano::PackageInfo m_saved;
    QByteArray m_template;
    QString m_errorString;
    QFileSystemWatcher m_watcher;
    Tano::FileFingerprint m_onDisk; // when it was last read or written
    DiskState m_reported = DiskState::Same;
    Tano::FileFingerprint m_seenOnDisk; // by checkDisk()
    qint64 m_savedIcon = 0;
    QPair<QDateTime, qint64> m_iconOnDisk; // time and size when it was last read or written
};

} // namespace Editor
