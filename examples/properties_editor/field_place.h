#pragma once

#include <QString>

namespace Editor {

/// The parts of a field's path, such as "behaviors[greet].triggerSentences[ja_JP]", by which the
/// editor finds the widget that an issue concerns.
struct FieldPlace {
    QString list;   ///< "uid", "names", "robotRequirements", "behaviors"
    QString key;    ///< what selects an entry of it: a language code, an index, a behavior's path
    QString field;  ///< the field of that entry
    QString subkey; ///< what selects an entry of that field

    [[nodiscard]] static FieldPlace parse(const QString &path);
    /// The same for people: "Trigger sentences of “greet” in Japanese".
    QString label() const;
};

// The paths, as the library writes them.
QString namePath(const QString &languageCode);
QString descriptionPath(const QString &languageCode);
QString requirementPath(const char *list, int index, const char *field);
QString sentencesPath(const QString &behaviorPath, const QString &languageCode);

} // namespace Editor
