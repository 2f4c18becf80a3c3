#pragma once

#include <tano/tano_package_export.h>

#include <string>

namespace Tano::PackageHelper {

/// What a person would read of a text that may be a speech script: SSML 1.1 for what the robot
/// says, with `one-of`, `item` and `tag` of SRGS 1.0 for what it listens to. Both are UTF-8.
///
/// A text without a tag is plain and comes back unchanged. A script needs no root element; what
/// each element gives stands in docs/speech-script.md. Reading is bounded as ManifestReader is,
/// and stays linear in the size of the text.
///
/// Throws std::runtime_error, with a message such as "Line 1, column 7: ...", for malformed markup,
/// a document type declaration, a `speak` within another element, a malformed `repeat`, and text
/// that stands beside the alternatives of a `one-of`.
TANO_PACKAGE_EXPORT std::string getHumanReadableText(const std::string &script);

} // namespace Tano::PackageHelper
