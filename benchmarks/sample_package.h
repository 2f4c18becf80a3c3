#pragma once

#include <tano/package_info.h>

#include <string>

/// Packages of any size for benchmarks. Equal sizes give identical bytes.
namespace SamplePackage {

/// A package with this number of behaviors, each in three languages and about 2 kB of manifest.
Tano::PackageInfo package(int behaviorCount);

/// The behavior at an index of such a package.
Tano::BehaviorInfo behavior(int index);

/// The path of the behavior at an index.
std::string path(int index);

} // namespace SamplePackage
