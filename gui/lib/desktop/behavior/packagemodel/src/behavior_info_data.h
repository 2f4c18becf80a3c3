#pragma once

#include "child_list.h"
#include "localized_texts.h"

#include <packagemodel/behavior_info_model.h>

#include <QPointer>
#include <QSet>

#include <memory>
#include <set>
#include <string>

namespace Zel {

struct PACKAGEMODEL_NO_EXPORT BehaviorInfoModel::Data : ChildData<BehaviorInfoModel> {
    Data(BehaviorInfoModel *behavior, const Tano::BehaviorInfo &info, PackageInfoModel *package);
    Data(BehaviorInfoModel *behavior, const Data &other);

    using TextField = LocalizedField<BehaviorInfoModel, Data, Tano::BehaviorInfo>;
    static const TextField nameField;
    static const TextField descriptionField;

    /// One kind of list: the record's operations, the cache, and the notifications. `Key` is a
    /// language or a purpose.
    template<typename Key>
    struct ListKind {
        Tano::BehaviorList list;
        void (Tano::BehaviorInfo::*add)(const std::string &value, const std::string &key);
        void (Tano::BehaviorInfo::*insert)(const std::string &value, const std::string &key,
                                           int index);
        CachedLists Data::*cache; // null for conditions, which are not cached
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

    int size(const ListKind<RobotLanguage> &kind, const RobotLanguage &language) const;
    int size(const ListKind<QString> &kind, const QString &purpose) const;
    bool contains(const ListKind<RobotLanguage> &kind, const RobotLanguage &language,
                  const QString &value) const;
    bool contains(const ListKind<QString> &kind, const QString &purpose,
                  const QString &value) const;

    QString valueAt(const ListKind<RobotLanguage> &kind, const RobotLanguage &language,
                    int index) const;
    QString valueAt(const ListKind<QString> &kind, const QString &purpose, int index) const;

    /// Like contains(), but in constant time while values are appended to a long list.
    template<typename Key>
    bool holds(const ListKind<Key> &kind, const Key &key, const QString &value);

    /// Drops what the package does not support. The codes are those of the languages.
    void trim(const ByLanguage<RobotLanguage> &descriptionLanguages,
              const ByLanguage<RobotLanguage> &supportedLanguages,
              const std::set<std::string> &descriptionCodes,
              const std::set<std::string> &supportedCodes);

    template<typename Key>
    bool add(const ListKind<Key> &kind, const QString &newValue, const Key &inKey);
    template<typename Key>
    bool insert(const ListKind<Key> &kind, const QString &newValue, const Key &inKey, int index);
    template<typename Key>
    bool update(const ListKind<Key> &kind, int index, const QString &newValue, const Key &inKey);
    template<typename Key>
    bool remove(const ListKind<Key> &kind, int index, const Key &inKey);

    BehaviorInfoModel *model;
    CachedTexts names;
    CachedTexts descriptions;
    CachedLists tags;
    CachedLists triggerSentences;
    CachedLists loadingResponses;
    QPointer<PackageInfoModel> package;

private:
    template<typename Key>
    void noteAdded(const ListKind<Key> &kind, const Key &key);
    template<typename Key>
    void noteChanged(const ListKind<Key> &kind, const Key &key);

    /// The values of the list that was added to last. Empty until a second value is added.
    struct AddedTo {
        Tano::BehaviorList list;
        std::string key;
        QSet<QString> values;
    };
    std::unique_ptr<AddedTo> m_addedTo; // reset by any other change of that list
};

} // namespace Zel
