#pragma once

#include "../package_info_data.h"
#include "field_target.h"
#include "field_words.h"
#include "list_difference.h"

#include <packagemodel/package_info_model.h>

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonObject>
#include <QPointer>

#include <algorithm>
#include <string_view>
#include <type_traits>
#include <utility>

namespace Zel::PackageModel {

using Tano::FieldPath;

inline RobotLanguage languageOfCode(const QString &code) {
    const RobotLanguage known = robotLanguage(code);
    return known.isoCode().isEmpty() ? RobotLanguage(ISOCode(code), NuanceCode()) : known;
}

/// Keeps a reference to an owner: a guarded pointer for models, a value for positions in lists.
template<typename Owner, bool isModel = std::is_base_of_v<QObject, Owner>>
class Kept {
public:
    explicit Kept(Owner &owner)
        : m_owner(&owner) {}
    /// Null after the owner was deleted.
    Owner *get() const { return m_owner; }

private:
    QPointer<Owner> m_owner;
};

template<typename Owner>
class Kept<Owner, false> {
public:
    explicit Kept(const Owner &owner)
        : m_owner(std::make_shared<Owner>(owner)) {}
    Owner *get() const { return m_owner.get(); }

private:
    std::shared_ptr<Owner> m_owner;
};

/// The path so far and the steps left to follow.
struct Walk {
    const FieldPath &path;
    std::size_t step = 0;

    const std::string &field() const { return path.steps()[step].field; }
    const Selectors &selectors() const { return path.steps()[step].selectors; }
    Walk next() const { return {path, step + 1}; }
    bool isLast() const { return step + 1 == path.steps().size(); }
    /// The path up to this step, with its first `selectorCount` selectors.
    FieldPath upTo(std::size_t selectorCount) const {
        FieldPath result = path;
        while (result.steps().size() > step + 1 ||
               result.steps().back().selectors.size() > selectorCount)
            result = result.parent();
        return result;
    }
};

/// The FieldKind of a type that FieldValue holds.
template<typename Value>
constexpr FieldKind kindOf() {
    return static_cast<FieldKind>(FieldValue(Value()).index());
}

/// Each function appends some of an owner's fields.
using FieldPortions = std::vector<std::function<void(QVector<Field> &fields)>>;

/// One field of an owner. `Owner` is the model of a package or of an entry, or refers to a
/// requirement.
template<typename Owner>
class FieldRow {
public:
    /// `kind` is that of the value or of each entry. `selectors` shows how one of several values is
    /// selected: "[CODE][N]". For a list, the path without its last selector leads to the list.
    FieldRow(const char *name, const FieldLabels &labels, FieldKind kind,
             const char *selectors = "", bool isList = false)
        : m_name(name)
        , m_labels(labels)
        , m_kind(kind)
        , m_selectors(selectors)
        , m_isList(isList) {}
    FieldRow(const FieldRow &) = delete;
    FieldRow &operator=(const FieldRow &) = delete;
    virtual ~FieldRow() = default;

    const char *name() const { return m_name; }
    FieldKind kind() const { return m_kind; }
    bool isPlain() const { return *m_selectors == '\0'; }
    QString label() const { return inWords(m_labels.one); }

