#pragma once

#include "console/console.h"
#include "console/text_table.h"

#include <packagemodel/package_coverage.h>

#include <vector>

namespace ZelPackage {

/// A count as "3/4"; a dash if there is nothing to translate.
TextTable::Cell countCell(Zel::PackageModel::Count count);

/// The coverage of languages as a table, a line for each, as wide as the terminal allows, and notes
/// on the languages that do not run.
QString coverageTable(const std::vector<Zel::PackageModel::LanguageCoverage> &coverages,
                      const Console &console, int indent);

} // namespace ZelPackage
