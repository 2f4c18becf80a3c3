#pragma once

#include <packagemodel/set_command.h>

#include <zel/robot_language.h>

namespace Zel {

/// The base of the commands that add a language to the package or take one away. Doing and undoing
/// are the same: a subclass switches the language, and sets the text of the command.
class PACKAGEMODEL_EXPORT PackageLanguageCommand : public PackageCommand {
public:
    PackageLanguageCommand(PackageInfoModel *model, const RobotLanguage &language);
    ~PackageLanguageCommand() override;

    void undo() override;
    void redo() override;

    /// Adds language() where the package lacks it, and removes it where the package has it, or any
    /// other operation that undoes itself when it is run again.
    virtual void switchLanguage() = 0;

protected:
    const RobotLanguage &language() const { return m_language; }

private:
    RobotLanguage m_language;
};

} // namespace Zel
