#include "marks.h"

#include "document/document.h"
#include "icons.h"
#include "plain_text.h"

#include <QAction>
#include <QApplication>
#include <QEvent>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QStyle>

#include <algorithm>

namespace Editor {
namespace {

using Zel::PackageModel::Issue;
using Zel::PackageModel::Severity;

const QString actionName = QStringLiteral("mark");

// Stores the tint of a field, its parent.
class Tint : public QObject {
public:
    explicit Tint(QWidget *field)
        : QObject(field)
        , m_field(field) {
        field->installEventFilter(this);
    }

    static void set(QWidget *field, const std::optional<Severity> &severity) {
        const auto &children = field->children();
        const auto found = std::find_if(children.begin(), children.end(), [](QObject *child) {
            return dynamic_cast<Tint *>(child) != nullptr;
        });
        if (found == children.end() && !severity)
            return;
        auto *tint = found == children.end() ? new Tint(field) : static_cast<Tint *>(*found);
        tint->m_severity = severity;
        tint->apply();
    }

    bool eventFilter(QObject *watched, QEvent *event) override {
        if (event->type() == QEvent::PaletteChange && m_severity &&
            m_field->palette().color(QPalette::Base) != severityColor(*m_severity))
            apply();
        return QObject::eventFilter(watched, event);
    }

private:
    void apply() {
        QPalette palette;
        if (m_severity)
            palette.setColor(QPalette::Base, severityColor(*m_severity));
        m_field->setPalette(palette);
    }

    QWidget *m_field;
    std::optional<Severity> m_severity;
};

// Shows the icon at the end of a line edit.
void showIcon(QLineEdit *edit, const std::optional<Mark> &mark) {
    auto *action = edit->findChild<QAction *>(actionName, Qt::FindDirectChildrenOnly);
    if (!mark) {
        delete action;
        return;
    }
    if (!action) {
        action = edit->addAction(QIcon(), QLineEdit::TrailingPosition);
        action->setObjectName(actionName);
    }
    action->setIcon(severityIcon(mark->severity));
    action->setToolTip(toolTipOf(mark->text));
}

} // namespace

std::optional<Mark> Mark::ofIssue(const std::optional<Issue> &issue) {
    if (!issue)
        return std::nullopt;
    return Mark{issue->severity, issue->plainText()};
}

std::optional<Mark> Mark::ofRefusal(const QString &sentence) {
    if (sentence.isEmpty())
        return std::nullopt;
    return Mark{Severity::Error, sentence};
}

QColor mixed(const QColor &a, const QColor &b, double share) {
    const auto mix = [share](int from, int to) { return int(from + (to - from) * share); };
    return {mix(a.red(), b.red()), mix(a.green(), b.green()), mix(a.blue(), b.blue())};
}

QIcon severityIcon(Severity severity) {
    return iconOf(severity == Severity::Error     ? Symbol::Error
                  : severity == Severity::Warning ? Symbol::Warning
                                                  : Symbol::Note);
}

QString severityName(Severity severity) {
    return severity == Severity::Error     ? MarkLabel::tr("Error")
           : severity == Severity::Warning ? MarkLabel::tr("Warning")
                                           : MarkLabel::tr("Note");
}

QColor severityColor(Severity severity) {
    const QColor base = QApplication::palette().color(QPalette::Base);
    const QColor hue = severity == Severity::Error     ? QColor(0xd6, 0x2f, 0x3a)
                       : severity == Severity::Warning ? QColor(0xd9, 0x98, 0x00)
                                                       : QColor(0x2f, 0x7a, 0xd6);
    return mixed(base, hue, base.lightness() < 128 ? 0.34 : 0.18);
}

void markField(QWidget *field, const std::optional<Mark> &mark) {
    field->setToolTip(mark ? toolTipOf(mark->text) : QString());
    field->setAccessibleDescription(mark ? mark->text : QString());
    Tint::set(field, mark ? std::make_optional(mark->severity) : std::nullopt);
    if (auto *edit = qobject_cast<QLineEdit *>(field))
        showIcon(edit, mark);
}

QVariant markData(const std::optional<Mark> &mark, int role) {
    if (!mark)
        return {};
    switch (role) {
    case Qt::ToolTipRole:
        return toolTipOf(mark->text);
    case Qt::AccessibleDescriptionRole:
        return mark->text;
    case Qt::BackgroundRole:
        return severityColor(mark->severity);
    case Qt::DecorationRole:
        return severityIcon(mark->severity);
    default:
        return {};
    }
}

MarkLabel::MarkLabel(Document &document, std::function<Tano::FieldPath()> path, QWidget *parent)
    : QWidget(parent)
    , m_document(document)
    , m_path(std::move(path))
    , m_icon(new QLabel(this))
    , m_text(new QLabel(this)) {
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_icon);
    layout->addWidget(m_text, 1);
    m_text->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_text->setTextFormat(Qt::PlainText);
    connect(&document, &Document::issuesChanged, this, &MarkLabel::refresh);
    connect(&document, &Document::edited, this, &MarkLabel::refresh);
    refresh();
}

void MarkLabel::changeEvent(QEvent *event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        refresh();
}

void MarkLabel::refresh() {
    const auto mark = Mark::ofIssue(m_document.issueAt(m_path()));
    setVisible(mark.has_value());
    if (!mark)
        return;
    const int extent = style()->pixelMetric(QStyle::PM_SmallIconSize);
    m_icon->setPixmap(severityIcon(mark->severity).pixmap(extent, extent));
    m_text->setText(mark->text);
    m_text->setToolTip(toolTipOf(mark->text));
}

} // namespace Editor
