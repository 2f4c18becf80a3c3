#pragma once

#include <packagemodel/packagemodel_export.h>
#include <packagemodel/requirements.h>

#include <tano/behavior_info.h>
#include <tano/dialog_info.h>
#include <tano/field_path.h>
#include <tano/package_info.h>
#include <tano/package_service.h>

#include <QString>
#include <QVector>

#include <memory>
#include <optional>
#include <variant>

namespace Zel {

class PackageInfoModel;

/// Functions that work on packages: fields, edits, checks, coverage, texts for translators, JSON.
namespace PackageModel {

/// The value of a field, or a whole entry of a list.
using FieldValue =
    std::variant<QString, bool, SoftwareVersion, RobotRequirement, BrioRequirement,
                 Tano::BehaviorInfo, Tano::DialogInfo, Tano::PackageService, Tano::PackageInfo>;

/// The kinds of values, in the order of FieldValue: those of one field, then entries of lists.
enum class FieldKind {
    Text,             ///< a QString
    Flag,             ///< a bool
    Version,          ///< a SoftwareVersion
    RobotRequirement, ///< an entry of `robotRequirements`
    BrioRequirement,  ///< an entry of `brioRequirements`
    Behavior,         ///< an entry of `behaviors`
    Dialog,           ///< an entry of `dialogs`
    Service,          ///< an entry of `services`
    Package           ///< the whole package, at the empty path
};

/// One field of a package.
struct Field {
    Tano::FieldPath path; ///< identifies the field
    FieldKind kind;       ///< the type of the value
    FieldValue value;     ///< the current value
    QString label;        ///< the field's name for users, in the language of the application
};

/// All fields of a package in the order of its manifest: `uid`, `names[en_US]`,
/// `supportedLanguages[en_US]`, `behaviors[greet].tags[en_US][0]`. Optional fields are listed if
/// they are present. Empty for a null package.
///
/// ```cpp
/// for (const PackageModel::Field &field : PackageModel::fields(&package))
///     out << field.label << ": " << PackageModel::printed(field.value) << '\n';
/// ```
PACKAGEMODEL_EXPORT QVector<Field> fields(const PackageInfoModel *package);

/// Lists fields() in portions, so that programs stay responsive with large packages: first the
/// package's own fields, in several portions, then one behavior, dialog or service each.
///
/// Start a new walk after an edit: removed entries would be skipped, but renamed ones would be
/// listed with their old paths. A walk must not outlive the package.
///
/// ```cpp
/// PackageModel::FieldWalk walk(&package);
/// while (!walk.isAtEnd())
///     found += matches(walk.next(), searchPattern(QStringLiteral("tea")));
/// ```
class PACKAGEMODEL_EXPORT FieldWalk {
public:
    /// Starts at the first field of the package.
    explicit FieldWalk(const PackageInfoModel *package);
    ~FieldWalk();
    FieldWalk(const FieldWalk &) = delete;
    FieldWalk &operator=(const FieldWalk &) = delete;

    /// Whether all fields have been listed.
    bool isAtEnd() const;
    /// The next portion, which may be empty before the end.
    QVector<Field> next();

private:
    struct Data;
    std::unique_ptr<Data> m_data;
};

/// The fields() with a single value of the package itself: `uid`, `version`, `author`.
PACKAGEMODEL_EXPORT QVector<Field> plainFields(const PackageInfoModel *package);

/// The value of a field or an entry; nullopt if the package has no such field.
PACKAGEMODEL_EXPORT std::optional<FieldValue> value(const PackageInfoModel *package,
                                                    const Tano::FieldPath &path);

/// The entries of a list, such as `behaviors`, `supportedLanguages` or
/// `behaviors[greet].tags[en_US]`, in order; empty if the path is not that of a list.
PACKAGEMODEL_EXPORT QVector<FieldValue> entries(const PackageInfoModel *package,
                                                const Tano::FieldPath &path);

/// The path of an item of a list by its index: `behaviors[greet][1]` for the second behavior with
/// the path "greet". Empty if there is no such item.
PACKAGEMODEL_EXPORT Tano::FieldPath itemPath(const PackageInfoModel *package,
                                             const Tano::FieldPath &list, int index);

/// A description of a path in the language of the application: "Trigger sentences of “greet” in
/// Japanese" for `behaviors[greet].triggerSentences[ja_JP]`, "Robot requirement 1" for
/// `robotRequirements[0]`. A path that no package has is returned as text.
PACKAGEMODEL_EXPORT QString label(const Tano::FieldPath &path);

/// The type of the field at a path, whether or not a package has that field.
struct FieldForm {
    FieldKind kind;    ///< of the value, or of each entry of a list
    bool isList;       ///< whether the path is that of a list
    QString selectors; ///< the selectors of one entry, for example "[CODE][N]"
    QString label;     ///< as in Field
    bool isKey;        ///< whether the field identifies its entry in a list
};

/// The form of a path; `[+]` is accepted as a selector. For a path that no package has, returns
/// nullopt and sets `error`, if given, to one sentence that suggests the nearest name.
PACKAGEMODEL_EXPORT std::optional<FieldForm> formOf(const Tano::FieldPath &path,
                                                    QString *error = nullptr);

/// The value of a single field as text: a version in dotted form, a flag as "true" or "false".
/// Empty for an entry.
PACKAGEMODEL_EXPORT QString printed(const FieldValue &value);

/// Parses a text that printed() wrote; the empty text is the empty version. For entries and
/// malformed texts, returns nullopt and sets `error`, if given.
PACKAGEMODEL_EXPORT std::optional<FieldValue> parsedValue(FieldKind kind, const QString &text,
                                                          QString *error = nullptr);

} // namespace PackageModel
} // namespace Zel
