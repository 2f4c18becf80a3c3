#include <packagemodel/requirements.h>

#include <packagemodel/text_conversion.h>

#include <algorithm>

namespace Zel {
namespace {

SoftwareVersion versionFromUtf8(const std::string &text) {
    return SoftwareVersionUtils::fromString(fromUtf8(text));
}

std::string versionToUtf8(const SoftwareVersion &version) {
    return toUtf8(SoftwareVersionUtils::toString(version));
}

} // namespace

bool operator==(const RobotRequirement &a, const RobotRequirement &b) {
    return a.model == b.model && a.minHeadVersion == b.minHeadVersion &&
           a.maxHeadVersion == b.maxHeadVersion && a.minBodyVersion == b.minBodyVersion &&
           a.maxBodyVersion == b.maxBodyVersion;
}

bool operator==(const BrioRequirement &a, const BrioRequirement &b) {
    return a.minVersion == b.minVersion && a.maxVersion == b.maxVersion;
}

bool isRangeValid(const SoftwareVersion &min, const SoftwareVersion &max) {
    const int common = std::min(min.fieldsCount(), max.fieldsCount());
    for (int i = 0; i < common; ++i) {
        if (min.versionField(i) != max.versionField(i))
            return min.versionField(i) < max.versionField(i);
    }
    return true; // equal, or one extends the other
}

RobotRequirement fromTanoRobotRequirement(const Tano::RobotRequirement &record) {
    return {fromUtf8(record.model), versionFromUtf8(record.minHeadVersion),
            versionFromUtf8(record.maxHeadVersion), versionFromUtf8(record.minBodyVersion),
            versionFromUtf8(record.maxBodyVersion)};
}

Tano::RobotRequirement toTanoRobotRequirement(const RobotRequirement &requirement) {
    return {toUtf8(requirement.model), versionToUtf8(requirement.minHeadVersion),
            versionToUtf8(requirement.maxHeadVersion), versionToUtf8(requirement.minBodyVersion),
            versionToUtf8(requirement.maxBodyVersion)};
}

BrioRequirement fromTanoBrioRequirement(const Tano::BrioRequirement &record) {
    return {versionFromUtf8(record.minVersion), versionFromUtf8(record.maxVersion)};
}

Tano::BrioRequirement toTanoBrioRequirement(const BrioRequirement &requirement) {
    return {versionToUtf8(requirement.minVersion), versionToUtf8(requirement.maxVersion)};
}

} // namespace Zel
