#pragma once

#include <packagemodel/package_coverage.h>
#include <packagemodel/package_edits.h>
#include <packagemodel/package_info_model.h>
#include <packagemodel/package_issues.h>

#include <tano/save_file.h>

#include <QFileSystemWatcher>
#include <QHash>
#include <QObject>
#include <QSet>
#include <QUndoStack>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace Editor {

/// The open package: its model, the file it came from, its undo stack, and what is wrong with it.
///
/// Every edit goes through edit(), push() or pushTyped(). When one is done, undone or redone, the
/// issues are brought up to date first, and edited() is sent last.
class Document : public QObject {
    Q_OBJECT

public:
    /// Makes the command of a typed edit: the one that closes the run when asked for a final one.
    using MakeCommand = std::function<QUndoCommand *(bool isFinal)>;

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
    const QString &errorString() const { return m_errorString; }

    /// Compares the file with what was last read or written. Once for every difference, sends
    /// fileDiffers().
    DiskState checkDisk();

    // Edits.

    /// Applies edits as an undo step of its own with that text, or changes nothing and sends
    /// editRefused(). None of the edits may depend on another one.
    void edit(const Zel::PackageModel::Edits &edits, const QString &text);
    /// Does an edit that is an undo step of its own.
    void push(QUndoCommand *command);
    /// Does an edit that is part of a run of keystrokes.
    void pushTyped(const MakeCommand &make);
    /// Ends the run, so that what is typed next is another step.
    void closeRun();
    /// Takes the run back, if one is open.
    void abandonRun();

    // What is wrong, as it is right now.

    const QVector<Zel::PackageModel::Issue> &issues() const { return m_issues; }
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
    void editRefused(const QString &reason);
    void issuesChanged();
    void fileNameChanged();
    void fileDiffers(Editor::Document::DiskState state);

private:
    void replacePackage(std::unique_ptr<Zel::PackageInfoModel> package, const QString &fileName,
                        const Tano::FileFingerprint &content);
    void watchPackage();
    void finishEdit();
    void refreshIssues();
    void rememberDisk(const Tano::FileFingerprint &content);
    bool addIcon(const QString &manifest, std::vector<Tano::FileToSave> &files);

    std::unique_ptr<Zel::PackageInfoModel> m_package;
    QUndoStack m_undoStack;
    MakeCommand m_openRun;
    int m_openRunIndex = 0;

    QVector<Zel::PackageModel::Issue> m_issues;
    QHash<QString, Zel::PackageModel::Issue> m_issueByPath;
    QHash<QString, Zel::PackageModel::Severity> m_behaviorSeverity;

    // Texts of behaviors and dialogs are edited in these languages only.
    mutable std::optional<Zel::RobotLanguages> m_languages;
    mutable std::optional<std::vector<Zel::PackageModel::LanguageCoverage>> m_coverages;

    QString m_fileName;
    QString m_errorString;
    QFileSystemWatcher m_watcher;
    Tano::FileFingerprint m_onDisk; // when last read or written
    DiskState m_reported = DiskState::Same;
    Tano::FileFingerprint m_seenOnDisk; // by checkDisk()
    qint64 m_savedIcon = 0;
};

} // namespace Editor
