#pragma once

#include "page.h"
#include "widgets/string_list_editor.h"

#include <QPointer>

class QCheckBox;
class QComboBox;
class QTabWidget;

namespace Editor {

class LanguagesModel;

/// All fields of one behavior.
class BehaviorDetails : public QWidget {
    Q_OBJECT

public:
    explicit BehaviorDetails(Document &document, QWidget *parent = nullptr);

    /// Shows a behavior; none for a null pointer.
    void setBehavior(Zel::BehaviorInfoModel *behavior);
    /// Shows the trigger sentences in a language.
    void showSentences(const QString &languageCode);
    /// For a new behavior.
    void startTypingPath();
    void takePending();

private:
    QWidget *newTextsTab();
    StringListEditor *addListTab(const QString &title, const QString &placeholder);
    void reload();
    void refresh();
    void setLists();
    QString path() const;
    /// The path of a field of the behavior; the empty path while none is shown.
    Tano::FieldPath field(const char *name) const;
    /// The same for the language that is shown.
    Tano::FieldPath textField(const char *name) const;
    Zel::RobotLanguage language() const;
    Zel::PackageInfoModel *package() const { return m_document.package(); }

    Document &m_document;
    QPointer<Zel::BehaviorInfoModel> m_behavior;
    QVector<TextField *> m_fields;
    QComboBox *m_nature;
    QCheckBox *m_userRequestable;
    LanguagesModel *m_languages;
    QComboBox *m_language;
    QTabWidget *m_tabs;
    StringListEditor *m_sentences;
    StringListEditor *m_responses;
    StringListEditor *m_tags;
    QComboBox *m_purpose;
    StringListEditor *m_conditions;
    StringListEditor *m_permissions;
};

} // namespace Editor
