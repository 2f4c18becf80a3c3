#include "coverage.h"

#include <packagemodel/package_info_model.h>

#include <QHash>
#include <QSet>

#include <algorithm>
#include <array>
#include <utility>

namespace ZelPackage {
namespace {

using Zel::RobotLanguage;

bool isFilled(const QString &text) {
    return !text.isEmpty();
}

bool isFilled(const QStringList &texts) {
    return std::any_of(texts.begin(), texts.end(),
                       [](const QString &text) { return isFilled(text); });
}

// Counts the texts of entries, a language in each row.
class Tally {
public:
    Tally(const Zel::RobotLanguages &languages, const Zel::PackageInfoModel &package) {
        for (const RobotLanguage &language : languages) {
            LanguageCoverage row;
            row.language = language;
            row.isSupported = package.hasLanguageSupport(language);
            row.isDescribed = package.hasLanguageDescription(language);
            row.hasName = package.hasNameFor(language);
            row.hasDescription = package.hasDescriptionFor(language);
            m_indexes.insert(language.isoCode(), m_rows.size());
            m_rows.push_back(row);
        }
    }

    // Counts an entry, which is expected to have a text of that kind.
    template<typename Values>
    void add(Count LanguageCoverage::*kind, const Values &values) {
        ++(m_expected.*kind).expected;
        for (const auto &[value, language] : values) {
            const auto row = m_indexes.constFind(language.isoCode());
            if (row != m_indexes.constEnd() && isFilled(value))
                ++(m_rows[*row].*kind).present;
        }
    }

    // The same if it has one in any language.
    template<typename Values>
    void addIfUsed(Count LanguageCoverage::*kind, const Values &values) {
        if (std::any_of(values.begin(), values.end(),
                        [](const auto &entry) { return isFilled(entry.first); }))
            add(kind, values);
    }

    std::vector<LanguageCoverage> rows() {
        constexpr std::array kinds{&LanguageCoverage::names,
                                   &LanguageCoverage::descriptions,
                                   &LanguageCoverage::tags,
                                   &LanguageCoverage::triggerSentences,
                                   &LanguageCoverage::loadingResponses,
                                   &LanguageCoverage::topics};
        for (LanguageCoverage &row : m_rows) {
            for (const auto kind : kinds)
                (row.*kind).expected = (m_expected.*kind).expected;
        }
        return std::move(m_rows);
    }

private:
    std::vector<LanguageCoverage> m_rows;
    QHash<QString, std::size_t> m_indexes; // of the rows by ISO code
    LanguageCoverage m_expected;
};

} // namespace

Count LanguageCoverage::total() const {
    Count sum;
    if (!isSupported && !isDescribed)
        return sum;
    sum.add(hasName);
    sum.add(hasDescription);
    sum.add(names);
    sum.add(descriptions);
    if (isSupported) {
        sum.add(tags);
        sum.add(triggerSentences);
        sum.add(loadingResponses);
        sum.add(topics);
    }
    return sum;
}

int LanguageCoverage::percent() const {
    const Count sum = total();
    return sum.expected == 0 ? 0 : sum.present * 100 / sum.expected;
}

std::vector<LanguageCoverage> coveragesIn(const Zel::RobotLanguages &languages,
                                          const Zel::PackageInfoModel &package) {
    Tally tally(languages, package);
    const auto behaviors = package.behaviors();
    for (const Zel::BehaviorInfoModel *behavior : behaviors) {
        tally.add(&LanguageCoverage::names, behavior->names());
        tally.addIfUsed(&LanguageCoverage::descriptions, behavior->descriptions());
        tally.addIfUsed(&LanguageCoverage::tags, behavior->languagesToTags());
        tally.addIfUsed(&LanguageCoverage::triggerSentences,
                        behavior->languagesToTriggerSentences());
        tally.addIfUsed(&LanguageCoverage::loadingResponses,
                        behavior->languagesToLoadingResponses());
    }
    const auto dialogs = package.dialogs();
    for (const Zel::DialogInfoModel *dialog : dialogs)
        tally.addIfUsed(&LanguageCoverage::topics, dialog->topics());
    return tally.rows();
}

Zel::RobotLanguages languagesOf(const Zel::PackageInfoModel &package) {
    Zel::RobotLanguages languages;
    QSet<QString> codes;
    const auto add = [&](const RobotLanguage &language) {
        if (codes.contains(language.isoCode()))
            return;
        codes.insert(language.isoCode());
        languages.push_back(language);
    };
    for (const RobotLanguage &language : package.supportedLanguages())
        add(language);
    for (const RobotLanguage &language : package.descriptionLanguages())
        add(language);
    for (const std::string &bytes : package.packageInfo().languageCodes()) {
        const QString code = Zel::fromUtf8(bytes);
        if (!code.endsWith(Zel::PackageModel::k_sa.text()))
            add(Zel::robotLanguage(code));
    }
    return languages;
}

Zel::RobotLanguages scriptLanguagesOf(const Zel::PackageInfoModel &package) {
    Zel::RobotLanguages languages;
    const std::set<std::string> codes = package.packageInfo().languageCodes();
    for (const RobotLanguage &language : languagesOf(package)) {
        if (codes.count(Zel::toUtf8(language.isoCode() % Zel::PackageModel::k_sa.text())) > 0)
            languages.push_back(language);
    }
    return languages;
}

} // namespace ZelPackage
