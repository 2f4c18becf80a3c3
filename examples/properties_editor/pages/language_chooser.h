#pragma once

#include <QDialog>
#include <QSet>

class QDialogButtonBox;
class QLabel;
class QLineEdit;
class QSortFilterProxyModel;
class QStandardItemModel;
class QTreeView;

namespace Editor {

/// Asks for a language: a known one, from a sorted list that is searched by typing, or another one
/// by its code.
class LanguageChooser : public QDialog {
    Q_OBJECT

public:
    /// Omits the languages with the codes in `present`.
    explicit LanguageChooser(const QSet<QString> &present, QWidget *parent = nullptr);

    /// The code of the chosen language, or empty.
    QString code() const;

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void fill();
    void search(const QString &text);
    QString remark() const;

    QSet<QString> m_present;
    QStandardItemModel *m_languages;
    QSortFilterProxyModel *m_found;
    QLineEdit *m_search;
    QTreeView *m_view;
    QLabel *m_remark;
    QDialogButtonBox *m_buttons;
};

} // namespace Editor
