#pragma once

#include <packagemodel/package_fields.h>

namespace Zel::PackageModel {

/// A change of a package as a value.
///
/// | action | path | value | index |
/// |---|---|---|---|
/// | Set | a field or an entry | the new value | |
/// | Insert | a list, such as `behaviors` or `behaviors[greet].tags[en_US]` | the entry | where |
/// | Remove | an entry, or a field that may be absent | | |
/// | Move | an entry | | its new index |
///
/// Setting the empty path replaces the whole package: what differs is edited through the slots, and
/// comments and unknown content follow. An index is clamped to the list by Insert. A language is
/// inserted as its code.
struct Edit {
    enum class Action { Set, Insert, Remove, Move };

    Action action;
    Tano::FieldPath path;
    std::optional<FieldValue> value = {};
    int index = 0;
};
using Edits = QVector<Edit>;

inline bool operator==(const Edit &a, const Edit &b) {
    return a.action == b.action && a.path == b.path && a.value == b.value && a.index == b.index;
}
inline bool operator!=(const Edit &a, const Edit &b) {
    return !(a == b);
}

/// The outcome of applying edits: the edits that undo them, or why nothing was changed.
struct Applied {
    Edits inverse; ///< to be applied in this order
    QString error; ///< one sentence in the language of the application; empty on success
};

/// Applies an edit through the public slots, which notify as for any other caller, or changes
/// nothing and returns the reason.
///
/// Applying the inverse restores the manifest's bytes, including comments and unknown content, the
/// order of languages, and the dialogs' topics that were removed with a language. Refused are paths
/// that lead nowhere, values of another type, texts that a manifest cannot hold, an entry that a
/// list has already, and a path, topic name or service name that another entry has.
///
/// ```
/// const Applied applied = apply(&package, {Edit::Action::Set, path, QStringLiteral("Tea")});
/// if (!applied.error.isEmpty())
///     showMessage(applied.error);
/// ```
PACKAGEMODEL_EXPORT Applied apply(PackageInfoModel *package, const Edit &edit);

/// Applies all edits in their order, or none.
PACKAGEMODEL_EXPORT Applied apply(PackageInfoModel *package, const Edits &edits);

/// The edits that remove all that a package has in a language: texts, topics, and the language from
/// the lists of languages. They apply in their order and depend on none of each other.
PACKAGEMODEL_EXPORT Edits languageRemoval(const PackageInfoModel *package,
                                          const QString &languageCode);

/// Why apply() would refuse an edit, in one sentence without the path: for a form that checks a
/// text while it is typed. Empty if it would apply the edit.
PACKAGEMODEL_EXPORT QString refusal(const PackageInfoModel *package, const Edit &edit);

/// Edits in words, in the language of the application, as the text of an undo step: "Set name of
/// “greet” in French (France)". Of several edits, the first one and the number of the others.
PACKAGEMODEL_EXPORT QString label(const Edits &edits);

} // namespace Zel::PackageModel
