#include "problem_count.h"

#include "document/document.h"
#include "widgets/icons.h"
#include "widgets/marks.h"

namespace Editor {

ProblemCount::ProblemCount(const Document &document, QWidget *parent)
    : QToolButton(parent)
    , m_document(document) {
    setAutoRaise(true);
    setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    connect(&document, &Document::edited, this, &ProblemCount::refresh);
    refresh();
}

void ProblemCount::refresh() {
    using Zel::PackageModel::Severity;
    int errors = 0;
    int warnings = 0;
    for (const auto &issue : m_document.issues())
        ++(issue.severity == Severity::Error ? errors : warnings);
    if (errors + warnings == 0) {
        setText(tr("No problems"));
        setIcon(iconOf(Symbol::Check));
        return;
    }
    setText(tr("Errors: %1, warnings: %2").arg(errors).arg(warnings));
    setIcon(severityIcon(errors > 0 ? Severity::Error : Severity::Warning));
}

} // namespace Editor
