#include <packagemodel/package_edits.h>

#include "field_words.h"

#include <packagemodel/text_conversion.h>

namespace Zel::PackageModel {
namespace {

using Tano::FieldPath;

// The key of an entry to insert, nullopt if the list has no keys.
std::optional<std::string> keyOf(const FieldPath &list, const FieldValue &entry) {
    if (const auto *behavior = std::get_if<Tano::BehaviorInfo>(&entry))
        return behavior->path();
    if (const auto *dialog = std::get_if<Tano::DialogInfo>(&entry))
        return dialog->topicName();
    if (const auto *service = std::get_if<Tano::PackageService>(&entry))
        return service->name;
    const auto *code = std::get_if<QString>(&entry);
    const auto form = formOf(list);
    return code && form && form->selectors == QLatin1String("[CODE]") ? std::optional(toUtf8(*code))
                                                                      : std::nullopt;
}

// Lower-cases the first letter: "name of “greet”", but "UID".
QString inSentence(QString label) {
    if (label.size() > 1 && label.at(1).isLower())
        label[0] = label.at(0).toLower();
    return label;
}

QString withLabel(const char *form, const FieldPath &path) {
    return inWords(form).arg(inSentence(label(path)));
}

QString insertion(const Edit &edit) {
    const auto key = edit.value ? keyOf(edit.path, *edit.value) : std::nullopt;
    return key ? withLabel(QT_TRANSLATE_NOOP("Zel::PackageModel", "Add %1"),
                           FieldPath(edit.path).key(*key))
               : withLabel(QT_TRANSLATE_NOOP("Zel::PackageModel", "Add to %1"), edit.path);
}

QString setting(const Edit &edit) {
    if (edit.path.isEmpty())
        return inWords(QT_TRANSLATE_NOOP("Zel::PackageModel", "Replace the package"));
    const auto form = formOf(edit.path);
    return form && form->isKey
               ? withLabel(QT_TRANSLATE_NOOP("Zel::PackageModel", "Rename %1"), edit.path.parent())
               : withLabel(QT_TRANSLATE_NOOP("Zel::PackageModel", "Set %1"), edit.path);
}

QString wordsOf(const Edit &edit) {
    switch (edit.action) {
    case Edit::Action::Set:
        return setting(edit);
    case Edit::Action::Insert:
        return insertion(edit);
    case Edit::Action::Remove:
        return withLabel(QT_TRANSLATE_NOOP("Zel::PackageModel", "Remove %1"), edit.path);
    case Edit::Action::Move:
        return withLabel(QT_TRANSLATE_NOOP("Zel::PackageModel", "Move %1"), edit.path);
    }
    return {};
}

} // namespace

QString label(const Edits &edits) {
    if (edits.isEmpty())
        return {};
    const QString first = wordsOf(edits.first());
    return edits.size() == 1 ? first
                             : inWords(QT_TRANSLATE_NOOP("Zel::PackageModel", "%1 (and %2 more)"))
                                   .arg(first, QString::number(edits.size() - 1));
}

} // namespace Zel::PackageModel
