#pragma once

#include <packagemodel/packagemodel_export.h>

#include <zel/robot_language.h>

#include <QString>

#include <string>

/// The models of packages, their commands, and the values that they use.
namespace Zel {

/// Decodes UTF-8 text of a record, up to the first NUL byte. Invalid bytes become U+FFFD; a byte
/// order mark is kept.
PACKAGEMODEL_EXPORT QString fromUtf8(const std::string &text);

/// Encodes text as UTF-8 for a record, up to the first NUL character. A lone surrogate becomes
/// three bytes that are not valid UTF-8, so that saving reports it instead of losing it.
PACKAGEMODEL_EXPORT std::string toUtf8(const QString &text);

namespace PackageModel {
/// The suffix of the private-use code (BCP 47) of a language's script variant: "en_US-x-scrpol".
inline const ISOCode k_sa{QStringLiteral("-x-scrpol")};
} // namespace PackageModel

/// Drops as many trailing characters as PackageModel::k_sa has, without comparing them; a shorter
/// code is returned unchanged. Use it for codes that end with the suffix.
PACKAGEMODEL_EXPORT QString removeSuffix(const QString &code);

} // namespace Zel
