#pragma once

#include "field_target.h"

#include <packagemodel/package_info_model.h>

#include <QCoreApplication>
#include <QPointer>

#include <algorithm>
#include <type_traits>
#include <utility>

namespace Zel::PackageModel {

using Tano::FieldPath;

inline RobotLanguage languageOfCode(const QString &code) {
    const RobotLanguage known = robotLanguage(code);
    return known.isoCode().isEmpty() ? RobotLanguage(ISOCode(code), NuanceCode()) : known;
}

/// Keeps an owner for later: a model by a guarded pointer, a place in a list by value.
template<typename Owner, bool isModel = std::is_base_of_v<QObject, Owner>>
class Kept {
public:
    explicit Kept(Owner &owner)
        : m_owner(&owner) {}
    /// Null once the owner is gone.
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

/// The steps of a path that are left to follow, with the path so far.
struct Walk {
    const FieldPath &path;
    std::size_t step = 0;

    const Selectors &selectors() const { return path.steps()[step].selectors; }
    bool isLast() const { return step + 1 == path.steps().size(); }
    /// The path up to this step, with the first `selectorCount` of its selectors.
    FieldPath upTo(std::size_t selectorCount) const {
        FieldPath result = path;
        while (result.steps().size() > step + 1 ||
               result.steps().back().selectors.size() > selectorCount)
            result = result.parent();
        return result;
    }
};

inline QString inWords(const char *source) {
    return QCoreApplication::translate("Zel::PackageModel", source);
}

inline QString misfit() {
    return inWords(QT_TRANSLATE_NOOP("Zel::PackageModel", "The value is of another type."));
}

/// Adds the owner of a field to its label: "Nature" becomes "Nature of “greet”".
using OfOwner = std::function<QString(const QString &label)>;

/// "Name" and "fr_FR" become "Name in French (France)".
inline QString inLanguage(const QString &label, const FieldPath::Selector &code) {
    return inWords(QT_TRANSLATE_NOOP("Zel::PackageModel", "%1 in %2"))
        .arg(label, languageOfCode(fromUtf8(code.text)).uiName());
}

/// "Behavior" and "greet" become "Behavior “greet”".
inline QString named(const QString &label, const QString &key) {
    return inWords(QT_TRANSLATE_NOOP("Zel::PackageModel", "%1 “%2”")).arg(label, key);
}

/// One field of an owner: a package, or an entry of it. `Owner` is a model, or refers to a
/// requirement.
template<typename Owner>
class FieldRow {
public:
    /// A list has a label for one of its items, and one for all of them.
    FieldRow(const char *name, const char *label, const char *listLabel = nullptr)
        : m_name(name)
        , m_label(label)
        , m_listLabel(listLabel) {}
    FieldRow(const FieldRow &) = delete;
    FieldRow &operator=(const FieldRow &) = delete;
    virtual ~FieldRow() = default;

    const char *name() const { return m_name; }
    QString label() const { return inWords(m_label); }
    QString listLabel() const { return m_listLabel ? inWords(m_listLabel) : label(); }

    /// Appends the field, or all of a list, to `fields`; `base` is the path of the owner.
    virtual void list(Owner &owner, const FieldPath &base, QVector<Field> &fields) const = 0;
    virtual FieldTarget follow(Owner &owner, const Walk &walk) const = 0;
    /// The field, or one of its items or theirs, in words.
    virtual QString describe(const Walk &walk, const OfOwner &of) const {
        Q_UNUSED(walk)
        return of(label());
    }

protected:
    FieldPath pathIn(const FieldPath &base) const { return FieldPath(base).field(m_name); }

private:
    const char *m_name;
    const char *m_label;
    const char *m_listLabel;
};

template<typename Owner>
using FieldTable = std::vector<std::unique_ptr<FieldRow<Owner>>>;

template<typename Owner>
void listAll(const FieldTable<Owner> &table, Owner &owner, const FieldPath &base,
             QVector<Field> &fields) {
    for (const auto &row : table)
        row->list(owner, base, fields);
}

/// The row of the field that a path comes to; null for none.
template<typename Owner>
const FieldRow<Owner> *rowFor(const FieldTable<Owner> &table, const Walk &walk) {
    const std::string &name = walk.path.steps()[walk.step].field;
    const auto row = std::find_if(table.begin(), table.end(),
                                  [&](const auto &each) { return each->name() == name; });
    return row == table.end() ? nullptr : row->get();
}

template<typename Owner>
FieldTarget followIn(const FieldTable<Owner> &table, Owner &owner, const Walk &walk) {
    const auto *row = rowFor(table, walk);
    return row ? row->follow(owner, walk) : FieldTarget();
}

/// The words for a path; empty if it leads to no kind of field.
template<typename Owner>
QString describeIn(const FieldTable<Owner> &table, const Walk &walk, const OfOwner &of) {
    const auto *row = rowFor(table, walk);
    return row ? row->describe(walk, of) : QString();
}

/// A field that holds one value: a text, a flag or a version.
template<typename Owner, typename Value>
class CellRow : public FieldRow<Owner> {
public:
    using Get = std::function<Value(const Owner &)>;
    using Set = std::function<void(Owner &, const Value &)>;

