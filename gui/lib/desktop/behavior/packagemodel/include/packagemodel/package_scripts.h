#pragma once

#include <packagemodel/packagemodel_export.h>

#include <QString>
#include <QVector>

namespace Zel {

class PackageInfoModel;

namespace PackageModel {

/// The outcome of plainTextOf().
struct PlainText {
    QString text;  ///< the text that a person would read; empty on failure
    QString error; ///< with the position in the script; empty on success
};

/// Converts a speech script to plain text; a text without markup is returned unchanged.
///
/// ```cpp
/// const auto plain = PackageModel::plainTextOf(QStringLiteral("Tea <emphasis>time</emphasis>"));
/// out << (plain.error.isEmpty() ? plain.text : plain.error); // -> Tea time
/// ```
PACKAGEMODEL_EXPORT PlainText plainTextOf(const QString &script);

/// A malformed speech script.
struct ScriptError {
    /// The field, for example "names[fr_FR]" or "behaviors[greet].loadingResponses[ja_JP][0]".
    QString path;
    /// The error with its position in the text: "Line 1, column 7: ...".
    QString text;
};

/// The malformed scripts that PackageInfoModel::genPlainTextFromScript() would leave unchanged, in
/// the order of the conversion. Empty for a null package.
PACKAGEMODEL_EXPORT QVector<ScriptError> scriptErrors(const PackageInfoModel *package);

} // namespace PackageModel
} // namespace Zel
