#include "field_path.h"

#include "languages.h"

#include <QCoreApplication>
#include <QStringBuilder>

#include <array>

namespace Editor {
namespace {

QString text(const char *source) {
    return QCoreApplication::translate("Editor::FieldPath", source);
}

struct Label {
    const char *field;
    const char *text;
};

constexpr std::array requirementFields{
    Label{"model", QT_TRANSLATE_NOOP("Editor::FieldPath", "Robot of requirement %1")},
    Label{"minHeadVersion",
          QT_TRANSLATE_NOOP("Editor::FieldPath", "Lowest head version of robot requirement %1")},
    Label{"maxHeadVersion",
          QT_TRANSLATE_NOOP("Editor::FieldPath", "Highest head version of robot requirement %1")},
    Label{"minBodyVersion",
          QT_TRANSLATE_NOOP("Editor::FieldPath", "Lowest body version of robot requirement %1")},
    Label{"maxBodyVersion",
          QT_TRANSLATE_NOOP("Editor::FieldPath", "Highest body version of robot requirement %1")},
    Label{"minVersion",
          QT_TRANSLATE_NOOP("Editor::FieldPath", "Lowest version of Brio requirement %1")},
    Label{"maxVersion",
          QT_TRANSLATE_NOOP("Editor::FieldPath", "Highest version of Brio requirement %1")},
};

} // namespace

FieldPath FieldPath::parse(const QString &path) {
    FieldPath result;
    const auto bracket = path.indexOf(u'[');
    if (bracket < 0) {
        result.list = path;
        return result;
    }
    result.list = path.left(bracket);
    // The path of a behavior may hold any character, but what follows it does not.
    const auto fieldDot = path.lastIndexOf(QLatin1String("]."));
    if (fieldDot < 0) {
        result.key = path.mid(bracket + 1, path.size() - bracket - 2);
        return result;
    }
    result.key = path.mid(bracket + 1, fieldDot - bracket - 1);
    result.field = path.mid(fieldDot + 2);
    const auto subBracket = result.field.indexOf(u'[');
    if (subBracket >= 0) {
        result.subkey = result.field.mid(subBracket + 1, result.field.size() - subBracket - 2);
        result.field.truncate(subBracket);
    }
    return result;
}

QString FieldPath::label() const {
    if (list == QLatin1String("uid"))
        return text(QT_TRANSLATE_NOOP("Editor::FieldPath", "UID"));
    if (list == QLatin1String("names"))
        return text(QT_TRANSLATE_NOOP("Editor::FieldPath", "Name in %1")).arg(languageName(key));
    if (list == QLatin1String("descriptions")) {
        return text(QT_TRANSLATE_NOOP("Editor::FieldPath", "Description in %1"))
            .arg(languageName(key));
    }
    if (list == QLatin1String("behaviors")) {
        return text(QT_TRANSLATE_NOOP("Editor::FieldPath", "Trigger sentences of “%1” in %2"))
            .arg(key, languageName(subkey));
    }
    for (const Label &label : requirementFields) {
        if (field == QLatin1String(label.field))
            return text(label.text).arg(key.toInt() + 1);
    }
    return text(list == QLatin1String("robotRequirements")
                    ? QT_TRANSLATE_NOOP("Editor::FieldPath", "Robot requirements")
                    : QT_TRANSLATE_NOOP("Editor::FieldPath", "Brio requirements"));
}

QString namePath(const QString &languageCode) {
    return QStringLiteral("names[") % languageCode % u']';
}

QString descriptionPath(const QString &languageCode) {
    return QStringLiteral("descriptions[") % languageCode % u']';
}

QString requirementPath(const char *list, int index, const char *field) {
    return QLatin1String(list) % u'[' % QString::number(index) % QLatin1String("].") %
           QLatin1String(field);
}

QString sentencesPath(const QString &behaviorPath, const QString &languageCode) {
    return QStringLiteral("behaviors[") % behaviorPath % QLatin1String("].triggerSentences[") %
           languageCode % u']';
}

} // namespace Editor