    /// Appends the field, or all items of a list, to `fields`; `base` is the owner's path.
    virtual void list(Owner &owner, const FieldPath &base, QVector<Field> &fields) const = 0;
    /// Like list(), but appends functions to `portions`, which may be called while `owner` lives.
    virtual void divide(Owner &owner, const FieldPath &base, FieldPortions &portions) const {
        portions.push_back(
            [this, &owner, base](QVector<Field> &fields) { list(owner, base, fields); });
    }
    virtual FieldTarget follow(Owner &owner, const Walk &walk) const = 0;
    /// The form of the field at a path, nullopt if the package has none. Sets `error` for malformed
    /// paths.
    virtual std::optional<FieldForm> form(const Walk &walk, QString &error) const {
        const std::string_view selectors(m_selectors);
        const auto all = std::size_t(std::count(selectors.begin(), selectors.end(), '['));
        const std::size_t given = walk.selectors().size();
        const bool isList = m_isList && given + 1 == all;
        if (walk.isLast() && (isList || given == all))
            return formAs(isList);
        error = QCoreApplication::translate("Zel::PackageModel", "It is written '%1%2'.")
                    .arg(QLatin1String(m_name), QLatin1String(m_selectors));
        return {};
    }
    /// Describes the field, its item, or a field of that item; empty for malformed paths.
    virtual QString describe(const Walk &walk, const OfOwner &of) const {
        return fieldWords(m_labels, m_selectors, walk.selectors(), of);
    }
    /// The whole field: a value, an array, or an object by key.
    virtual QJsonValue toJson(Owner &owner) const {
        QJsonArray entries;
        visitEntries(owner, [&](const QJsonObject &entry) { entries.append(entry); });
        return entries;
    }
    /// If the field is a list of entries with fields, visits each as JSON; else returns false.
    virtual bool visitEntries(Owner &, const std::function<void(const QJsonObject &)> &) const {
        return false;
    }
    /// The field that names such an entry in its list, null if entries are selected by index.
    virtual const char *keyName() const { return nullptr; }
    virtual FieldValue emptyEntry(const QString &key) const { return key; }
    /// For a list of entries with keys, their summaries, valid while the owner is unchanged.
    virtual std::optional<EntrySummaries> summaries(Owner &) const { return {}; }
    /// Appends the edits that turn the field of `from` into that of `to`; `base` is the owner's
    /// path when they are applied.
    virtual void compare(Owner &from, Owner &to, const FieldPath &base, Edits &edits) const = 0;
    /// Whether editing the field changes fields of later rows too.
    virtual bool changesOthers() const { return false; }

protected:
    FieldPath pathIn(const FieldPath &base) const { return FieldPath(base).field(m_name); }
    FieldForm formAs(bool isList) const {
        return {m_kind, isList, QLatin1String(m_selectors), label(), false};
    }

private:
    const char *m_name;
    FieldLabels m_labels;
    FieldKind m_kind;
    const char *m_selectors;
    bool m_isList;
};

template<typename Owner>
using FieldTable = std::vector<std::unique_ptr<FieldRow<Owner>>>;

template<typename Owner>
void listAll(const FieldTable<Owner> &table, Owner &owner, const FieldPath &base,
             QVector<Field> &fields) {
    for (const auto &row : table)
        row->list(owner, base, fields);
}

template<typename Owner>
const FieldRow<Owner> *rowOf(const FieldTable<Owner> &table, const Walk &walk) {
    const auto row = std::find_if(table.begin(), table.end(),
                                  [&](const auto &each) { return each->name() == walk.field(); });
    return row == table.end() ? nullptr : row->get();
}

template<typename Owner>
void compareAll(const FieldTable<Owner> &table, Owner &from, Owner &to, const FieldPath &base,
                Edits &edits) {
    for (const auto &row : table)
        row->compare(from, to, base, edits);
}

template<typename Owner>
FieldTarget followIn(const FieldTable<Owner> &table, Owner &owner, const Walk &walk) {
    const auto *row = rowOf(table, walk);
    return row ? row->follow(owner, walk) : FieldTarget();
}

template<typename Owner>
std::optional<FieldForm> formIn(const FieldTable<Owner> &table, const Walk &walk, QString &error) {
    if (const auto *row = rowOf(table, walk))
        return row->form(walk, error);
    QStringList names;
    for (const auto &row : table)
        names += QLatin1String(row->name());
    error = noFieldNamed(fromUtf8(walk.field()), names);
    return {};
}

template<typename Owner>
QString describeIn(const FieldTable<Owner> &table, const Walk &walk, const OfOwner &of) {
    const auto *row = rowOf(table, walk);
    return row ? row->describe(walk, of) : QString();
}

template<typename Owner>
QJsonObject objectOf(const FieldTable<Owner> &table, Owner &owner) {
    QJsonObject object;
    for (const auto &row : table)
        object.insert(QLatin1String(row->name()), row->toJson(owner));
    return object;
}

/// A field with a single value: a text, a flag or a version.
template<typename Owner, typename Value>
class CellRow : public FieldRow<Owner> {
public:
    using Get = std::function<Value(const Owner &)>;
    using Set = std::function<void(Owner &, const Value &)>;

    CellRow(const char *name, const char *label, Get get, Set set)
        : FieldRow<Owner>(name, label, kindOf<Value>())
        , m_get(std::move(get))
        , m_set(std::move(set)) {}

    void list(Owner &owner, const FieldPath &base, QVector<Field> &fields) const override {
        fields.append({this->pathIn(base), this->kind(), m_get(owner), this->label()});
    }
    FieldTarget follow(Owner &owner, const Walk &walk) const override {
        if (!walk.isLast() || !walk.selectors().empty())
            return {};
        const auto set = [this, kept = Kept<Owner>(owner)](const FieldValue &value) {
            if (Owner *living = kept.get())
                m_set(*living, std::get<Value>(value));
        };
        return {FieldCell{this->kind(), FieldValue(m_get(owner)), set, {}}};
    }
    QJsonValue toJson(Owner &owner) const override {
        if constexpr (std::is_same_v<Value, SoftwareVersion>)
            return SoftwareVersionUtils::toString(m_get(owner));
        else
            return m_get(owner);
    }
    void compare(Owner &from, Owner &to, const FieldPath &base, Edits &edits) const override {
        const Value wanted = m_get(to);
        if (!(m_get(from) == wanted))
            edits.append({Edit::Action::Set, this->pathIn(base), FieldValue(wanted)});
    }

private:
    Get m_get;
    Set m_set;
};

/// A field that identifies its owner among the entries of its kind.
template<typename Child>
class KeyRow : public CellRow<Child, QString> {
public:
    using Get = QString (Child::*)() const;
    using Find = Child *(PackageInfoModel::*)(const QString &key) const;
    using Record = FieldValue (*)(const Child &child);

