#pragma once

#include <packagemodel/packagemodel_export.h>
#include <packagemodel/requirements.h>

#include <tano/behavior_info.h>
#include <tano/dialog_info.h>
#include <tano/field_path.h>
#include <tano/package_service.h>

#include <QString>
#include <QVector>

#include <optional>
#include <variant>

namespace Zel {

class PackageInfoModel;

/// The fields of a package by their paths: one table describes each field for all that lists, reads
/// or edits fields.
namespace PackageModel {

/// The value of a field, or a whole entry of a list.
using FieldValue = std::variant<QString, bool, SoftwareVersion, RobotRequirement, BrioRequirement,
                                Tano::BehaviorInfo, Tano::DialogInfo, Tano::PackageService>;

/// The kinds of fields that hold one value, in the order of FieldValue.
enum class FieldKind { Text, Flag, Version };

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

/// The value of a field or an entry; nothing if the path leads to none.
PACKAGEMODEL_EXPORT std::optional<FieldValue> value(const PackageInfoModel *package,
                                                    const Tano::FieldPath &path);

/// The path of an item of a list by its index: `behaviors[greet][1]` for the second behavior with
/// the path "greet". The empty path if there is no such item.
PACKAGEMODEL_EXPORT Tano::FieldPath itemPath(const PackageInfoModel *package,
                                             const Tano::FieldPath &list, int index);

/// A path in words, in the language of the application: "Trigger sentences of “greet” in Japanese"
/// for `behaviors[greet].triggerSentences[ja_JP]`, "Robot requirement 1" for
/// `robotRequirements[0]`. A path that leads to no kind of field is returned as it is.
PACKAGEMODEL_EXPORT QString label(const Tano::FieldPath &path);

/// A value of a FieldKind as text: a version in its dotted form, a flag as "true" or "false". Empty
/// for an entry.
PACKAGEMODEL_EXPORT QString printed(const FieldValue &value);

} // namespace PackageModel
} // namespace Zel
