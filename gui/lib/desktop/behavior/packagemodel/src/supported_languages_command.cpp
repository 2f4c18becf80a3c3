#include <packagemodel/supported_languages_command.h>

namespace Zel {

PackageLanguageCommand::PackageLanguageCommand(PackageInfoModel *model,
                                               const RobotLanguage &language)
    : PackageCommand(model)
    , m_language(language) {
}

PackageLanguageCommand::~PackageLanguageCommand() = default;

void PackageLanguageCommand::undo() {
    if (model())
        switchLanguage();
}

void PackageLanguageCommand::redo() {
    if (model())
        switchLanguage();
}

} // namespace Zel
