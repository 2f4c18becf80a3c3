#pragma once

#include <packagemodel/behavior_commands.h>
#include <packagemodel/dialog_commands.h>
#include <packagemodel/package_info_model.h>
#include <packagemodel/set_string.h>
#include <packagemodel/supported_languages_command.h>

#include <QPixmap>

#include <array>
#include <memory>
#include <vector>

/// All commands of the library, by class name.
namespace Commands {

using namespace Zel;

/// Number 0 means no icon.
inline QIcon icon(const QString &number) {
    const auto colored = [](Qt::GlobalColor color) {
        QPixmap pixmap(4, 4);
        pixmap.fill(color);
        return QIcon(pixmap);
    };
    static const std::array icons{QIcon(), colored(Qt::red), colored(Qt::blue)};
    return icons.at(std::size_t(number.toInt()));
}

/// A code that converts to a language or a purpose.
struct Tag {
    QString code;
    operator QString() const { return code; }
    operator RobotLanguage() const { return RobotLanguage(ISOCode(code), NuanceCode()); }
};

/// A text that converts to a version or an icon.
struct Value {
    QString text;
    operator QString() const { return text; }
    operator SoftwareVersion() const { return SoftwareVersionUtils::fromString(text); }
    operator QIcon() const { return icon(text); }
};

/// Selects a text of the package.
struct What {
    int number = 0;
    operator PackageStringCommand::WhatString() const {
        return PackageStringCommand::WhatString(number);
    }
    operator PackageLocalizedStringCommand::WhatString() const {
        return PackageLocalizedStringCommand::WhatString(number);
    }
};

/// The arguments for any command.
struct Arguments {
    PackageInfoModel *model = nullptr;
    QString key; ///< the behavior's path or the dialog's name
    Value value;
    Tag tag;
    int index = 0; ///< of an item
    What what{};
    bool isAdd = true;
    bool isFinal = false;
};

struct CommandClass {
    const char *name;
    int id;                    ///< -1 if the command never merges
    const char *sameArguments; ///< arguments that must be equal for merging
    QUndoCommand *(*make)(const Arguments &arguments);
};

/// Derived by an editor to add or remove a language of the package.
class SwitchLanguage : public PackageLanguageCommand {
public:
    using PackageLanguageCommand::PackageLanguageCommand;
    void switchLanguage() override {
        if (model()->hasLanguageSupport(language()))
            model()->removeSupportedLanguage(language());
        else
            model()->addSupportedLanguage(language());
    }
};

template<typename Command, auto... arguments>
QUndoCommand *make(const Arguments &a) {
    return new Command((a.*arguments)...);
}

template<typename Command>
QUndoCommand *addOrRemove(const Arguments &a) {
    if (a.isAdd)
        return Command::addCommand(a.model, a.key, a.value, a.tag, a.index);
    return Command::removeCommand(a.model, a.key, a.tag, a.index);
}

inline const std::vector<CommandClass> &commandClasses() {
    constexpr auto model = &Arguments::model;
    constexpr auto key = &Arguments::key;
    constexpr auto value = &Arguments::value;
    constexpr auto tag = &Arguments::tag;
    constexpr auto index = &Arguments::index;
    constexpr auto what = &Arguments::what;
    constexpr auto isAdd = &Arguments::isAdd;
    constexpr auto isFinal = &Arguments::isFinal;
    static const std::vector<CommandClass> classes{
        {"PackageGenericValueCommand<QIcon>", -1, "",
         make<PackageGenericValueCommand<QIcon>, model, value>},
        {"PackageGenericValueCommand<SoftwareVersion>", -1, "",
         make<PackageGenericValueCommand<SoftwareVersion>, model, value>},
        {"PackageLanguageCommand", -1, "", make<SwitchLanguage, model, tag>},
        {"PackageStringCommand", 42, "model what",
         make<PackageStringCommand, model, value, what, isFinal>},
        {"PackageLocalizedStringCommand", 42, "model what tag",
         make<PackageLocalizedStringCommand, model, value, what, tag, isFinal>},
        {"BehaviorSwitchUserRequestableCommand", -1, "",
         make<BehaviorSwitchUserRequestableCommand, model, key>},
        {"BehaviorAddRemovePermissionCommand", -1, "",
         make<BehaviorAddRemovePermissionCommand, model, key, value, isAdd>},
        {"BehaviorPathCommand", 0, "key", make<BehaviorPathCommand, model, key, value, isFinal>},
        {"BehaviorNatureCommand", 1, "key",
         make<BehaviorNatureCommand, model, key, value, isFinal>},
        {"BehaviorNameCommand", 2, "key tag",
         make<BehaviorNameCommand, model, key, value, tag, isFinal>},
        {"BehaviorDescriptionCommand", 3, "key tag",
         make<BehaviorDescriptionCommand, model, key, value, tag, isFinal>},
        {"BehaviorSetTagCommand", 5, "key tag index",
         make<BehaviorSetTagCommand, model, key, value, tag, index, isFinal>},
        {"BehaviorSetTriggerSentenceCommand", 6, "key tag index",
         make<BehaviorSetTriggerSentenceCommand, model, key, value, tag, index, isFinal>},
        {"BehaviorSetLoadingResponseCommand", 7, "key tag index",
         make<BehaviorSetLoadingResponseCommand, model, key, value, tag, index, isFinal>},
        {"BehaviorSetConditionCommand", 8, "key tag index",
         make<BehaviorSetConditionCommand, model, key, value, tag, index, isFinal>},
        {"BehaviorAddRemoveTagCommand", -1, "", addOrRemove<BehaviorAddRemoveTagCommand>},
        {"BehaviorAddRemoveTriggerSentenceCommand", -1, "",
         addOrRemove<BehaviorAddRemoveTriggerSentenceCommand>},
        {"BehaviorAddRemoveLoadingResponseCommand", -1, "",
         addOrRemove<BehaviorAddRemoveLoadingResponseCommand>},
        {"BehaviorAddRemoveConditionCommand", -1, "",
         addOrRemove<BehaviorAddRemoveConditionCommand>},
        {"DialogInfoModelNameCommand", 0, "key",
         make<DialogInfoModelNameCommand, model, key, value, isFinal>},
        {"DialogInfoModelTypeVersionCommand", 1, "key",
         make<DialogInfoModelTypeVersionCommand, model, key, value, isFinal>},
        {"DialogInfoModelTopicCommand", 2, "key tag",
         make<DialogInfoModelTopicCommand, model, key, tag, value, isFinal>},
        {"DialogInfoModelRemoveTopicCommand", -1, "",
         make<DialogInfoModelRemoveTopicCommand, model, key, tag>},
    };
    return classes;
}

inline const CommandClass &commandClass(const QString &name) {
    for (const CommandClass &candidate : commandClasses()) {
        if (name == QLatin1String(candidate.name))
            return candidate;
    }
    qFatal("no class %s", qPrintable(name));
}

inline std::unique_ptr<QUndoCommand> made(const QString &className, const Arguments &arguments) {
    return std::unique_ptr<QUndoCommand>(commandClass(className).make(arguments));
}

} // namespace Commands
