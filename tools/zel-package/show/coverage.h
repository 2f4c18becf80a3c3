#pragma once

#include <zel/robot_language.h>

#include <vector>

namespace Zel {
class PackageInfoModel;
}

namespace ZelPackage {

/// How many texts there are, of how many that the package should have.
struct Count {
    int present = 0;
    int expected = 0;

    void add(bool isPresent) {
        present += isPresent ? 1 : 0;
        ++expected;
    }
    void add(Count other) {
        present += other.present;
        expected += other.expected;
    }
};

/// How far a package is translated into one language.
///
/// Every package needs a name and a description, and every behavior a name. Any other text is
/// expected of a behavior or dialog that has it in some language. In a language that the package is
/// only described in, just names and descriptions are expected; in one that it does not list,
/// nothing.
struct LanguageCoverage {
    Zel::RobotLanguage language;
    bool isSupported = false; ///< the package runs in it
    bool isDescribed = false; ///< the package is described in it

    bool hasName = false;
    bool hasDescription = false;
    // One for each behavior or dialog; present where there is a text that is not empty.
    Count names;
    Count descriptions;
    Count tags;
    Count triggerSentences;
    Count loadingResponses;
    Count topics;

    /// All that is expected in the language.
    Count total() const;
    /// total() in whole percent, 100 only when nothing is missing.
    int percent() const;
};

/// The coverage in each of the languages, counted in one pass through the package.
std::vector<LanguageCoverage> coveragesIn(const Zel::RobotLanguages &languages,
                                          const Zel::PackageInfoModel &package);

/// The languages of the package: the supported ones, those it is only described in, both in its
/// order, then by ascending code those that are not listed but have texts. The script variants of
/// languages are left out, unless they are listed.
Zel::RobotLanguages languagesOf(const Zel::PackageInfoModel &package);

/// Those of languagesOf() in whose script variant (PackageModel::k_sa) the package has something.
Zel::RobotLanguages scriptLanguagesOf(const Zel::PackageInfoModel &package);

} // namespace ZelPackage
