#pragma once

#include "field_row.h"

namespace Zel::PackageModel {

/// The index in a path's only selector; -1 if it is outside a list of this size.
inline int indexIn(const Selectors &selectors, int size) {
    const auto index = selectors.size() == 1 ? selectors.front().toIndex() : std::nullopt;
    return index && *index < size ? *index : -1;
}

inline QString taken(const QString &value) {
    return QCoreApplication::translate("Zel::PackageModel", "'%1' already exists.").arg(value);
}

/// A row whose paths lead to a list or to one of its items.
template<typename Owner>
class ListRow : public FieldRow<Owner> {
public:
    ListRow(const char *name, const FieldLabels &labels, FieldKind kind, const char *selectors)
        : FieldRow<Owner>(name, labels, kind, selectors, true) {}

    FieldTarget follow(Owner &owner, const Walk &walk) const override {
        return walk.isLast() ? followList(makeList(owner), walk, 0) : FieldTarget();
    }

protected:
    virtual std::shared_ptr<FieldList> makeList(Owner &owner) const = 0;

    /// The list, or an item of it if there are more selectors than the list itself has.
    static FieldTarget followList(std::shared_ptr<FieldList> list, const Walk &walk,
                                  std::size_t ownSelectors) {
        FieldTarget target{{}, std::move(list), walk.upTo(ownSelectors), -1};
        const Selectors &all = walk.selectors();
        if (all.size() == ownSelectors)
            return target;
        const Selectors rest(all.begin() + std::ptrdiff_t(ownSelectors), all.end());
        target.item = target.list->find(rest);
        return target.item < 0 ? FieldTarget() : target;
    }
};

/// One list of texts of a behavior: tags in a language, conditions for a purpose.
template<typename Key>
class BehaviorTexts : public FieldList {
public:
    struct Operations {
        QStringList (BehaviorInfoModel::*list)(const Key &key) const;
        bool (BehaviorInfoModel::*add)(const QString &text, const Key &key);
        bool (BehaviorInfoModel::*insert)(const QString &text, const Key &key, int index);
        bool (BehaviorInfoModel::*update)(int index, const QString &text, const Key &key);
        bool (BehaviorInfoModel::*remove)(int index, const Key &key);
    };

    BehaviorTexts(BehaviorInfoModel &behavior, const Operations &operations, Key key)
        : m_behavior(&behavior)
        , m_operations(operations)
        , m_key(std::move(key)) {}

    int size() const override { return static_cast<int>(texts().size()); }
    FieldValue at(int index) const override { return texts().at(index); }
    int find(const Selectors &selectors) const override { return indexIn(selectors, size()); }
    void select(FieldPath &path, int index) const override { path.index(index); }
    QString refusal(const FieldValue &value, int) const override {
        return std::holds_alternative<QString>(value) ? QString() : misfit();
    }
    void insert(int index, const FieldValue &value) override {
        const auto &text = std::get<QString>(value);
        const QStringList current = texts();
        if (!current.contains(text)) {
            insertNew(index, current.size(), text);
            return;
        }
        // A list may hold equal texts, but only accepts them by update.
        QString placeholder = text;
        while (current.contains(placeholder))
            placeholder += u'~';
        insertNew(index, current.size(), placeholder);
        replace(index, value);
    }
    void replace(int index, const FieldValue &value) override {
        if (m_behavior)
            (m_behavior->*m_operations.update)(index, std::get<QString>(value), m_key);
    }
    void removeAt(int index) override {
        if (m_behavior)
            (m_behavior->*m_operations.remove)(index, m_key);
    }
    void move(int from, int to) override {
        const FieldValue moved = at(from);
        removeAt(from);
        insert(to, moved);
    }

private:
    QStringList texts() const {
        return m_behavior ? (m_behavior->*m_operations.list)(m_key) : QStringList();
    }
    void insertNew(int index, qsizetype size, const QString &text) {
        if (m_behavior && index == size)
            (m_behavior->*m_operations.add)(text, m_key);
        else if (m_behavior)
            (m_behavior->*m_operations.insert)(text, m_key, index);
    }

