#pragma once

#include <packagemodel/packagemodel_export.h>

#include <QString>
#include <QVector>

namespace Zel {

class PackageInfoModel;

namespace PackageModel {

/// A speech script as a person would read it, or why it cannot be.
struct PlainText {
    QString text;
    QString error; ///< what is wrong, with the place within the text; empty on success
};

/// Makes plain text of a script; a text without markup is plain already.
PACKAGEMODEL_EXPORT PlainText plainTextOf(const QString &script);

/// A text of which no plain text can be made, because it is a malformed speech script.
struct ScriptError {
    /// The field that holds it, for example "names[fr_FR]" or
    /// "behaviors[greet].loadingResponses[ja_JP][0]".
    QString path;
    /// What is wrong, with the place within the text: "Line 1, column 7: ...".
    QString text;
};

/// The texts that PackageInfoModel::genPlainTextFromScript() would leave as they are, in the order
/// in which it comes to them. An empty list for a null package.
PACKAGEMODEL_EXPORT QVector<ScriptError> scriptErrors(const PackageInfoModel *package);

} // namespace PackageModel
} // namespace Zel
