// A published manifest can be saved and read back, and is at most 20 times its source plus 4 kB.
// Publishing it again only converts what looks like a script, and a third time changes nothing.

#include "target.h"

#include <packagemodel/package_info_model.h>

#include <QLoggingCategory>

#include <algorithm>

namespace {

using Texts = std::vector<std::string>;

bool isVariant(const std::string &code) {
    return QString::fromStdString(code).endsWith(Zel::PackageModel::k_sa.text());
}

void append(Texts &texts, const Tano::TextMap &map) {
    for (const auto &[code, text] : map) {
        if (!isVariant(code))
            texts.push_back(text);
    }
}

void append(Texts &texts, const Tano::TextListMap &map) {
    for (const auto &[code, list] : map) {
        if (!isVariant(code))
            texts.insert(texts.end(), list.begin(), list.end());
    }
}

// The texts to be converted, in natural languages.
Texts plainTexts(const Tano::PackageInfo &record) {
    Texts texts;
    append(texts, record.names());
    append(texts, record.descriptions());
    for (const Tano::BehaviorInfo &behavior : record.behaviors()) {
        append(texts, behavior.names());
        append(texts, behavior.descriptions());
        append(texts, behavior.languagesToTriggerSentences());
        append(texts, behavior.languagesToLoadingResponses());
    }
    return texts;
}

Tano::PackageInfo published(const Tano::PackageInfo &record) {
    Zel::PackageInfoModel package(record);
    package.trimExtraInfo();
    package.genPlainTextFromScript();
    package.syncRecord();
    const std::string content = package.packageInfo().saveToManifestContent();
    Tano::PackageInfo again;
    require(again.loadFromManifestContent(content), "the published manifest can be read");
    require(again.saveToManifestContent() == content, "the published manifest is saved unchanged");
    return again;
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    QLoggingCategory::setFilterRules(QStringLiteral("*=false")); // malformed scripts are logged
    Tano::PackageInfo record;
    if (!record.loadFromManifestContent(std::string(reinterpret_cast<const char *>(data), size)))
        return 0;
    const Tano::PackageInfo first = published(record);
    require(first.saveToManifestContent().size() <= 20 * size + 4096,
            "the published manifest is not much larger than its source");
    const Texts texts = plainTexts(first);
    if (std::any_of(texts.begin(), texts.end(), [](const std::string &text) {
            return text.find('<') != std::string::npos; // may be a script
        }))
        return 0;
    const Tano::PackageInfo second = published(first);
    require(plainTexts(second) == texts, "publishing leaves plain texts alone");
    require(published(second) == second, "publishing a third time changes nothing");
    return 0;
}
