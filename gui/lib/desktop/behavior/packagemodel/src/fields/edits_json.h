#pragma once

#include "json_members.h"

#include <packagemodel/package_json.h>

namespace Zel::PackageModel {

/// Puts edits into an object as its member "edits".
void insertEdits(QJsonObject &object, const Edits &edits);
/// Takes the edits of an object; none if one of them is at fault, which is then its error.
Edits takeEdits(JsonMembers &members);

} // namespace Zel::PackageModel
