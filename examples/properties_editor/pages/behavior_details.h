#pragma once

#include "page.h"
#include "widgets/string_list_editor.h"

#include <QPointer>

class QCheckBox;
class QComboBox;
class QHBoxLayout;
class QTabWidget;
class QVBoxLayout;

namespace Editor {

class LanguagesModel;
class MarkLabel;

/// All fields of one behavior.
class BehaviorDetails : public QWidget {
    Q_OBJECT

public:
    explicit BehaviorDetails(Document &document, QWidget *parent = nullptr);

    /// Shows a behavior; null for none.
    void setBehavior(Zel::BehaviorInfoModel *behavior);
    /// Focuses the path of a new behavior, so that typing replaces it.
    void startTypingPath();
    /// Shows the field at a path of the current behavior, and focuses it unless it is a text field.
    void showField(const Tano::FieldPath &path);

private:
    QWidget *newTextsTab();
    StringListEditor *addListTab(const char *field, const QString &title,
                                 const QString &placeholder);
    QHBoxLayout *newPurposeRow();
    QVBoxLayout *tabLayout(int tab) const;
    StringListEditor *list(int tab) const;
    void leaveLists();
    void changeLanguage();
    void changePurpose();
    QStringList purposes() const;
    void fillPurposes();
    QIcon tabIcon(int tab) const;
    void reload();
    void refresh();
    /// The path of a field of the behavior, empty if none is shown.
    Tano::FieldPath field(const char *name) const;
    /// The same for the current language.
    Tano::FieldPath textField(const char *name) const;
    /// The path of the list of one kind in the current language or purpose.
    Tano::FieldPath listField(const char *name) const;
    Zel::PackageInfoModel *package() const { return m_document.package(); }

    Document &m_document;
    QPointer<Zel::BehaviorInfoModel> m_behavior;
    QString m_shownLanguage;
    QString m_shownPurpose;
    QVector<TextField *> m_fields;
    QComboBox *m_nature;
    QCheckBox *m_userRequestable;
    LanguagesModel *m_languages;
    QComboBox *m_language;
    QTabWidget *m_tabs;
    MarkLabel *m_natureMark = nullptr;
    MarkLabel *m_sentencesMark = nullptr;
    QComboBox *m_purpose;
    QVector<StringListEditor *> m_lists;
};

} // namespace Editor
