#pragma once

#include <packagemodel/package_edits.h>
#include <packagemodel/package_info_validator.h>

#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMainWindow>
#include <QUndoStack>

/// A window that edits the names and descriptions of a package and the names of its behaviors.
class SmallEditor : public QMainWindow {
    Q_OBJECT

public:
    SmallEditor();
    /// Opens a manifest. If it cannot be read, returns false and keeps the current package.
    bool open(const QString &fileName);
    void save();

private:
    void showTexts();
    void showProblems();
    void setText(Tano::FieldPath path, const char *field, const QString &text);
    Zel::RobotLanguage language() const {
        return Zel::robotLanguage(m_languages->currentData().toString());
    }

    QString m_fileName;
    std::unique_ptr<Zel::PackageInfoModel> m_package = std::make_unique<Zel::PackageInfoModel>();
    std::unique_ptr<Zel::PackageInfoValidator> m_validator;
    QUndoStack m_stack;
    QComboBox *m_languages = new QComboBox;
    QLineEdit *m_name = new QLineEdit;
    QLineEdit *m_description = new QLineEdit;
    QListWidget *m_behaviors = new QListWidget;
    QListWidget *m_problems = new QListWidget;
};
