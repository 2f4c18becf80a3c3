#pragma once

#include <string>

class QFile;
class QString;

namespace Tano {

// Both return why the bytes could not be saved, as a sentence; the empty text after a success.

/// Writes the bytes beside the file at `path` and renames them over it, so that the file holds
/// either what it held or all of the bytes. A symbolic link is followed and stays.
std::string replaceFile(const QString &path, const std::string &bytes);

/// Makes the bytes the content of a file that is open.
std::string writeInPlace(QFile &file, const std::string &bytes);

} // namespace Tano