    QPointer<BehaviorInfoModel> m_behavior;
    Operations m_operations;
    Key m_key;
};

/// A behavior's lists of texts by language or purpose.
template<typename Key>
class BehaviorTextsRow : public ListRow<BehaviorInfoModel> {
public:
    using Keys = std::vector<Key> (*)(const BehaviorInfoModel &behavior);

    BehaviorTextsRow(const char *name, const FieldLabels &labels, const char *selectors, Keys keys,
                     const typename BehaviorTexts<Key>::Operations &operations)
        : ListRow(name, labels, FieldKind::Text, selectors)
        , m_keys(keys)
        , m_operations(operations) {}

    void list(BehaviorInfoModel &behavior, const FieldPath &base,
              QVector<Field> &fields) const override {
        for (const Key &key : m_keys(behavior)) {
            const QStringList texts = (behavior.*m_operations.list)(key);
            for (int i = 0; i < texts.size(); ++i)
                fields.append({pathIn(base).key(toUtf8(printedKey(key))).index(i), FieldKind::Text,
                               texts.at(i), label()});
        }
    }
    FieldTarget follow(BehaviorInfoModel &behavior, const Walk &walk) const override {
        if (!walk.isLast() || walk.selectors().empty())
            return {};
        const QString key = fromUtf8(walk.selectors().front().text);
        return followList(
            std::make_shared<BehaviorTexts<Key>>(behavior, m_operations, keyOf(key, Key())), walk,
            1);
    }
    QJsonValue toJson(BehaviorInfoModel &behavior) const override {
        QJsonObject lists;
        for (const Key &key : m_keys(behavior))
            lists.insert(printedKey(key),
                         QJsonArray::fromStringList((behavior.*m_operations.list)(key)));
        return lists;
    }
    void compare(BehaviorInfoModel &from, BehaviorInfoModel &to, const FieldPath &base,
                 Edits &edits) const override {
        QMap<QString, Key> keys;
        for (BehaviorInfoModel *behavior : {&from, &to}) {
            for (const Key &key : m_keys(*behavior))
                keys.insert(printedKey(key), key);
        }
        for (auto key = keys.cbegin(); key != keys.cend(); ++key)
            appendTextListEdits((from.*m_operations.list)(*key), (to.*m_operations.list)(*key),
                                pathIn(base).key(toUtf8(key.key())), edits);
    }

protected:
    std::shared_ptr<FieldList> makeList(BehaviorInfoModel &) const override { return {}; }

private:
    static QString printedKey(const QString &purpose) { return purpose; }
    static QString printedKey(const RobotLanguage &language) { return language.isoCode(); }
    static QString keyOf(const QString &text, const QString &) { return text; }
    static RobotLanguage keyOf(const QString &text, const RobotLanguage &) {
        return languageOfCode(text);
    }

    Keys m_keys;
    typename BehaviorTexts<Key>::Operations m_operations;
};

/// The behaviors, dialogs or services of a package.
template<typename Child>
struct EntryKind {
    QVector<Child *> (PackageInfoModel::*all)() const;
    QString (Child::*key)() const;
    FieldValue (*record)(const Child &child);
    FieldValue (*empty)(const std::string &key);
    void (*insert)(PackageInfoModel &package, int index, const FieldValue &record);
    bool (PackageInfoModel::*remove)(Child *child);
    bool (PackageInfoModel::*move)(int from, int to);
    bool (*isRecord)(const FieldValue &value);
    const FieldTable<Child> &(*table)();
};

template<typename Child>
class EntryList : public FieldList {
public:
    EntryList(PackageInfoModel &package, const EntryKind<Child> &kind)
        : m_package(&package)
        , m_kind(kind) {}

