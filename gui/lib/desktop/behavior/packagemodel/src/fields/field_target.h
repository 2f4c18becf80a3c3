#pragma once

#include <packagemodel/package_edits.h>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace Zel::PackageModel {

using Selectors = std::vector<Tano::FieldPath::Selector>;

/// A list that edits insert into, remove from and reorder. Indexes must be valid.
class FieldList {
public:
    FieldList() = default;
    FieldList(const FieldList &) = delete;
    FieldList &operator=(const FieldList &) = delete;
    virtual ~FieldList() = default;

    virtual int size() const = 0;
    virtual FieldValue at(int index) const = 0;
    /// The index that a path's selectors mean, -1 if there is no such item.
    virtual int find(const Selectors &selectors) const = 0;
    /// The keys that select the items, nullopt if they are selected by index.
    virtual std::optional<QStringList> keys() const { return {}; }
    /// Appends the selectors of an item to the list's path.
    virtual void select(Tano::FieldPath &path, int index) const = 0;

    /// The reason why a value cannot be put at an index, empty if it can. `replaced` is the index
    /// of the item that it replaces, or -1.
    virtual QString refusal(const FieldValue &value, int replaced) const = 0;
    virtual void insert(int index, const FieldValue &value) = 0;
    virtual void replace(int index, const FieldValue &value) = 0;
    virtual void removeAt(int index) = 0;
    virtual void move(int from, int to) = 0;
    /// The edits that restore what is removed along with an item.
    virtual Edits lostWith(int index) const {
        Q_UNUSED(index)
        return {};
    }
    /// The edits that undo what is added along with a value.
    virtual Edits gainedWith(const FieldValue &value) const {
        Q_UNUSED(value)
        return {};
    }
};

/// A field with a single value.
struct FieldCell {
    FieldKind kind = FieldKind::Text;
    std::optional<FieldValue> value; // nullopt if the field is absent
    std::function<void(const FieldValue &)> set;
    std::function<void()> remove;                             // null if it cannot be absent
    std::function<QString(const QString &text)> refusal = {}; // for a key that is taken
    std::function<Edit(const QString &)> inverse = {};        // for setting a key
};

/// The target of a path: a cell, or a list with an optional item; all empty if there is none.
struct FieldTarget {
    std::optional<FieldCell> cell = {};
    std::shared_ptr<FieldList> list = {};
    Tano::FieldPath listPath = {};
    int item = -1;
};

/// The target of a path in a package.
FieldTarget targetOf(PackageInfoModel &package, const Tano::FieldPath &path);
/// The path of an item of the target list.
Tano::FieldPath itemPath(const FieldTarget &list, int index);

/// The reason why a path has no target in a package.
QString reasonOf(PackageInfoModel &package, const Tano::FieldPath &path);
/// The error for an unknown field of an owner with these fields.
QString noFieldNamed(const QString &name, const QStringList &names);

} // namespace Zel::PackageModel
