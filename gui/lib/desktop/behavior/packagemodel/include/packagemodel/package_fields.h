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

/// The fields of a package by their paths: one table describes each field for all that lists, reads
/// or edits fields.
namespace PackageModel {

/// The value of a field, or a whole entry of a list.
using FieldValue =
    std::variant<QString, bool, SoftwareVersion, RobotRequirement, BrioRequirement,
                 Tano::BehaviorInfo, Tano::DialogInfo, Tano::PackageService, Tano::PackageInfo>;

/// The kinds of values, in the order of FieldValue: those of one field, then entries of lists.
enum class FieldKind {
    Text,
    Flag,
    Version,
    RobotRequirement,
    BrioRequirement,
    Behavior,
    Dialog,
    Service,
    Package ///< all of it, which the empty path leads to
};

/// One field of a package.
struct Field {
    Tano::FieldPath path;
    FieldKind kind;
    FieldValue value;
    QString label; ///< the field's name for users, in the language of the application
};

/// Every field that a package has, in the order of its manifest: `uid`, `names[en_US]`,
/// `supportedLanguages[en_US]`, `behaviors[greet].tags[en_US][0]`. A field that may be absent is
/// listed if it is there. An empty list for a null package.
///
/// ```
/// for (const auto &field : PackageModel::fields(&package))
///     out << field.path.toString() << '=' << PackageModel::printed(field.value) << '\n';
/// ```
PACKAGEMODEL_EXPORT QVector<Field> fields(const PackageInfoModel *package);

/// fields() in portions, for programs that stay responsive with large packages: first the package's
/// own fields, in several portions, then those of one behavior, dialog or service each.
///
/// Start anew after an edit: entries that are gone by then are skipped, but renamed ones would be
/// listed with their old paths. A walk must not outlive the package.
///
/// ```
/// PackageModel::FieldWalk walk(&package);
/// while (!walk.isAtEnd() && !timeIsOver())
///     search(walk.next());
/// ```
class PACKAGEMODEL_EXPORT FieldWalk {
public:
    explicit FieldWalk(const PackageInfoModel *package);
    ~FieldWalk();
    FieldWalk(const FieldWalk &) = delete;
    FieldWalk &operator=(const FieldWalk &) = delete;

    bool isAtEnd() const;
    /// The next portion; may be empty before the end.
    QVector<Field> next();

private:
    struct Data;
    std::unique_ptr<Data> m_data;
};

/// Those of fields() that hold one value of the package itself: `uid`, `version`, `author`.
PACKAGEMODEL_EXPORT QVector<Field> plainFields(const PackageInfoModel *package);

/// The value of a field or an entry; nothing if the path leads to none.
PACKAGEMODEL_EXPORT std::optional<FieldValue> value(const PackageInfoModel *package,
                                                    const Tano::FieldPath &path);

/// The entries of a list, such as `behaviors`, `supportedLanguages` or
/// `behaviors[greet].tags[en_US]`, in their order; none if the path leads to no list.
PACKAGEMODEL_EXPORT QVector<FieldValue> entries(const PackageInfoModel *package,
                                                const Tano::FieldPath &path);

/// The path of an item of a list by its index: `behaviors[greet][1]` for the second behavior with
/// the path "greet". The empty path if there is no such item.
PACKAGEMODEL_EXPORT Tano::FieldPath itemPath(const PackageInfoModel *package,
                                             const Tano::FieldPath &list, int index);

/// A path in words, in the language of the application: "Trigger sentences of “greet” in Japanese"
/// for `behaviors[greet].triggerSentences[ja_JP]`, "Robot requirement 1" for
/// `robotRequirements[0]`. A path that leads to no kind of field is returned as it is.
PACKAGEMODEL_EXPORT QString label(const Tano::FieldPath &path);

/// What the paths of a form lead to in any package, whether or not it has such an entry.
struct FieldForm {
    FieldKind kind;    ///< of the value, or of each entry of a list
    bool isList;       ///< the path leads to a list rather than to one value or entry
    QString selectors; ///< how one of several is selected, as in "[CODE][N]"
    QString label;     ///< as in Field
    bool isKey;        ///< the field names its entry among the others of a list
};

/// The form of a path; `[+]` counts as a selector. Nothing for a path that no package has: then
/// `error`, if given, says why in one sentence, with the nearest name.
PACKAGEMODEL_EXPORT std::optional<FieldForm> formOf(const Tano::FieldPath &path,
                                                    QString *error = nullptr);

/// A value of a single field as text: a version in its dotted form, a flag as "true" or "false".
/// Empty for an entry.
PACKAGEMODEL_EXPORT QString printed(const FieldValue &value);

/// The value of a kind that a text means, as printed() writes it; the empty text is the empty
/// version. Nothing for entries and for a text of another form: then `error`, if given, says why.
PACKAGEMODEL_EXPORT std::optional<FieldValue> parsedValue(FieldKind kind, const QString &text,
                                                          QString *error = nullptr);

} // namespace PackageModel
} // namespace Zel
