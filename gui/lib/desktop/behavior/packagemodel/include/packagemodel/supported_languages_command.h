#pragma once

#include <packagemodel/set_command.h>

#include <zel/robot_language.h>

namespace Zel {

/// The base of commands that add a language to a package or remove one. Redoing and undoing are the
/// same operation, which a subclass implements; it also sets the text of the command.
///
/// ```cpp
/// class SupportedLanguageCommand : public PackageLanguageCommand {
/// public:
///     using PackageLanguageCommand::PackageLanguageCommand;
///     void switchLanguage() override {
///         if (model()->hasLanguageSupport(language()))
///             model()->removeSupportedLanguage(language());
///         else
///             model()->addSupportedLanguage(language());
///     }
/// };
/// stack.push(new SupportedLanguageCommand(&package, french));
/// ```
class PACKAGEMODEL_EXPORT PackageLanguageCommand : public PackageCommand {
public:
    /// Adds or removes `language`.
    PackageLanguageCommand(PackageInfoModel *model, const RobotLanguage &language);
    ~PackageLanguageCommand() override;

    void undo() override;
    void redo() override;

    /// Adds language() if the package lacks it, otherwise removes it; or any other operation that
    /// reverts itself when it is called again.
    virtual void switchLanguage() = 0;

protected:
    /// The language to add or remove.
    const RobotLanguage &language() const { return m_language; }

private:
    RobotLanguage m_language;
};

} // namespace Zel
