#pragma once

#include <packagemodel/packagemodel_export.h>

#include <tano/field_path.h>
#include <zel/robot_language.h>

#include <vector>

namespace Zel {

class PackageInfoModel;

/// @file
/// Counts how far a package is translated, by one set of rules for all programs:
///
/// - The package needs a name and a description, and each behavior a name.
/// - Each behavior needs a description, tags, trigger sentences and loading responses, and each
///   dialog a topic file, but only of the kinds that it has in at least one language.
/// - Empty texts, and lists with only empty texts, count as missing. A list counts once, however
///   many texts it has.
/// - A language that the package is described in, but does not run in, needs only names and
///   descriptions. A language that the package does not list needs nothing.
namespace PackageModel {

/// The number of texts that are present, out of those that are expected.
struct Count {
    int present = 0;  ///< texts that exist
    int expected = 0; ///< texts that are needed

    /// Adds one expected text.
    void add(bool isPresent) {
        present += isPresent ? 1 : 0;
        ++expected;
    }
    /// Adds another count.
    void add(Count other) {
        present += other.present;
        expected += other.expected;
    }
};

/// The coverage of a package in one language.
///
/// The counts of the kinds are the same for all languages, whether or not a language needs them;
/// total() counts only what it needs.
struct LanguageCoverage {
    RobotLanguage language;   ///< the counted language
    bool isSupported = false; ///< whether the package runs in it
    bool isDescribed = false; ///< whether it is one of the package's description languages

    bool hasName = false;        ///< whether the package itself has a name
    bool hasDescription = false; ///< whether the package itself has a description

    /// @{
    /// One for each behavior or dialog that needs it.
    Count names;
    Count descriptions;
    Count tags;
    Count triggerSentences;
    Count loadingResponses;
    Count topics;
    /// @}

    /// Everything that the language needs.
    PACKAGEMODEL_EXPORT Count total() const;
    /// total() in whole percent, rounded down: 100 only if nothing is missing, 0 if nothing is
    /// expected.
    PACKAGEMODEL_EXPORT int percent() const;
};

/// The languages of a package: first the supported ones and those that it is only described in, in
/// the order of the package, then those that merely have texts, by ascending code. Script variants
/// (k_sa) are included only if they are listed. Empty for a null package.
///
/// Reads the record: call PackageInfoModel::syncRecord() before.
PACKAGEMODEL_EXPORT RobotLanguages languages(const PackageInfoModel *package);

/// The coverage in one language, which need not be among languages(). Empty for a null package.
PACKAGEMODEL_EXPORT LanguageCoverage coverage(const PackageInfoModel *package,
                                              const RobotLanguage &language);

/// The coverage in each of languages(), in the same order, in a single pass.
///
/// ```cpp
/// for (const auto &each : PackageModel::coverages(&package))
///     out << each.language.uiName() << ": " << each.percent() << " %\n";
/// ```
PACKAGEMODEL_EXPORT std::vector<LanguageCoverage> coverages(const PackageInfoModel *package);

/// The coverage of one behavior.
struct BehaviorCoverage {
    Tano::FieldPath path;      ///< of the behavior
    std::vector<Count> counts; ///< of the texts it needs in each of languages(), in the same order
};

/// The coverage of each behavior, in the order of the package.
PACKAGEMODEL_EXPORT std::vector<BehaviorCoverage>
behaviorCoverages(const PackageInfoModel *package);

} // namespace PackageModel
} // namespace Zel
