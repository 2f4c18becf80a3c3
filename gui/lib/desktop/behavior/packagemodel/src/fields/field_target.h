#pragma once

#include <packagemodel/package_edits.h>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace Zel::PackageModel {

using Selectors = std::vector<Tano::FieldPath::Selector>;

/// A list of a package that edits insert into, remove from and reorder. Indexes are valid ones.
class FieldList {
public:
    FieldList() = default;
    FieldList(const FieldList &) = delete;
    FieldList &operator=(const FieldList &) = delete;
    virtual ~FieldList() = default;

    virtual int size() const = 0;
    virtual FieldValue at(int index) const = 0;
    /// The index that the selectors of a path mean; -1 for none.
    virtual int find(const Selectors &selectors) const = 0;
    /// The keys that select the items; nothing if they are selected by index.
    virtual std::optional<QStringList> keys() const { return {}; }
    /// Appends the selectors of an item to the path of the list.
    virtual void select(Tano::FieldPath &path, int index) const = 0;

    /// Why a value cannot be put at an index, where `replaced` is the item that it replaces or -1;
    /// empty if it can.
    virtual QString refusal(const FieldValue &value, int replaced) const = 0;
    virtual void insert(int index, const FieldValue &value) = 0;
    virtual void replace(int index, const FieldValue &value) = 0;
    virtual void removeAt(int index) = 0;
    virtual void move(int from, int to) = 0;
    /// The edits that restore what the removal of an item takes along besides the item.
    virtual Edits lostWith(int index) const {
        Q_UNUSED(index)
        return {};
    }
    /// The edits that undo what the insertion of a value brings along besides the item.
    virtual Edits gainedWith(const FieldValue &value) const {
        Q_UNUSED(value)
        return {};
    }
};

/// A field that holds one value.
struct FieldCell {
    FieldKind kind = FieldKind::Text;
    std::optional<FieldValue> value; // nothing if the field is absent
    std::function<void(const FieldValue &)> set;
    std::function<void()> remove;                             // empty if it cannot be absent
    std::function<QString(const QString &text)> refusal = {}; // of a key that is taken
    std::function<Edit(const QString &)> inverse = {};        // of setting a key
};

/// What a path leads to: a cell, or a list and maybe one of its items. All empty for nothing.
struct FieldTarget {
    std::optional<FieldCell> cell = {};
    std::shared_ptr<FieldList> list = {};
    Tano::FieldPath listPath = {};
    int item = -1;
};

/// What a path of a package leads to.
FieldTarget targetOf(PackageInfoModel &package, const Tano::FieldPath &path);
/// The path of an item of a list that has it.
Tano::FieldPath itemPath(const FieldTarget &list, int index);

/// Why a path leads to nothing in a package.
QString reasonOf(PackageInfoModel &package, const Tano::FieldPath &path);
/// Why an owner with fields of these names has none of another.
QString noFieldNamed(const QString &name, const QStringList &names);

} // namespace Zel::PackageModel
