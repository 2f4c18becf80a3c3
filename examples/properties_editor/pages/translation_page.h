#pragma once

#include "page.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QTableView;

namespace Editor {

class LanguagePairChooser;
class TextPair;
class TranslationModel;

/// All texts of the package and its behaviors in one list, with source and translation side by
/// side.
class TranslationPage : public Page {
    Q_OBJECT

public:
    explicit TranslationPage(Document &document, QWidget *parent = nullptr);

    /// Always false: each text has a field on another page.
    bool showField(const Tano::FieldPath &) override { return false; }
    /// Shows a text in the target language and focuses its translation; returns false if it is not
    /// a translatable text.
    bool showText(const Tano::FieldPath &path);

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    QWidget *newChoosers();
    QWidget *newList();
    QWidget *newButtons();
    QPushButton *newButton(const QString &text, const QString &toolTip,
                           const std::function<void()> &action);
    void connectModel();
    TextBinding bindingOf(const std::function<QModelIndex()> &index) const;
    void followDocument();
    void showLanguages();
    void applyFilter();
    void restoreCurrent();
    void showCurrent();
    void refresh();
    void goTo(int distance);
    void copySource();
    void showChange(const QString &path);

    TranslationModel *m_model;
    LanguagePairChooser *m_languages;
    QComboBox *m_filter;
    QLineEdit *m_search;
    QTableView *m_view;
    TextPair *m_pair;
    QLabel *m_summary;
    QVector<QPushButton *> m_rowButtons;  // for the current row
    QVector<QPushButton *> m_listButtons; // for two languages
    Tano::FieldPath m_wanted;             // will be current when it is added
    QString m_note;                       // the result of the last action
};

} // namespace Editor