    KeyRow(const char *name, const char *label, Get get, void (Child::*set)(const QString &),
           Find find, Record record)
        : CellRow<Child, QString>(name, label, get, set)
        , m_get(get)
        , m_find(find)
        , m_record(record) {}

    std::optional<FieldForm> form(const Walk &walk, QString &error) const override {
        auto form = CellRow<Child, QString>::form(walk, error);
        if (form)
            form->isKey = true;
        return form;
    }
    FieldTarget follow(Child &owner, const Walk &walk) const override {
        FieldTarget target = CellRow<Child, QString>::follow(owner, walk);
        const auto *package = qobject_cast<PackageInfoModel *>(owner.parent());
        if (!target.cell || !package)
            return target;
        target.cell->refusal = [find = m_find, &owner, package](const QString &key) {
            const Child *taker = (package->*find)(key);
            return taker && taker != &owner
                       ? QCoreApplication::translate("Zel::PackageModel", "'%1' is already in use.")
                             .arg(key)
                       : QString();
        };
        target.cell->inverse = [get = m_get, record = m_record, &owner, package,
                                path = walk.path](const QString &key) {
            FieldPath renamed;
            renamed.field(path.steps().front().field).entry(toUtf8(key));
            const QString old = (owner.*get)();
            if (childrenOf<Child>(*package).findAll(toUtf8(old)).size() == 1)
                return Edit{Edit::Action::Set, renamed.field(path.steps().back().field), old};
            return Edit{Edit::Action::Set, renamed, record(owner)}; // the old key is taken
        };
        return target;
    }
    void compare(Child &, Child &, const FieldPath &, Edits &) const override {
        // Renames go through the list of entries.
    }

private:
    Get m_get;
    Find m_find;
    Record m_record;
};

/// One text per language.
template<typename Owner>
class TextsRow : public FieldRow<Owner> {
public:
    using All = const Language::LocalizedStrings &(Owner::*)() const;
    using Set = std::function<void(Owner &, const QString &, const RobotLanguage &)>;
    using Remove = bool (Owner::*)(const RobotLanguage &);

    TextsRow(const char *name, const char *label, All all, Set set, Remove remove)
        : FieldRow<Owner>(name, label, FieldKind::Text, "[CODE]")
        , m_all(all)
        , m_set(std::move(set))
        , m_remove(remove) {}

    void list(Owner &owner, const FieldPath &base, QVector<Field> &fields) const override {
        for (const auto &[text, language] : (owner.*m_all)())
            fields.append({this->pathIn(base).key(toUtf8(language.isoCode())), FieldKind::Text,
                           text, this->label()});
    }
    FieldTarget follow(Owner &owner, const Walk &walk) const override {
        if (!walk.isLast() || walk.selectors().size() != 1)
            return {};
        const RobotLanguage language = languageOfCode(fromUtf8(walk.selectors().front().text));
        std::optional<FieldValue> current;
        for (const auto &[text, each] : (owner.*m_all)()) {
            if (each == language)
                current = text;
        }
        const Kept<Owner> kept(owner);
        const auto set = [this, kept, language, isAbsent = !current](const FieldValue &value) {
            const auto &text = std::get<QString>(value);
            // The setters do not distinguish an absent text from an empty one.
            if (Owner *living = kept.get(); living && isAbsent && text.isEmpty())
                m_set(*living, QStringLiteral("~"), language);
            if (Owner *living = kept.get())
                m_set(*living, text, language);
        };
        const auto remove = [kept, language, drop = m_remove] {
            if (Owner *living = kept.get())
                (living->*drop)(language);
        };
        return {FieldCell{FieldKind::Text, current, set, remove}};
    }
    QJsonValue toJson(Owner &owner) const override {
        QJsonObject texts;
        for (const auto &[text, language] : (owner.*m_all)())
            texts.insert(language.isoCode(), text);
        return texts;
    }
    void compare(Owner &from, Owner &to, const FieldPath &base, Edits &edits) const override {
        appendTextEdits(toJson(from).toObject(), toJson(to).toObject(), this->pathIn(base), edits);
    }

private:
    All m_all;
    Set m_set;
    Remove m_remove;
};

} // namespace Zel::PackageModel
