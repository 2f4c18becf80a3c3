// A speech script is converted to a text that is not longer, or rejected with a sentence and a
// position; a text without a tag is plain.

#include "target.h"

#include <tano/package_helper.h>

#include <stdexcept>

namespace {

void requirePlainText(const std::string &script, const std::string &text) {
    require(text.size() <= script.size(), "the plain text is no longer than its script");
    if (script.find('<') == std::string::npos)
        require(text == script, "a text without a tag comes back");
    require(Tano::PackageHelper::getHumanReadableText(script) == text,
            "the same script gives the same text");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const std::string script(reinterpret_cast<const char *>(data), size);
    try {
        requirePlainText(script, Tano::PackageHelper::getHumanReadableText(script));
    } catch (const std::runtime_error &error) {
        const std::string message = error.what();
        require(message.rfind("Line ", 0) == 0, "a refusal has a place");
        require(message.size() > 2 && message.back() == '.', "a refusal has a sentence");
    }
    return 0;
}
