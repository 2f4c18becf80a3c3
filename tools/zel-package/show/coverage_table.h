#pragma once

#include "console/console.h"
#include "console/text_table.h"

#include <packagemodel/package_coverage.h>

#include <vector>

namespace ZelPackage {

/// A count like "3/4", or a dash if there is nothing to translate.
TextTable::Cell countCell(Zel::PackageModel::Count count);

/// A table with the coverage of each language, as wide as the terminal allows, and notes on
/// languages that are not supported.
QString coverageTable(const std::vector<Zel::PackageModel::LanguageCoverage> &coverages,
                      const Console &console, int indent);

} // namespace ZelPackage
