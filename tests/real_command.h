#pragma once

#include "edit_reference.h"
#include "switch_language.h"

#include <packagemodel/behavior_commands.h>
#include <packagemodel/dialog_commands.h>
#include <packagemodel/set_string.h>

#include <QPixmap>

/// The library's command for a plain one.
namespace RealCommand {

using namespace Zel;
using Reference::Command;
using Reference::Kind;

inline RobotLanguage language(const QString &code) {
    return RobotLanguage(ISOCode(code), NuanceCode());
}

/// Number 0 stands for no icon.
inline QIcon icon(const QString &number) {
    const auto colored = [](Qt::GlobalColor color) {
        QPixmap pixmap(4, 4);
        pixmap.fill(color);
        return QIcon(pixmap);
    };
    static const std::array icons{QIcon(), colored(Qt::red), colored(Qt::blue)};
    return icons.at(std::size_t(number.toInt()));
}

template<typename Set, typename AddRemove, typename Tag>
QUndoCommand *itemCommand(PackageInfoModel *package, const Command &c, const Tag &tag) {
    if (c.kind == Kind::SetItem)
        return new Set(package, c.key, c.value, tag, c.index, c.isFinal);
    return c.isAdd ? AddRemove::addCommand(package, c.key, c.value, tag, c.index)
                   : AddRemove::removeCommand(package, c.key, tag, c.index);
}

inline QUndoCommand *itemCommand(PackageInfoModel *package, const Command &c) {
    switch (c.which) {
    case 0:
        return itemCommand<BehaviorSetTagCommand, BehaviorAddRemoveTagCommand>(package, c,
                                                                               language(c.tag));
    case 1:
        return itemCommand<BehaviorSetTriggerSentenceCommand,
                           BehaviorAddRemoveTriggerSentenceCommand>(package, c, language(c.tag));
    case 2:
        return itemCommand<BehaviorSetLoadingResponseCommand,
                           BehaviorAddRemoveLoadingResponseCommand>(package, c, language(c.tag));
    default:
        return itemCommand<BehaviorSetConditionCommand, BehaviorAddRemoveConditionCommand>(
            package, c, c.tag);
    }
}

/// The caller owns it.
inline QUndoCommand *make(PackageInfoModel *package, const Command &c) {
    switch (c.kind) {
    case Kind::PlainText:
        return new PackageStringCommand(package, c.value, PackageStringCommand::WhatString(c.which),
                                        c.isFinal);
    case Kind::LocalizedText:
        return new PackageLocalizedStringCommand(package, c.value,
                                                 PackageLocalizedStringCommand::WhatString(c.which),
                                                 language(c.tag), c.isFinal);
    case Kind::Version:
        return new PackageGenericValueCommand<SoftwareVersion>(
            package, SoftwareVersionUtils::fromString(c.value));
    case Kind::Icon:
        return new PackageGenericValueCommand<QIcon>(package, icon(c.value));
    case Kind::Language:
        return new SwitchLanguage(package, language(c.tag));
    case Kind::Path:
        return new BehaviorPathCommand(package, c.key, c.value, c.isFinal);
    case Kind::Nature:
        return new BehaviorNatureCommand(package, c.key, c.value, c.isFinal);
    case Kind::Name:
        return new BehaviorNameCommand(package, c.key, c.value, language(c.tag), c.isFinal);
    case Kind::Description:
        return new BehaviorDescriptionCommand(package, c.key, c.value, language(c.tag), c.isFinal);
    case Kind::SetItem:
    case Kind::AddRemoveItem:
        return itemCommand(package, c);
    case Kind::Requestable:
        return new BehaviorSwitchUserRequestableCommand(package, c.key);
    case Kind::Permission:
        return new BehaviorAddRemovePermissionCommand(package, c.key, c.value, c.isAdd);
    case Kind::TopicName:
        return new DialogInfoModelNameCommand(package, c.key, c.value, c.isFinal);
    case Kind::TypeVersion:
        return new DialogInfoModelTypeVersionCommand(package, c.key, c.value, c.isFinal);
    case Kind::Topic:
        return new DialogInfoModelTopicCommand(package, c.key, language(c.tag), c.value, c.isFinal);
    default:
        return new DialogInfoModelRemoveTopicCommand(package, c.key, language(c.tag));
    }
}

} // namespace RealCommand
