#pragma once

#include <packagemodel/package_fields.h>

namespace Zel::PackageModel {

/// A change of a package as a value.
///
/// | action | path | value | index |
/// |---|---|---|---|
/// | Set | a field or an entry | the new value | |
/// | Insert | a list: `behaviors` or `behaviors[greet].tags[en_US]` | the entry | its index |
/// | Remove | an entry or an optional field | | |
/// | Move | an entry | | its new index |
///
/// Setting the empty path replaces the whole package: the differences are edited through the slots,
/// and comments and unknown content follow. Insert clamps its index to the list. A language is
/// inserted as its code.
struct Edit {
    /// The kind of a change.
    enum class Action { Set, Insert, Remove, Move };

    Action action;                        ///< the kind of this change
    Tano::FieldPath path;                 ///< the field, entry or list
    std::optional<FieldValue> value = {}; ///< for Set and Insert
    int index = 0;                        ///< for Insert and Move
};
/// Edits in their order: paths of later ones may depend on earlier ones.
using Edits = QVector<Edit>;

/// @{
/// Compares all members.
inline bool operator==(const Edit &a, const Edit &b) {
    return a.action == b.action && a.path == b.path && a.value == b.value && a.index == b.index;
}
inline bool operator!=(const Edit &a, const Edit &b) {
    return !(a == b);
}
/// @}

/// The outcome of applying edits: either the edits that undo them, or an error.
struct Applied {
    Edits inverse; ///< undoes the edits, applied in this order
    QString error; ///< one sentence in the language of the application; empty on success
};

/// Applies an edit through the public slots, which notify as usual. If the edit is refused, changes
/// nothing and returns the reason.
///
/// Applying the inverse restores the exact manifest, including comments and unknown content, the
/// order of languages, and the dialogs' topics that were removed with a language. Refused are
/// unknown paths, values of a wrong type, texts that a manifest cannot represent, duplicate entries
/// of a list, and a path, topic name or service name that another entry has.
///
/// ```cpp
/// const auto path = *Tano::FieldPath::parse("names[en_US]");
/// const Applied applied = apply(&package, Edit{Edit::Action::Set, path, QStringLiteral("Tea")});
/// if (!applied.error.isEmpty())
///     showMessage(applied.error);
/// package.name(english); // -> Tea
/// ```
PACKAGEMODEL_EXPORT Applied apply(PackageInfoModel *package, const Edit &edit);

/// Applies all edits in their order, or none of them.
PACKAGEMODEL_EXPORT Applied apply(PackageInfoModel *package, const Edits &edits);

/// The edits that remove a language from a package: its texts, its topics and its entries in the
/// lists of languages. They do not depend on each other.
PACKAGEMODEL_EXPORT Edits languageRemoval(const PackageInfoModel *package,
                                          const QString &languageCode);

/// Why apply() would refuse an edit, in one sentence without the path; empty if it would not. For
/// forms that check a text while users type.
PACKAGEMODEL_EXPORT QString refusal(const PackageInfoModel *package, const Edit &edit);

/// A description of edits in the language of the application, for the text of an undo step: "Set
/// name of “greet” in French (France)". For several edits, the first one and the number of others.
PACKAGEMODEL_EXPORT QString label(const Edits &edits);

} // namespace Zel::PackageModel
