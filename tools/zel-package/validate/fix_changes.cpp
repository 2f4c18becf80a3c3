#include "fix_changes.h"

#include <packagemodel/record_editor.h>

namespace ZelPackage {

std::vector<LineChange> FixChanges::of(const Zel::PackageModel::Fix &fix) {
    const std::string &content = m_manifest.content;
    if (content.empty() || m_spent > budget)
        return {};
    if (!m_isCanonical)
        m_isCanonical = m_manifest.record.saveToManifestContent() == content;
    if (!*m_isCanonical)
        return {};
    m_spent += content.size();
    Zel::RecordEditor editor(m_manifest.record);
    if (!editor.apply(fix.edits).error.isEmpty())
        return {};
    const std::string fixed = editor.record().saveToManifestContent();
    return fixed.empty() ? std::vector<LineChange>() : lineChanges(content, fixed);
}

} // namespace ZelPackage
