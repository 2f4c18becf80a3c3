#include "manifest_fixes.h"

#include "console/library_text.h"

#include <packagemodel/package_info_model.h>
#include <packagemodel/record_editor.h>

namespace ZelPackage {

// Finds the edits on a copy: the record editor must apply them itself, to undo what only the model
// adds.
FixedManifest fixedManifest(const Tano::PackageInfo &record, Zel::PackageModel::FixChoice choice,
                            const Zel::PackageModel::IssueOptions &options) {
    Zel::PackageInfoModel copy(record);
    const auto edits = Zel::PackageModel::fixIssues(&copy, choice, options);
    if (edits.isEmpty())
        return {};
    Zel::RecordEditor editor(record);
    if (const auto applied = editor.apply(edits); !applied.error.isEmpty())
        return {{}, {}, applied.error};
    const Tano::PackageInfo fixed = editor.record();
    const std::string content = fixed.saveToManifestContent();
    return {content, fixed, content.empty() ? translatedSentence(fixed.errorString()) : QString()};
}

} // namespace ZelPackage
