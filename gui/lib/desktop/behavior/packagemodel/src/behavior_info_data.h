#pragma once

#include "child_list.h"
#include "localized_texts.h"

#include <packagemodel/behavior_info_model.h>

#include <QPointer>

namespace Zel {

struct BehaviorInfoModel::Data : ChildData<BehaviorInfoModel> {
    Data(BehaviorInfoModel *behavior, const Tano::BehaviorInfo &info, PackageInfoModel *package);
    Data(BehaviorInfoModel *behavior, const Data &other);

    using TextField = LocalizedField<BehaviorInfoModel, Data, Tano::BehaviorInfo>;
    static const TextField nameField;
    static const TextField descriptionField;

    /// One kind of list: the operations of the record behind it, its cache, and the notifications
    /// that it sends. `Key` is what such lists are kept by: a language, or a purpose.
    template<typename Key>
    struct ListKind {
        const Tano::TextListMap &(Tano::BehaviorInfo::*lists)() const;
        void (Tano::BehaviorInfo::*add)(const std::string &value, const std::string &key);
        void (Tano::BehaviorInfo::*insert)(const std::string &value, const std::string &key,
                                           int index);
        bool (Tano::BehaviorInfo::*update)(const std::string &oldValue, const std::string &newValue,
                                           const std::string &key, int occurrence);
        bool (Tano::BehaviorInfo::*remove)(const std::string &value, const std::string &key,
                                           int occurrence);
        Language::LocalizedStringLists Data::*cache; // null for conditions, which have none
        void (BehaviorInfoModel::*added)(const QString &value, const Key &key);
        void (BehaviorInfoModel::*inserted)(const QString &value, const Key &key, int index);
        void (BehaviorInfoModel::*updated)(int index, const QString &value, const Key &key);
        void (BehaviorInfoModel::*removed)(int index, const Key &key);
    };

    static const ListKind<RobotLanguage> tagKind;
    static const ListKind<RobotLanguage> triggerSentenceKind;
    static const ListKind<RobotLanguage> loadingResponseKind;
    static const ListKind<QString> conditionKind;

    QStringList list(const ListKind<RobotLanguage> &kind, const RobotLanguage &language) const;
    QStringList list(const ListKind<QString> &kind, const QString &purpose) const;

    template<typename Key>
    bool add(const ListKind<Key> &kind, const QString &newValue, const Key &inKey);
    template<typename Key>
    bool insert(const ListKind<Key> &kind, const QString &newValue, const Key &inKey, int index);
    template<typename Key>
    bool update(const ListKind<Key> &kind, int index, const QString &newValue, const Key &inKey);
    template<typename Key>
    bool remove(const ListKind<Key> &kind, int index, const Key &inKey);

    BehaviorInfoModel *model;
    Language::LocalizedStrings names;
    Language::LocalizedStrings descriptions;
    Language::LocalizedStringLists tags;
    Language::LocalizedStringLists triggerSentences;
    Language::LocalizedStringLists loadingResponses;
    QPointer<PackageInfoModel> package;
};

} // namespace Zel
