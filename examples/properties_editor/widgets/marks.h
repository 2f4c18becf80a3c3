#pragma once

#include <packagemodel/package_issues.h>

#include <tano/field_path.h>

#include <QIcon>
#include <QLabel>
#include <QVariant>

#include <functional>
#include <optional>

namespace Editor {

class Document;

/// What is shown at a field at fault.
struct Mark {
    Zel::PackageModel::Severity severity;
    QString text; ///< plain

    static std::optional<Mark> ofIssue(const std::optional<Zel::PackageModel::Issue> &issue);
    /// For a text that the model cannot take; none when `sentence` is empty.
    static std::optional<Mark> ofRefusal(const QString &sentence);
};

/// The color between two, `share` of the way from `a` to `b`.
QColor mixed(const QColor &a, const QColor &b, double share);
QIcon severityIcon(Zel::PackageModel::Severity severity);
/// "Error" or "Warning".
QString severityName(Zel::PackageModel::Severity severity);
/// The background of a field at fault, in light and in dark.
QColor severityColor(Zel::PackageModel::Severity severity);

/// Tints a field, and shows the text as its tool tip and to assistive tools; without a mark it
/// looks as usual. The tint follows the palette.
void markField(QWidget *field, const std::optional<Mark> &mark);
/// How a cell of an item model shows a mark; invalid for roles that it does not concern.
QVariant markData(const std::optional<Mark> &mark, int role);

/// A line of text that says what is wrong, and is hidden while nothing is.
class MarkLabel : public QWidget {
    Q_OBJECT

public:
    /// Shows the issue of the field whose path `path` returns.
    MarkLabel(Document &document, std::function<Tano::FieldPath()> path, QWidget *parent = nullptr);
    void refresh();

protected:
    void changeEvent(QEvent *event) override;

private:
    Document &m_document;
    std::function<Tano::FieldPath()> m_path;
    QLabel *m_icon;
    QLabel *m_text;
};

} // namespace Editor