    CellRow(const char *name, const char *label, Get get, Set set)
        : FieldRow<Owner>(name, label)
        , m_get(std::move(get))
        , m_set(std::move(set)) {}

    void list(Owner &owner, const FieldPath &base, QVector<Field> &fields) const override {
        fields.append({this->pathIn(base), kind, m_get(owner), this->label()});
    }
    FieldTarget follow(Owner &owner, const Walk &walk) const override {
        if (!walk.isLast() || !walk.selectors().empty())
            return {};
        const auto set = [this, kept = Kept<Owner>(owner)](const FieldValue &value) {
            if (Owner *living = kept.get())
                m_set(*living, std::get<Value>(value));
        };
        return {FieldCell{kind, FieldValue(m_get(owner)), set, {}}};
    }

private:
    static constexpr FieldKind kind = std::is_same_v<Value, QString> ? FieldKind::Text
                                      : std::is_same_v<Value, bool>  ? FieldKind::Flag
                                                                     : FieldKind::Version;
    Get m_get;
    Set m_set;
};

/// A field that names its owner among the entries of its kind.
template<typename Child>
class KeyRow : public CellRow<Child, QString> {
public:
    using Get = QString (Child::*)() const;
    using Find = Child *(PackageInfoModel::*)(const QString &key) const;
    using All = QVector<Child *> (PackageInfoModel::*)() const;
    using Record = FieldValue (*)(const Child &child);

    KeyRow(const char *name, const char *label, Get get, void (Child::*set)(const QString &),
           Find find, All all, Record record)
        : CellRow<Child, QString>(name, label, get, set)
        , m_get(get)
        , m_find(find)
        , m_all(all)
        , m_record(record) {}

    FieldTarget follow(Child &owner, const Walk &walk) const override {
        FieldTarget target = CellRow<Child, QString>::follow(owner, walk);
        const auto *package = qobject_cast<PackageInfoModel *>(owner.parent());
        if (!target.cell || !package)
            return target;
        target.cell->refusal = [find = m_find, &owner, package](const QString &key) {
            const Child *taker = (package->*find)(key);
            return taker && taker != &owner
                       ? QCoreApplication::translate("Zel::PackageModel", "'%1' is taken.").arg(key)
                       : QString();
        };
        target.cell->inverse = [get = m_get, all = m_all, record = m_record, &owner, package,
                                path = walk.path](const QString &key) {
            FieldPath renamed;
            renamed.field(path.steps().front().field).entry(toUtf8(key));
            const QString old = (owner.*get)();
            const auto children = (package->*all)();
            const auto isAlike = [&](const Child *child) { return (child->*get)() == old; };
            if (std::count_if(children.begin(), children.end(), isAlike) == 1)
                return Edit{Edit::Action::Set, renamed.field(path.steps().back().field), old};
            return Edit{Edit::Action::Set, renamed, record(owner)}; // the old key is taken
        };
        return target;
    }

private:
    Get m_get;
    Find m_find;
    All m_all;
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
        : FieldRow<Owner>(name, label)
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
        const auto set = [this, kept, language](const FieldValue &value) {
            if (Owner *living = kept.get())
                m_set(*living, std::get<QString>(value), language);
        };
        const auto remove = [kept, language, drop = m_remove] {
            if (Owner *living = kept.get())
                (living->*drop)(language);
        };
        return {FieldCell{FieldKind::Text, current, set, remove}};
    }
    QString describe(const Walk &walk, const OfOwner &of) const override {
        const QString label = of(this->label());
        return walk.selectors().empty() ? label : inLanguage(label, walk.selectors().front());
    }

private:
    All m_all;
    Set m_set;
    Remove m_remove;
};

} // namespace Zel::PackageModel
