#include <tano/package_helper.h>

#include "speech_script.h"

#include <stdexcept>

namespace Tano::PackageHelper {

std::string getHumanReadableText(const std::string &script) {
    if (!isSpeechScript(script))
        return script;
    SpeechScriptReader reader(script);
    if (!reader.read())
        throw std::runtime_error(reader.errorString());
    return reader.takePlainText();
}

} // namespace Tano::PackageHelper
