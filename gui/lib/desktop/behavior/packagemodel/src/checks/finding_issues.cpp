#include "finding_issues.h"

#include <packagemodel/text_conversion.h>

namespace Zel::PackageModel {

bool isNamed(const Finding &finding) {
    return finding.rule != RuleId::TriggerSentencesMissing || !finding.language.uiName().isEmpty();
}

Issue bareIssueOf(const Finding &finding) {
    const RuleRow &row = ruleRow(finding.rule);
    return {QLatin1String(row.id), row.severity, fromUtf8(pathOf(finding).toString()), {}};
}

void complete(Issue &issue, const Finding &finding) {
    issue.text = message(finding, {finding.language});
    issue.node = finding.node;
}

} // namespace Zel::PackageModel
