#include "field_place.h"

#include "languages.h"

#include <packagemodel/text_conversion.h>

#include <tano/field_path.h>

#include <QCoreApplication>

#include <array>

namespace Editor {
namespace {

using Tano::FieldPath;

QString textOf(const FieldPath &path) {
    return Zel::fromUtf8(path.toString());
}

QString text(const char *source) {
    return QCoreApplication::translate("Editor::FieldPlace", source);
}

struct Label {
    const char *field;
    const char *text;
};

constexpr std::array requirementFields{
    Label{"model", QT_TRANSLATE_NOOP("Editor::FieldPlace", "Robot of requirement %1")},
    Label{"minHeadVersion",
          QT_TRANSLATE_NOOP("Editor::FieldPlace", "Lowest head version of robot requirement %1")},
    Label{"maxHeadVersion",
          QT_TRANSLATE_NOOP("Editor::FieldPlace", "Highest head version of robot requirement %1")},
    Label{"minBodyVersion",
          QT_TRANSLATE_NOOP("Editor::FieldPlace", "Lowest body version of robot requirement %1")},
    Label{"maxBodyVersion",
          QT_TRANSLATE_NOOP("Editor::FieldPlace", "Highest body version of robot requirement %1")},
    Label{"minVersion",
          QT_TRANSLATE_NOOP("Editor::FieldPlace", "Lowest version of Brio requirement %1")},
    Label{"maxVersion",
          QT_TRANSLATE_NOOP("Editor::FieldPlace", "Highest version of Brio requirement %1")},
};

} // namespace

FieldPlace FieldPlace::parse(const QString &path) {
    const auto parsed = Tano::FieldPath::parse(Zel::toUtf8(path));
    if (!parsed)
        return {};
    const auto &steps = parsed->steps();
    const auto fieldOf = [&](std::size_t step) {
        return step < steps.size() ? Zel::fromUtf8(steps[step].field) : QString();
    };
    const auto keyOf = [&](std::size_t step) {
        const bool hasKey = step < steps.size() && !steps[step].selectors.empty();
        return hasKey ? Zel::fromUtf8(steps[step].selectors.front().text) : QString();
    };
    return {fieldOf(0), keyOf(0), fieldOf(1), keyOf(1)};
}

QString FieldPlace::label() const {
    if (list == QLatin1String("uid"))
        return text(QT_TRANSLATE_NOOP("Editor::FieldPlace", "UID"));
    if (list == QLatin1String("names"))
        return text(QT_TRANSLATE_NOOP("Editor::FieldPlace", "Name in %1")).arg(languageName(key));
    if (list == QLatin1String("descriptions")) {
        return text(QT_TRANSLATE_NOOP("Editor::FieldPlace", "Description in %1"))
            .arg(languageName(key));
    }
    if (list == QLatin1String("behaviors")) {
        return text(QT_TRANSLATE_NOOP("Editor::FieldPlace", "Trigger sentences of “%1” in %2"))
            .arg(key, languageName(subkey));
    }
    for (const Label &label : requirementFields) {
        if (field == QLatin1String(label.field))
            return text(label.text).arg(key.toInt() + 1);
    }
    return text(list == QLatin1String("robotRequirements")
                    ? QT_TRANSLATE_NOOP("Editor::FieldPlace", "Robot requirements")
                    : QT_TRANSLATE_NOOP("Editor::FieldPlace", "Brio requirements"));
}

QString namePath(const QString &languageCode) {
    return textOf(FieldPath().field("names").key(Zel::toUtf8(languageCode)));
}

QString descriptionPath(const QString &languageCode) {
    return textOf(FieldPath().field("descriptions").key(Zel::toUtf8(languageCode)));
}

QString requirementPath(const char *list, int index, const char *field) {
    return textOf(FieldPath().field(list).index(index).field(field));
}

QString sentencesPath(const QString &behaviorPath, const QString &languageCode) {
    return textOf(FieldPath()
                      .field("behaviors")
                      .entry(Zel::toUtf8(behaviorPath))
                      .field("triggerSentences")
                      .key(Zel::toUtf8(languageCode)));
}

} // namespace Editor
