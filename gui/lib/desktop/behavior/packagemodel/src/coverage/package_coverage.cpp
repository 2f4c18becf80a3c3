#include <packagemodel/package_coverage.h>

#include "../behavior_paths.h"

#include <packagemodel/package_info_model.h>

#include <zel/language.h>

#include <QHash>
#include <QSet>

#include <algorithm>
#include <array>
#include <utility>

namespace Zel::PackageModel {
namespace {

bool isFilled(const QString &text) {
    return !text.isEmpty();
}

bool isFilled(const QStringList &texts) {
    return std::any_of(texts.begin(), texts.end(),
                       [](const QString &text) { return isFilled(text); });
}

// Counts the texts of entries, one row per language.
class Tally {
public:
    Tally(const PackageInfoModel &package, const RobotLanguages &languages) {
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

    // Counts an entry that should have a text of this kind.
    template<typename Values>
    void add(Count LanguageCoverage::*kind, const Values &values) {
        ++(m_expected.*kind).expected;
        for (const auto &[value, language] : values) {
            const auto row = m_indexes.constFind(language.isoCode());
            if (row != m_indexes.constEnd() && isFilled(value))
                ++(m_rows[*row].*kind).present;
        }
    }

    // Like add(), if the entry has a text in any language.
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
    QHash<QString, std::size_t> m_indexes; // the rows by ISO code
    LanguageCoverage m_expected;
};

void addBehavior(Tally &tally, const BehaviorInfoModel &behavior) {
    tally.add(&LanguageCoverage::names, behavior.names());
    tally.addIfUsed(&LanguageCoverage::descriptions, behavior.descriptions());
    tally.addIfUsed(&LanguageCoverage::tags, behavior.languagesToTags());
    tally.addIfUsed(&LanguageCoverage::triggerSentences, behavior.languagesToTriggerSentences());
    tally.addIfUsed(&LanguageCoverage::loadingResponses, behavior.languagesToLoadingResponses());
}

std::vector<LanguageCoverage> coveragesIn(const PackageInfoModel &package,
                                          const RobotLanguages &languages) {
    Tally tally(package, languages);
    const auto behaviors = package.behaviors();
    for (const BehaviorInfoModel *behavior : behaviors)
        addBehavior(tally, *behavior);
    const auto dialogs = package.dialogs();
    for (const DialogInfoModel *dialog : dialogs)
        tally.addIfUsed(&LanguageCoverage::topics, dialog->topics());
    return tally.rows();
}

// The sum of the counts of behaviors and dialogs.
Count entriesTotal(const LanguageCoverage &coverage) {
    Count sum;
    if (!coverage.isSupported && !coverage.isDescribed)
        return sum;
    sum.add(coverage.names);
    sum.add(coverage.descriptions);
    if (coverage.isSupported) {
        sum.add(coverage.tags);
        sum.add(coverage.triggerSentences);
        sum.add(coverage.loadingResponses);
        sum.add(coverage.topics);
    }
    return sum;
}

} // namespace

Count LanguageCoverage::total() const {
    Count sum = entriesTotal(*this);
    if (isSupported || isDescribed) {
        sum.add(hasName);
        sum.add(hasDescription);
    }
    return sum;
}

int LanguageCoverage::percent() const {
    const Count sum = total();
    return sum.expected == 0 ? 0 : static_cast<int>(qint64(sum.present) * 100 / sum.expected);
}

RobotLanguages languages(const PackageInfoModel *package) {
    RobotLanguages languages;
    if (!package)
        return languages;
    QSet<QString> codes;
    const auto add = [&](const RobotLanguage &language) {
        if (codes.contains(language.isoCode()))
            return;
        codes.insert(language.isoCode());
        languages.push_back(language);
    };
    for (const RobotLanguage &language : package->supportedLanguages())
        add(language);
    for (const RobotLanguage &language : package->descriptionLanguages())
        add(language);
    for (const std::string &bytes : package->packageInfo().languageCodes()) {
        const QString code = fromUtf8(bytes);
        if (!code.endsWith(k_sa.text()))
            add(Language::languageInUse(code));
    }
    return languages;
}

LanguageCoverage coverage(const PackageInfoModel *package, const RobotLanguage &language) {
    return package ? coveragesIn(*package, {language}).front() : LanguageCoverage();
}

std::vector<LanguageCoverage> coverages(const PackageInfoModel *package) {
    return package ? coveragesIn(*package, languages(package)) : std::vector<LanguageCoverage>();
}

std::vector<BehaviorCoverage> behaviorCoverages(const PackageInfoModel *package) {
    std::vector<BehaviorCoverage> all;
    const RobotLanguages columns = languages(package);
    const auto append = [&](const Tano::FieldPath &path, const BehaviorInfoModel &behavior) {
        Tally tally(*package, columns);
        addBehavior(tally, behavior);
        BehaviorCoverage coverage{path, {}};
        for (const LanguageCoverage &each : tally.rows())
            coverage.counts.push_back(entriesTotal(each));
        all.push_back(coverage);
    };
    if (package)
        visitBehaviors(*package, append);
    return all;
}

} // namespace Zel::PackageModel
