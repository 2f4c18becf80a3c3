#pragma once

#include <packagemodel/packagemodel_export.h>

#include <tano/field_path.h>
#include <zel/robot_language.h>

#include <vector>

namespace Zel {

class PackageInfoModel;

/// How far a package is translated, counted by one set of rules for all programs:
///
/// - The package needs a name and a description, and each behavior a name.
/// - Each behavior needs a description, tags, trigger sentences and loading responses, and each
///   dialog a topic file, but only of the kinds that it has in at least one language, listed or
///   not.
/// - A text that is empty, and a list of nothing but empty texts, count as missing. A list counts
///   once, however many texts it has.
/// - A language that the package is described in, but does not run in, needs names and descriptions
///   only. A language that the package does not list needs nothing.
namespace PackageModel {

/// The number of texts that are present, of those that are expected.
struct Count {
    int present = 0;
    int expected = 0;

    /// Adds one expected text.
    void add(bool isPresent) {
        present += isPresent ? 1 : 0;
        ++expected;
    }
    void add(Count other) {
        present += other.present;
        expected += other.expected;
    }
};

/// The coverage of a package in one language.
///
/// The counts of single kinds are made for every language alike, so that they also show the texts
/// of a language that does not need them; total() leaves those out.
struct LanguageCoverage {
    RobotLanguage language;
    bool isSupported = false; ///< whether the package runs in it
    bool isDescribed = false; ///< whether it is one of the package's description languages

    // Of the package itself.
    bool hasName = false;
    bool hasDescription = false;

    // One for each behavior, or each dialog, that needs one.
    Count names;
    Count descriptions;
    Count tags;
    Count triggerSentences;
    Count loadingResponses;
    Count topics;

    /// All that the language needs.
    PACKAGEMODEL_EXPORT Count total() const;
    /// total() in whole percent, rounded down: 100 only if nothing is missing, 0 if nothing is
    /// expected.
    PACKAGEMODEL_EXPORT int percent() const;
};

/// The languages of a package: the supported ones, those that it is only described in, both in its
/// order, and those that merely have texts, by ascending code. The script variants of languages
/// (k_sa) are left out unless they are listed. Empty for a null package.
///
/// Reads the record, which texts inserted into the lists of a behavior reach with syncRecord().
PACKAGEMODEL_EXPORT RobotLanguages languages(const PackageInfoModel *package);

/// The coverage in one language, which need not be among languages(). Empty for a null package.
PACKAGEMODEL_EXPORT LanguageCoverage coverage(const PackageInfoModel *package,
                                              const RobotLanguage &language);

/// The coverage in each of languages(), in their order and in a single pass through the package.
///
/// ```
/// for (const auto &each : PackageModel::coverages(&package))
///     out << each.language.uiName() << ": " << each.percent() << " %\n";
/// ```
PACKAGEMODEL_EXPORT std::vector<LanguageCoverage> coverages(const PackageInfoModel *package);

/// The coverage of one behavior.
struct BehaviorCoverage {
    Tano::FieldPath path;
    std::vector<Count> counts; ///< what it needs in each of languages(), in their order
};

/// The coverage of each behavior, in the order of the package.
PACKAGEMODEL_EXPORT std::vector<BehaviorCoverage>
behaviorCoverages(const PackageInfoModel *package);

} // namespace PackageModel
} // namespace Zel
