#pragma once

#include <tano/package_info.h>

#include <string>

/// Packages of any size for benchmarks. Equal sizes give identical bytes.
namespace SamplePackage {

/// A package with this number of behaviors, in up to ten languages. In three, a behavior is about
/// 2 kB of manifest.
Tano::PackageInfo package(int behaviorCount, int languageCount = 3);

/// The behavior at an index of such a package.
Tano::BehaviorInfo behavior(int index, int languageCount = 3);

/// The path of the behavior at an index.
std::string path(int index);

} // namespace SamplePackage
