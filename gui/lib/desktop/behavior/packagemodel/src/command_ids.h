#pragma once

/// The ids of commands that merge; all others have -1. Some families share an id deliberately:
/// mergeWith() also compares types. No command has the id 4.
namespace Zel::CommandId {

constexpr int behaviorPath = 0;
constexpr int behaviorNature = 1;
constexpr int behaviorName = 2;
constexpr int behaviorDescription = 3;
constexpr int behaviorTag = 5;
constexpr int behaviorTriggerSentence = 6;
constexpr int behaviorLoadingResponse = 7;
constexpr int behaviorCondition = 8;

constexpr int dialogName = 0;
constexpr int dialogTypeVersion = 1;
constexpr int dialogTopic = 2;

constexpr int packageText = 42;
constexpr int packageEdits = 43;

} // namespace Zel::CommandId