    QVector<Child *> all() const {
        return m_package ? (m_package->*m_kind.all)() : QVector<Child *>();
    }
    int size() const override { return static_cast<int>(all().size()); }
    FieldValue at(int index) const override { return m_kind.record(*all().at(index)); }
    std::optional<QStringList> keys() const override {
        QStringList keys;
        for (const Child *child : all())
            keys += (child->*m_kind.key)();
        return keys;
    }

    int find(const Selectors &selectors) const override {
        const auto occurrence = selectors.size() == 2 ? selectors[1].toIndex() : std::optional(0);
        if (selectors.empty() || selectors.size() > 2 || !occurrence || !m_package)
            return -1;
        const auto &children = childrenOf<Child>(*m_package);
        const Child *child = childAt(selectors.front().text, *occurrence);
        return child ? children.placeOf(*child) : -1;
    }
    void select(FieldPath &path, int index) const override {
        const Child *child = all().at(index);
        const std::string key = toUtf8((child->*m_kind.key)());
        const auto alike = childrenOf<Child>(*m_package).findAll(key);
        path.entry(key, int(std::find(alike.begin(), alike.end(), child) - alike.begin()));
    }
    QString refusal(const FieldValue &value, int) const override {
        return m_kind.isRecord(value) ? QString() : misfit();
    }
    void insert(int index, const FieldValue &value) override {
        if (m_package)
            m_kind.insert(*m_package, index, value);
    }
    void replace(int index, const FieldValue &value) override {
        removeAt(index);
        insert(index, value);
    }
    void removeAt(int index) override {
        if (m_package && index < size())
            (m_package->*m_kind.remove)(all().at(index));
    }
    void move(int from, int to) override {
        if (m_package)
            (m_package->*m_kind.move)(from, to);
    }

private:
    // The child with a key that is preceded by `occurrence` others; null if there is none.
    const Child *childAt(const std::string &key, int occurrence) const {
        const auto alike = childrenOf<Child>(*m_package).findAll(toUtf8(fromUtf8(key)));
        return occurrence < int(alike.size()) ? alike[std::size_t(occurrence)] : nullptr;
    }

    QPointer<PackageInfoModel> m_package;
    const EntryKind<Child> &m_kind;
};

template<typename Child>
class EntriesRow : public ListRow<PackageInfoModel> {
public:
    EntriesRow(const char *name, const FieldLabels &labels, FieldKind kind, const char *selectors,
               const EntryKind<Child> &operations)
        : ListRow(name, labels, kind, selectors)
        , m_kind(operations) {}

