#include "problem_count.h"

#include "document/document.h"
#include "widgets/icons.h"
#include "widgets/marks.h"

#include <QMap>

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
    if (m_document.issues().isEmpty()) {
        setText(tr("No problems"));
        setIcon(iconOf(Symbol::Check));
        return;
    }
    QMap<Severity, int> counts;
    for (const auto &issue : m_document.issues())
        ++counts[issue.severity];
    QString text = counts.contains(Severity::Note) ? tr("Errors: %1, warnings: %2, notes: %3")
                                                   : tr("Errors: %1, warnings: %2");
    for (const Severity severity : {Severity::Error, Severity::Warning, Severity::Note}) {
        if (severity != Severity::Note || counts.contains(severity))
            text = text.arg(counts.value(severity));
    }
    setText(text);
    setIcon(severityIcon(counts.lastKey()));
}

} // namespace Editor
