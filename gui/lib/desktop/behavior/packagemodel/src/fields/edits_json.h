#pragma once

#include "json_members.h"

#include <packagemodel/package_json.h>

namespace Zel::PackageModel {

/// Inserts edits as the member "edits" of an object.
void insertEdits(QJsonObject &object, const Edits &edits);
/// Takes the edits of an object. If one is invalid, sets the error and returns none.
Edits takeEdits(JsonMembers &members);

} // namespace Zel::PackageModel