    void list(PackageInfoModel &package, const FieldPath &base,
              QVector<Field> &fields) const override {
        FieldPortions portions;
        divide(package, base, portions);
        for (const auto &listEntry : portions)
            listEntry(fields);
    }
    void divide(PackageInfoModel &package, const FieldPath &base,
                FieldPortions &portions) const override {
        QHash<QString, int> counts;
        const auto children = (package.*m_kind.all)();
        for (Child *child : children) {
            const QString key = (child->*m_kind.key)();
            const FieldPath item = pathIn(base).entry(toUtf8(key), counts[key]++);
            portions.push_back(
                [this, entry = QPointer<Child>(child), item](QVector<Field> &fields) {
                    if (entry)
                        listAll(m_kind.table(), *entry, item, fields);
                });
        }
    }
    FieldTarget follow(PackageInfoModel &package, const Walk &walk) const override {
        if (walk.isLast())
            return ListRow::follow(package, walk);
        const EntryList<Child> list(package, m_kind);
        const int index = list.find(walk.selectors());
        if (index < 0)
            return {};
        return followIn(m_kind.table(), *list.all().at(index), walk.next());
    }
    std::optional<FieldForm> form(const Walk &walk, QString &error) const override {
        const Selectors &selectors = walk.selectors();
        const bool isEntry =
            selectors.size() == 1 || (selectors.size() == 2 && selectors.back().toIndex());
        if (!isEntry)
            return ListRow::form(walk, error);
        return walk.isLast() ? formAs(false) : formIn(m_kind.table(), walk.next(), error);
    }
    QString describe(const Walk &walk, const OfOwner &of) const override {
        if (walk.isLast() || walk.selectors().empty())
            return ListRow::describe(walk, of);
        return describeIn(m_kind.table(), walk.next(), [&](const QString &label) {
            return inWords(QT_TRANSLATE_NOOP("Zel::PackageModel", "%1 of “%2”"))
                .arg(label, entryName(walk.selectors()));
        });
    }
    bool visitEntries(PackageInfoModel &package,
                      const std::function<void(const QJsonObject &)> &visit) const override {
        for (Child *child : (package.*m_kind.all)())
            visit(objectOf(m_kind.table(), *child));
        return true;
    }
    const char *keyName() const override { return m_kind.table().front()->name(); }
    FieldValue emptyEntry(const QString &key) const override { return m_kind.empty(toUtf8(key)); }
    std::optional<EntrySummaries> summaries(PackageInfoModel &package) const override {
        const EntryList<Child> list(package, m_kind);
        const auto fields = [this, children = list.all()](int index) {
            QJsonObject entry = objectOf(m_kind.table(), *children.at(index));
            entry.remove(QLatin1String(keyName()));
            return entry;
        };
        return EntrySummaries{*list.keys(), fields};
    }
    void compare(PackageInfoModel &from, PackageInfoModel &to, const FieldPath &base,
                 Edits &edits) const override {
        const auto before = (from.*m_kind.all)();
        const auto after = (to.*m_kind.all)();
        const EntrySummaries oldEntries = *summaries(from);
        const EntrySummaries newEntries = *summaries(to);
        const auto newRecord = [&](int index) { return m_kind.record(*after.at(index)); };
        const auto compareFields = [&](int oldIndex, int newIndex, const FieldPath &item,
                                       Edits &all) {
            if (!(m_kind.record(*before.at(oldIndex)) == newRecord(newIndex)))
                compareAll(m_kind.table(), *before.at(oldIndex), *after.at(newIndex), item, all);
        };
        appendEdits({pathIn(base), matchEntries(oldEntries, newEntries), oldEntries.keys,
                     newEntries.keys, newRecord, compareFields, keyName()},
                    edits);
    }

protected:
    std::shared_ptr<FieldList> makeList(PackageInfoModel &package) const override {
        return std::make_shared<EntryList<Child>>(package, m_kind);
    }

private:
    const EntryKind<Child> &m_kind;
};

/// A requirement of a package, by index.
template<typename Requirement>
struct RequirementPlace {
    PackageInfoModel &package;
    int index;
};

template<typename Requirement>
struct RequirementOperations {
    QVector<Requirement> (PackageInfoModel::*all)() const;
    void (PackageInfoModel::*insert)(int index, const Requirement &requirement);
    bool (PackageInfoModel::*update)(int index, const Requirement &requirement);
    bool (PackageInfoModel::*remove)(int index);
    bool (PackageInfoModel::*move)(int from, int to);
    const FieldTable<RequirementPlace<Requirement>> &(*table)();
    const char *memberLabel; ///< of one field of a requirement: its label and the number
};

template<typename Requirement>
class RequirementItems : public FieldList {
public:
    RequirementItems(PackageInfoModel &package,
                     const RequirementOperations<Requirement> &operations)
        : m_package(&package)
        , m_operations(operations) {}

    int size() const override { return static_cast<int>(all().size()); }
    FieldValue at(int index) const override { return all().at(index); }
    int find(const Selectors &selectors) const override { return indexIn(selectors, size()); }
    void select(FieldPath &path, int index) const override { path.index(index); }
    QString refusal(const FieldValue &value, int) const override {
        return std::holds_alternative<Requirement>(value) ? QString() : misfit();
    }
    void insert(int index, const FieldValue &value) override {
        if (m_package)
            (m_package->*m_operations.insert)(index, std::get<Requirement>(value));
    }
    void replace(int index, const FieldValue &value) override {
        if (m_package)
            (m_package->*m_operations.update)(index, std::get<Requirement>(value));
    }
    void removeAt(int index) override {
        if (m_package)
            (m_package->*m_operations.remove)(index);
    }
    void move(int from, int to) override {
        if (m_package)
            (m_package->*m_operations.move)(from, to);
    }

private:
    QVector<Requirement> all() const {
        return m_package ? (m_package->*m_operations.all)() : QVector<Requirement>();
    }

