#pragma once

#include <tano/package_info.h>

#include <string>

/// Packages of any size to measure with. The same count gives the same bytes.
namespace SamplePackage {

/// A package with as many behaviors, each in three languages and about 2 kB of manifest.
Tano::PackageInfo package(int behaviorCount);

/// The behavior at an index of such a package.
Tano::BehaviorInfo behavior(int index);

/// The path of the behavior at an index.
std::string path(int index);

} // namespace SamplePackage
