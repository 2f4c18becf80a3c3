#include <packagemodel/package_edits.h>

#include "field_tables.h"
#include "requirement_spelling.h"

#include <algorithm>
#include <set>

namespace Zel::PackageModel {
namespace {

Applied refused(const Edit &edit, const QString &reason) {
    return {{},
            QCoreApplication::translate("Zel::PackageModel", "%1: %2")
                .arg(fromUtf8(edit.path.toString()), reason)};
}

QString refusalOfValue(const FieldValue &value) {
    const auto *text = std::get_if<QString>(&value);
    return text ? refusalOfText(*text) : QString();
}

QString notForThis() {
    return inWords(QT_TRANSLATE_NOOP("Zel::PackageModel", "The field does not allow this change."));
}

QString setRefusal(const Edit &edit, const FieldTarget &target) {
    if (!edit.value || (!target.cell && target.item < 0))
        return notForThis();
    if (QString reason = refusalOfValue(*edit.value); !reason.isEmpty())
        return reason;
    if (!target.cell)
        return target.list->refusal(*edit.value, target.item);
    if (edit.value->index() != std::size_t(target.cell->kind))
        return misfit();
    const auto *text = std::get_if<QString>(&*edit.value);
    return text && target.cell->refusal ? target.cell->refusal(*text) : QString();
}

QString insertRefusal(const Edit &edit, const FieldTarget &target) {
    if (!target.list || target.item >= 0 || !edit.value)
        return notForThis();
    const QString reason = refusalOfValue(*edit.value);
    return reason.isEmpty() ? target.list->refusal(*edit.value, -1) : reason;
}

QString removeRefusal(const FieldTarget &target) {
    if (target.cell && target.cell->remove)
        return target.cell->value
                   ? QString()
                   : inWords(QT_TRANSLATE_NOOP("Zel::PackageModel", "It does not exist."));
    return target.item < 0 ? notForThis() : QString();
}

QString moveRefusal(const Edit &edit, const FieldTarget &target) {
    if (target.item < 0)
        return notForThis();
    return edit.index >= 0 && edit.index < target.list->size()
               ? QString()
               : inWords(QT_TRANSLATE_NOOP("Zel::PackageModel", "The list has no such index."));
}

// The reason why an edit cannot be applied to its target, empty if it can.
QString refusalOf(PackageInfoModel &package, const Edit &edit, const FieldTarget &target) {
    if (!target.cell && !target.list)
        return reasonOf(package, edit.path);
    switch (edit.action) {
    case Edit::Action::Set:
        return setRefusal(edit, target);
    case Edit::Action::Insert:
        return insertRefusal(edit, target);
    case Edit::Action::Remove:
        return removeRefusal(target);
    case Edit::Action::Move:
        return moveRefusal(edit, target);
    }
    return notForThis();
}

// These functions apply a valid edit and return the edits that undo it.

Edits setCell(const Edit &edit, const FieldCell &cell) {
    Edit inverse{Edit::Action::Remove, edit.path};
    if (cell.inverse)
        inverse = cell.inverse(std::get<QString>(*edit.value));
    else if (cell.value)
        inverse = {Edit::Action::Set, edit.path, cell.value};
    cell.set(*edit.value);
    return {inverse};
}

Edits setItem(const Edit &edit, const FieldTarget &target) {
    const FieldValue old = target.list->at(target.item);
    target.list->replace(target.item, *edit.value);
    if (target.item >= target.list->size())
        return {}; // an observer has removed it
    return {{Edit::Action::Set, itemPath(target, target.item), old}};
}

Edits insert(const Edit &edit, const FieldTarget &target) {
    const int index = std::clamp(edit.index, 0, target.list->size());
    const Edits gained = target.list->gainedWith(*edit.value);
    target.list->insert(index, *edit.value);
    if (index >= target.list->size())
        return gained; // an observer has removed it
    return Edits{{Edit::Action::Remove, itemPath(target, index)}} + gained;
}

Edits remove(const Edit &edit, const FieldTarget &target) {
    if (target.cell) {
        const FieldValue old = *target.cell->value;
        target.cell->remove();
        return {{Edit::Action::Set, edit.path, old}};
    }
    Edits inverse{
        {Edit::Action::Insert, target.listPath, target.list->at(target.item), target.item}};
    inverse += target.list->lostWith(target.item);
    target.list->removeAt(target.item);
    return inverse;
}

Edits move(const Edit &edit, const FieldTarget &target) {
    target.list->move(target.item, edit.index);
    if (edit.index >= target.list->size())
        return {};
    return {{Edit::Action::Move, itemPath(target, edit.index), {}, target.item}};
}

Edits change(const Edit &edit, const FieldTarget &target) {
    switch (edit.action) {
    case Edit::Action::Set:
        return target.cell ? setCell(edit, *target.cell) : setItem(edit, target);
    case Edit::Action::Insert:
        return insert(edit, target);
    case Edit::Action::Remove:
        return remove(edit, target);
    case Edit::Action::Move:
        return move(edit, target);
    }
    return {};
}

// Whether the slots can restore what an edit changes. They normalize the versions of requirements,
// and remove all duplicates of a permission at once.
bool isReversible(const PackageInfoModel &package, const FieldPath &path) {
    if (path.isEmpty())
        return true;
    if (hasOddVersions(package.packageInfo(), path))
        return false;
    if (path.steps().back().field != "permissions")
        return true;
    FieldPath entryPath = path;
    while (entryPath.steps().size() > 1)
        entryPath = entryPath.parent();
    const auto entry = value(&package, entryPath);
    const auto *behavior = entry ? std::get_if<Tano::BehaviorInfo>(&*entry) : nullptr;
    const auto permissions = behavior ? behavior->permissions() : std::vector<std::string>();
    return std::set(permissions.begin(), permissions.end()).size() == permissions.size();
}

Applied applyOne(PackageInfoModel &package, const Edit &edit) {
    const FieldTarget target = targetOf(package, edit.path);
    if (const QString reason = refusalOf(package, edit, target); !reason.isEmpty())
        return refused(edit, reason);
    if (!isReversible(package, edit.path)) {
        package.syncRecord();
        const Tano::PackageInfo before = package.packageInfo();
        const QPointer<PackageInfoModel> living(&package);
        change(edit, target);
        if (living)
            restoreSpelling(package, edit, before);
        return {{{Edit::Action::Set, {}, before}}, {}};
    }
    return {change(edit, target), {}};
}
QString noPackage() {
    return inWords(QT_TRANSLATE_NOOP("Zel::PackageModel", "There is no package to edit."));
}

} // namespace

QString refusal(const PackageInfoModel *package, const Edit &edit) {
    if (!package)
        return noPackage();
    auto &target = const_cast<PackageInfoModel &>(*package); // only inspected
    return refusalOf(target, edit, targetOf(target, edit.path));
}

Applied apply(PackageInfoModel *package, const Edit &edit) {
    return apply(package, Edits{edit});
}

Applied apply(PackageInfoModel *package, const Edits &edits) {
    const QPointer<PackageInfoModel> living(package);
    std::vector<Edits> inverses;
    QString error;
    for (const Edit &edit : edits) {
        Applied applied;
        if (living)
            applied = applyOne(*living, edit);
        else
            applied.error = noPackage();
        error = applied.error;
        if (!error.isEmpty())
            break;
        inverses.push_back(applied.inverse);
    }
    Edits inverse;
    inverse.reserve(edits.size());
    for (auto last = inverses.rbegin(); last != inverses.rend(); ++last)
        inverse += *last;
    if (!error.isEmpty()) {
        for (const Edit &undo : std::exchange(inverse, {})) {
            if (living)
                applyOne(*living, undo);
        }
    }
    if (living)
        living->syncRecord(); // insertions into a behavior's lists are not synchronized yet
    return {inverse, error};
}

} // namespace Zel::PackageModel
