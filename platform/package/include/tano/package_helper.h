#pragma once

#include <tano/tano_package_export.h>

#include <string>

/// Functions for the texts of packages.
namespace Tano::PackageHelper {

/// Converts a text that may be a speech script to the text that a person would read: SSML 1.1 for
/// what the robot says, with `one-of`, `item` and `tag` of SRGS 1.0 for what it listens to. Both
/// texts are UTF-8.
///
/// A text without markup is returned unchanged. A script needs no root element;
/// docs/speech-script.md describes the result for each element. Reading is bounded as in
/// ManifestReader, and linear in the size of the text.
///
/// Throws std::runtime_error with a message such as "Line 1, column 7: ..." for malformed markup, a
/// document type declaration, a nested `speak`, a malformed `repeat`, and text beside the
/// alternatives of a `one-of`.
///
/// ```cpp
/// Tano::PackageHelper::getHumanReadableText("Tea<break/>is ready"); // -> Tea is ready
/// ```
TANO_PACKAGE_EXPORT std::string getHumanReadableText(const std::string &script);

} // namespace Tano::PackageHelper
