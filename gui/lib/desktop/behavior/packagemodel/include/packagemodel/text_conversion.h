#pragma once

#include <packagemodel/packagemodel_export.h>

#include <zel/robot_language.h>

#include <QString>

#include <string>

/// The one bridge between the records, which hold UTF-8, and the models, which hold UTF-16.
namespace Zel {

/// Decodes UTF-8, up to the first NUL byte. Bytes that are not UTF-8 become U+FFFD; a byte order
/// mark is text and stays.
PACKAGEMODEL_EXPORT QString fromUtf8(const std::string &text);

/// Encodes as UTF-8, up to the first NUL character. A surrogate that stands alone becomes its three
/// bytes: no valid UTF-8, so that saving the text reports it rather than losing it.
PACKAGEMODEL_EXPORT std::string toUtf8(const QString &text);

namespace PackageModel {
/// Ends the private-use code (BCP 47) of a language's script variant, as in "en_US-x-scrpol".
inline const ISOCode k_sa{QStringLiteral("-x-scrpol")};
} // namespace PackageModel

/// Drops as many trailing characters as PackageModel::k_sa has, whatever they are; a code that is
/// shorter than that stays whole. Meant for codes that end with the suffix.
PACKAGEMODEL_EXPORT QString removeSuffix(const QString &code);

} // namespace Zel
