#pragma once

#include <string>

/// Compares two manifests by their elements, attributes, texts, comments and processing
/// instructions, ignoring order, without the code under test. Ignores what the canonical form
/// omits: empty attributes and elements of the format. Returns one difference, or an empty text.
std::string differenceOfManifests(const std::string &a, const std::string &b);
