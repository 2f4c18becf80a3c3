#pragma once

#include <string>

/// Compares two manifests by all their elements, attributes, texts, comments and processing
/// instructions, whatever their order, without the code under test. What the canonical form leaves
/// out counts for nothing: empty attributes and elements of the format. Returns one difference;
/// empty for none.
std::string differenceOfManifests(const std::string &a, const std::string &b);
