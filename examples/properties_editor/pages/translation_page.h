#pragma once

#include "page.h"
#include "translation_exchange.h"

#include <QStringList>

class QComboBox;
class QLabel;
class QLineEdit;
class QTableView;

namespace Editor {

class TextPair;
class TranslationModel;

/// All texts of the package and its behaviors in one list, the source beside the translation.
class TranslationPage : public Page {
    Q_OBJECT

public:
    explicit TranslationPage(Document &document, QWidget *parent = nullptr);

    /// False: each text has a field on another page.
    bool showField(const Tano::FieldPath &path) override;
    /// Shows a text in the language that is translated, and gives its translation the focus; false
    /// if it is none.
    bool showText(const Tano::FieldPath &path);

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    QWidget *newChoosers();
    QWidget *newList();
    QWidget *newButtons();
    QPushButton *newButton(const QString &text, const QString &toolTip,
                           void (TranslationPage::*slot)());
    void connectModel();
    TextBinding bindingOf(const std::function<QModelIndex()> &index) const;
    void followDocument();
    void chooseSource();
    void chooseLanguages();
    void fillTargets();
    void applyFilter();
    void restoreCurrent();
    void showCurrent();
    void refresh();
    void goTo(int distance);
    void goToNext() { goTo(1); }
    void goToPrevious() { goTo(-1); }
    void copySource();
    void fillAll();
    void exportAll();
    void importAll();
    void showChange(const QString &path);
    LanguagePair languages() const;

    TranslationModel *m_model;
    QComboBox *m_source;
    QComboBox *m_target;
    QComboBox *m_filter;
    QLineEdit *m_search;
    QTableView *m_view;
    TextPair *m_pair;
    QLabel *m_summary;
    QVector<QPushButton *> m_rowButtons;  // for the current row
    QVector<QPushButton *> m_listButtons; // for two languages
    QStringList m_codes;                  // of the languages to choose from
    QString m_language;                   // the one that was last chosen
    Tano::FieldPath m_wanted;             // to be the current row when it comes
    QString m_note;                       // about the last action
};

} // namespace Editor
