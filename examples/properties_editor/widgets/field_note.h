#pragma once

#include <QLabel>

namespace Editor {

/// A line below a field that says why its text cannot be taken; hidden while there is no reason.
///
/// It takes its place in a layout, or hovers below a field that has no room around it, such as the
/// editor of a cell.
class FieldNote : public QLabel {
    Q_OBJECT

public:
    explicit FieldNote(QWidget *field);

    void setReason(const QString &reason);
    /// Places the note over whatever is below the field, and deletes it along with the field.
    void hover();

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void place();

    QWidget *m_field;
    bool m_hovers = false;
};

} // namespace Editor
