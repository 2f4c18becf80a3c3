#pragma once

#include <packagemodel/package_info_model.h>
#include <packagemodel/supported_languages_command.h>

/// What an editor derives to add a language that the package lacks, or to remove it.
class SwitchLanguage : public Zel::PackageLanguageCommand {
public:
    using PackageLanguageCommand::PackageLanguageCommand;
    void switchLanguage() override {
        if (model()->hasLanguageSupport(language()))
            model()->removeSupportedLanguage(language());
        else
            model()->addSupportedLanguage(language());
    }
};
