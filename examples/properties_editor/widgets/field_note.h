#pragma once

#include <QLabel>

namespace Editor {

/// A line below a field with the reason why its text was refused; hidden if there is none.
///
/// It is part of a layout, or hovers below a field without space around it, such as the editor of a
/// cell.
class FieldNote : public QLabel {
    Q_OBJECT

public:
    explicit FieldNote(QWidget *field);

    void setReason(const QString &reason);
    /// Shows the note over the widgets below the field, and deletes it along with the field.
    void hover();

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void place();

    QWidget *m_field;
    bool m_hovers = false;
};

} // namespace Editor