    QPointer<PackageInfoModel> m_package;
    const RequirementOperations<Requirement> &m_operations;
};

template<typename Requirement>
class RequirementsRow : public ListRow<PackageInfoModel> {
public:
    RequirementsRow(const char *name, const FieldLabels &labels,
                    const RequirementOperations<Requirement> &operations)
        : ListRow(name, labels, kindOf<Requirement>(), "[N]")
        , m_operations(operations) {}

    void list(PackageInfoModel &package, const FieldPath &base,
              QVector<Field> &fields) const override {
        const int size = static_cast<int>((package.*m_operations.all)().size());
        for (int i = 0; i < size; ++i) {
            RequirementPlace<Requirement> place{package, i};
            listAll(m_operations.table(), place, pathIn(base).index(i), fields);
        }
    }
    FieldTarget follow(PackageInfoModel &package, const Walk &walk) const override {
        if (walk.isLast())
            return ListRow::follow(package, walk);
        const RequirementItems<Requirement> list(package, m_operations);
        RequirementPlace<Requirement> place{package, list.find(walk.selectors())};
        if (place.index < 0)
            return {};
        return followIn(m_operations.table(), place, walk.next());
    }
    std::optional<FieldForm> form(const Walk &walk, QString &error) const override {
        return walk.isLast() || walk.selectors().size() != 1
                   ? ListRow::form(walk, error)
                   : formIn(m_operations.table(), walk.next(), error);
    }
    QString describe(const Walk &walk, const OfOwner &of) const override {
        const auto index =
            walk.selectors().empty() ? std::nullopt : walk.selectors().front().toIndex();
        if (walk.isLast() || !index)
            return ListRow::describe(walk, of);
        return describeIn(m_operations.table(), walk.next(), [&](const QString &label) {
            return inWords(m_operations.memberLabel).arg(label, QString::number(*index + 1));
        });
    }
    bool visitEntries(PackageInfoModel &package,
                      const std::function<void(const QJsonObject &)> &visit) const override {
        const int size = static_cast<int>((package.*m_operations.all)().size());
        for (int i = 0; i < size; ++i) {
            RequirementPlace<Requirement> place{package, i};
            visit(objectOf(m_operations.table(), place));
        }
        return true;
    }
    FieldValue emptyEntry(const QString &) const override { return Requirement(); }
    void compare(PackageInfoModel &from, PackageInfoModel &to, const FieldPath &base,
                 Edits &edits) const override {
        const auto before = (from.*m_operations.all)();
        const auto after = (to.*m_operations.all)();
        SequenceMatch match(int(before.size()), int(after.size()));
        match.pairEqual(contentsOf(from), contentsOf(to));
        match.pairReplaced();
        const auto newRequirement = [&](int index) { return FieldValue(after.at(index)); };
        const auto compareMembers = [&](int oldIndex, int newIndex, const FieldPath &item,
                                        Edits &all) {
            RequirementPlace<Requirement> old{from, oldIndex};
            RequirementPlace<Requirement> wanted{to, newIndex};
            compareAll(m_operations.table(), old, wanted, item, all);
        };
        appendEdits({pathIn(base), match, {}, {}, newRequirement, compareMembers}, edits);
    }

protected:
    std::shared_ptr<FieldList> makeList(PackageInfoModel &package) const override {
        return std::make_shared<RequirementItems<Requirement>>(package, m_operations);
    }

private:
    QStringList contentsOf(PackageInfoModel &package) const {
        QStringList contents;
        visitEntries(package, [&](const QJsonObject &entry) { contents.append(contentOf(entry)); });
        return contents;
    }

    const RequirementOperations<Requirement> &m_operations;
};

} // namespace Zel::PackageModel
