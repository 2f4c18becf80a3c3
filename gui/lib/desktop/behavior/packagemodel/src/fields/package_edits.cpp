#include <packagemodel/package_edits.h>

#include "field_tables.h"

#include <algorithm>

namespace Zel::PackageModel {
namespace {

QString sentence(const char *text) {
    return QCoreApplication::translate("Zel::PackageModel", text);
}

Applied refused(const Edit &edit, const QString &reason) {
    return {{},
            QCoreApplication::translate("Zel::PackageModel", "%1: %2")
                .arg(fromUtf8(edit.path.toString()), reason)};
}

// Why a manifest cannot hold a text; empty if it can.
QString refusalOfText(const QString &text) {
    if (!text.isValidUtf16())
        return sentence(QT_TRANSLATE_NOOP("Zel::PackageModel",
                                          "The text holds half of a surrogate pair, which a "
                                          "manifest cannot hold."));
    const auto isControl = [](QChar c) {
        return (c < u' ' && c != u'\t' && c != u'\n' && c != u'\r') || c == QChar(0xFFFE) ||
               c == QChar(0xFFFF);
    };
    const auto found = std::find_if(text.begin(), text.end(), isControl);
    if (found == text.end())
        return {};
    return sentence(QT_TRANSLATE_NOOP("Zel::PackageModel", "The text holds the character U+%1, "
                                                           "which a manifest cannot hold."))
        .arg(QString::number(found->unicode(), 16).toUpper().rightJustified(4, u'0'));
}

QString refusalOfValue(const FieldValue &value) {
    const auto *text = std::get_if<QString>(&value);
    return text ? refusalOfText(*text) : QString();
}

FieldPath itemPath(const FieldTarget &target, int index) {
    FieldPath path = target.listPath;
    target.list->select(path, index);
    return path;
}

QString notForThis() {
    return sentence(
        QT_TRANSLATE_NOOP("Zel::PackageModel", "The field does not allow this change."));
}

Applied setCell(const Edit &edit, const FieldCell &cell) {
    if (edit.value->index() != std::size_t(cell.kind))
        return refused(edit, sentence(QT_TRANSLATE_NOOP("Zel::PackageModel",
                                                        "The value is of another type.")));
    const auto *text = std::get_if<QString>(&*edit.value);
    if (const QString reason = cell.refusal && text ? cell.refusal(*text) : QString();
        !reason.isEmpty())
        return refused(edit, reason);
    Edit inverse{Edit::Action::Remove, edit.path};
    if (cell.inverse)
        inverse = cell.inverse(*text);
    else if (cell.value)
        inverse = {Edit::Action::Set, edit.path, cell.value};
    cell.set(*edit.value);
    return {{inverse}, {}};
}

Applied set(const Edit &edit, const FieldTarget &target) {
    if (!edit.value)
        return refused(edit, notForThis());
    if (const QString reason = refusalOfValue(*edit.value); !reason.isEmpty())
        return refused(edit, reason);
    if (target.cell)
        return setCell(edit, *target.cell);
    if (target.item < 0)
        return refused(edit, notForThis());
    if (const QString reason = target.list->refusal(*edit.value, target.item); !reason.isEmpty())
        return refused(edit, reason);
    const FieldValue old = target.list->at(target.item);
    target.list->replace(target.item, *edit.value);
    if (target.item >= target.list->size())
        return {}; // an observer has removed it
    return {{{Edit::Action::Set, itemPath(target, target.item), old}}, {}};
}

Applied insert(const Edit &edit, const FieldTarget &target) {
    if (!target.list || target.item >= 0 || !edit.value)
        return refused(edit, notForThis());
    QString reason = refusalOfValue(*edit.value);
    if (reason.isEmpty())
        reason = target.list->refusal(*edit.value, -1);
    if (!reason.isEmpty())
        return refused(edit, reason);
    const int index = std::clamp(edit.index, 0, target.list->size());
    const Edits gained = target.list->gainedWith(*edit.value);
    target.list->insert(index, *edit.value);
    if (index >= target.list->size())
        return {gained, {}}; // an observer has removed it
    return {Edits{{Edit::Action::Remove, itemPath(target, index)}} + gained, {}};
}

Applied remove(const Edit &edit, const FieldTarget &target) {
    if (target.cell && target.cell->remove && target.cell->value) {
        const FieldValue old = *target.cell->value;
        target.cell->remove();
        return {{{Edit::Action::Set, edit.path, old}}, {}};
    }
    if (target.cell && target.cell->remove)
        return refused(edit, sentence(QT_TRANSLATE_NOOP("Zel::PackageModel", "There is none.")));
    if (target.item < 0)
        return refused(edit, notForThis());
    Edits inverse{
        {Edit::Action::Insert, target.listPath, target.list->at(target.item), target.item}};
    inverse += target.list->lostWith(target.item);
    target.list->removeAt(target.item);
    return {inverse, {}};
}

Applied move(const Edit &edit, const FieldTarget &target) {
    if (target.item < 0)
        return refused(edit, notForThis());
    const int to = edit.index;
    if (to < 0 || to >= target.list->size())
        return refused(
            edit, sentence(QT_TRANSLATE_NOOP("Zel::PackageModel", "The list has no such index.")));
    target.list->move(target.item, to);
    if (to >= target.list->size())
        return {};
    return {{{Edit::Action::Move, itemPath(target, to), {}, target.item}}, {}};
}

Applied applyOne(PackageInfoModel &package, const Edit &edit) {
    const FieldTarget target = targetOf(package, edit.path);
    if (!target.cell && !target.list)
        return refused(edit, reasonOf(package, edit.path));
    switch (edit.action) {
    case Edit::Action::Set:
        return set(edit, target);
    case Edit::Action::Insert:
        return insert(edit, target);
    case Edit::Action::Remove:
        return remove(edit, target);
    case Edit::Action::Move:
        return move(edit, target);
    }
    return refused(edit, notForThis());
}

} // namespace

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
            applied.error = sentence(
                QT_TRANSLATE_NOOP("Zel::PackageModel", "There is no package to be edited."));
        error = applied.error;
        if (!error.isEmpty())
            break;
        inverses.push_back(applied.inverse);
    }
    Edits inverse;
    for (auto last = inverses.rbegin(); last != inverses.rend(); ++last)
        inverse += *last;
    if (!error.isEmpty()) {
        for (const Edit &undo : std::exchange(inverse, {})) {
            if (living)
                applyOne(*living, undo);
        }
    }
    if (living)
        living->syncRecord(); // insertions into the lists of a behavior wait for it
    return {inverse, error};
}

} // namespace Zel::PackageModel
