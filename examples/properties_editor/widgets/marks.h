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

/// The mark of a field at fault.
struct Mark {
    Zel::PackageModel::Severity severity;
    QString text; ///< without markup

    static std::optional<Mark> ofIssue(const std::optional<Zel::PackageModel::Issue> &issue);
    /// For a text that the model refuses; nullopt if `sentence` is empty.
    static std::optional<Mark> ofRefusal(const QString &sentence);
};

/// Mixes two colors, `share` of the way from `a` to `b`.
QColor mixed(const QColor &a, const QColor &b, double share);
QIcon severityIcon(Zel::PackageModel::Severity severity);
/// "Error" or "Warning".
QString severityName(Zel::PackageModel::Severity severity);
/// The background of a field at fault, for light and dark palettes.
QColor severityColor(Zel::PackageModel::Severity severity);

/// Tints a field and shows the text as tool tip and to assistive tools; without a mark, resets the
/// appearance. The tint follows the palette.
void markField(QWidget *field, const std::optional<Mark> &mark);
/// The data of a mark for a cell of an item model; invalid for unrelated roles.
QVariant markData(const std::optional<Mark> &mark, int role);

/// A line of text that describes an issue; hidden if there is none.
class MarkLabel : public QWidget {
    Q_OBJECT

public:
    /// Shows the issue of the field at the path that `path` returns.
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
