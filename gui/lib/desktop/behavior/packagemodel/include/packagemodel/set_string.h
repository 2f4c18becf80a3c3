#pragma once

#include <packagemodel/set_command.h>

#include <zel/robot_language.h>

namespace Zel {

/// Sets one of the package's plain texts. Merges with later ones for the same text of the same
/// package.
class PACKAGEMODEL_EXPORT PackageStringCommand : public PackageGenericValueCommand<QString>,
                                                 public MergeableCommand {
public:
    /// The text that is set. For any other number a command does nothing.
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

    PackageStringCommand(PackageInfoModel *model, const QString &newValue, WhatString what,
                         bool isFinal);

    /// The package's text.
    QString value() const;
    void setValue(const QString &value);

    void undo() override;
    void redo() override;
    int id() const override;
    bool mergeWith(const QUndoCommand *incoming) override;
    bool isFinalCommand() const override;

private:
    int m_what;
    TextEdit m_edit;
};

/// Sets the package's name or description in one language. Merges with later ones for the same text
/// of the same package.
class PACKAGEMODEL_EXPORT PackageLocalizedStringCommand
    : public PackageGenericValueCommand<QString>,
      public MergeableCommand {
public:
    /// The text that is set. For any other number a command does nothing.
    enum WhatString : int { Name, Description };

    PackageLocalizedStringCommand(PackageInfoModel *model, const QString &newValue, WhatString what,
                                  const RobotLanguage &language, bool isFinal);

    /// The package's text.
    QString value() const;
    void setValue(const QString &value);

    void undo() override;
    void redo() override;
    int id() const override;
    bool mergeWith(const QUndoCommand *incoming) override;
    bool isFinalCommand() const override;

private:
    int m_what;
    RobotLanguage m_language;
    TextEdit m_edit;
};

} // namespace Zel
