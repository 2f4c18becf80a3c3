#pragma once

#include <packagemodel/set_command.h>

#include <zel/robot_language.h>

namespace Zel {

/// Sets one of the package's plain texts. Merges with later commands for the same text of the same
/// package.
///
/// ```cpp
/// using Text = PackageStringCommand;
/// stack.push(new Text(&package, QStringLiteral("Ines"), Text::Author, true));
/// ```
class PACKAGEMODEL_EXPORT PackageStringCommand : public PackageGenericValueCommand<QString>,
                                                 public MergeableCommand {
public:
    /// The text to set. With any other number, a command does nothing.
    enum WhatString : int {
        Installer,
        Uid,
        TypeVersion,
        Author,
        Organization,
        Date,
        Channel,
        Path
    };

    /// `isFinal` keeps later commands from merging into this one.
    PackageStringCommand(PackageInfoModel *model, const QString &newValue, WhatString what,
                         bool isFinal);

    /// The current text of the package.
    QString value() const;
    /// Sets the text of the package.
    void setValue(const QString &value);

    void undo() override;
    void redo() override;
    /// The same for all commands of this class.
    int id() const override;
    /// Merges a later command for the same text.
    bool mergeWith(const QUndoCommand *incoming) override;
    bool isFinalCommand() const override;

private:
    int m_what;
    TextEdit m_edit;
};

/// Sets the package's name or description in one language. Merges with later commands for the same
/// text of the same package.
///
/// ```cpp
/// using Text = PackageLocalizedStringCommand;
/// stack.push(new Text(&package, QStringLiteral("Thé"), Text::Name, french, true));
/// ```
class PACKAGEMODEL_EXPORT PackageLocalizedStringCommand
    : public PackageGenericValueCommand<QString>,
      public MergeableCommand {
public:
    /// The text to set. With any other number, a command does nothing.
    enum WhatString : int { Name, Description };

    /// `isFinal` keeps later commands from merging into this one.
    PackageLocalizedStringCommand(PackageInfoModel *model, const QString &newValue, WhatString what,
                                  const RobotLanguage &language, bool isFinal);

    /// The current text of the package.
    QString value() const;
    /// Sets the text of the package.
    void setValue(const QString &value);

    void undo() override;
    void redo() override;
    /// The same for all commands of this class.
    int id() const override;
    /// Merges a later command for the same text.
    bool mergeWith(const QUndoCommand *incoming) override;
    bool isFinalCommand() const override;

private:
    int m_what;
    RobotLanguage m_language;
    TextEdit m_edit;
};

} // namespace Zel
