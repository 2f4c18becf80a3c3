#pragma once

#include "record_data.h"

#include <string>
#include <vector>

namespace Tano {

// What tells the entries of an element's lists apart.

std::vector<std::string> listKeys(const PackageData &package, const Extras::ListId &id);
std::vector<std::string> listKeys(const BehaviorData &behavior, const Extras::ListId &id);
/// Of the block of texts of a behavior in one language.
std::vector<std::string> listKeys(const BehaviorData &behavior, const std::string &language,
                                  const Extras::ListId &id);

} // namespace Tano
