#include <packagemodel/change_words.h>

#include "field_words.h"

#include <packagemodel/package_json.h>
#include <packagemodel/text_conversion.h>

#include <QJsonObject>
#include <QStringBuilder>

namespace Zel::PackageModel {
namespace {

using Tano::FieldPath;

QString withValue(const QString &line, const QString &value) {
    return value.isEmpty() ? line : line % QStringLiteral(": ") % value;
}

// The fields of a requirement, empty for larger entries.
QString fieldsOf(const FieldValue &entry) {
    const bool isRequirement = std::holds_alternative<RobotRequirement>(entry) ||
                               std::holds_alternative<BrioRequirement>(entry);
    QStringList fields;
    if (isRequirement) {
        const QJsonObject object = toJson(entry).toObject();
        for (auto field = object.begin(); field != object.end(); ++field) {
            if (!field->toString().isEmpty())
                fields += field.key() % u' ' % field->toString();
        }
    }
    return fields.join(QStringLiteral(", "));
}

// The added or removed value, if the label of its path does not say it.
QString shownValue(const FieldPath &path, const FieldValue &value) {
    const auto *text = std::get_if<QString>(&value);
    if (!text)
        return fieldsOf(value);
    const auto &selectors = path.steps().back().selectors;
    const bool isNamed = !selectors.empty() && fromUtf8(selectors.back().text) == *text;
    return isNamed ? QString() : excerpt(*text);
}

QString lineOf(const char *form, const FieldPath &path) {
    return inWords(form).arg(label(path));
}

QString addition(const FieldPath &path, const FieldValue &value) {
    return withValue(lineOf(QT_TRANSLATE_NOOP("Zel::PackageModel", "%1 added"), path),
                     shownValue(path, value));
}

// The value is unknown if the edit cannot be made in this package.
QString removal(const FieldPath &path, const std::optional<FieldValue> &value) {
    return withValue(lineOf(QT_TRANSLATE_NOOP("Zel::PackageModel", "%1 removed"), path),
                     value ? shownValue(path, *value) : QString());
}

QString setting(const Edit &edit, const std::optional<FieldValue> &old) {
    if (edit.path.isEmpty())
        return inWords(QT_TRANSLATE_NOOP("Zel::PackageModel", "The package replaced"));
    if (old && edit.value->index() >= std::size_t(FieldKind::RobotRequirement))
        return lineOf(QT_TRANSLATE_NOOP("Zel::PackageModel", "%1 replaced"), edit.path);
    const QString before = old ? printed(*old) : QString();
    const QString after = printed(*edit.value);
    const auto form = formOf(edit.path);
    if (form && form->isKey)
        return inWords(QT_TRANSLATE_NOOP("Zel::PackageModel", "%1 renamed to “%2”"))
            .arg(label(edit.path.parent()), after);
    if (before.isEmpty())
        return addition(edit.path, after);
    if (after.isEmpty())
        return removal(edit.path, before);
    const Excerpts shown = excerpts(before, after);
    return inWords(QT_TRANSLATE_NOOP("Zel::PackageModel", "%1 changed from %2 to %3"))
        .arg(label(edit.path), shown.before, shown.after);
}

// Describes an edit and applies it.
QString changeLine(PackageInfoModel *package, const Edit &edit) {
    const auto old = value(package, edit.path);
    apply(package, edit);
    switch (edit.action) {
    case Edit::Action::Set:
        return setting(edit, old);
    case Edit::Action::Insert:
        return addition(itemPath(package, edit.path, edit.index), *edit.value);
    case Edit::Action::Remove:
        return removal(edit.path, old);
    case Edit::Action::Move:
        return inWords(QT_TRANSLATE_NOOP("Zel::PackageModel", "%1 moved to position %2"))
            .arg(label(edit.path), QString::number(edit.index + 1));
    }
    return {};
}

} // namespace

void visitChanges(PackageInfoModel *package, const Edits &edits,
                  const std::function<void(const QString &)> &visit) {
    for (const Edit &edit : edits)
        visit(changeLine(package, edit));
}

} // namespace Zel::PackageModel
