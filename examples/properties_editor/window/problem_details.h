#pragma once

#include <packagemodel/package_issues.h>

#include <QScrollArea>

class QLabel;
class QVBoxLayout;

namespace Editor {

/// The text, explanation and remedy of one problem, and a button for each way to deal with it.
class ProblemDetails : public QScrollArea {
    Q_OBJECT

public:
    explicit ProblemDetails(QWidget *parent = nullptr);

    /// Shows a hint for null. The buttons follow `previous` in the order of the Tab key.
    void show(const Zel::PackageModel::Issue *issue, const QVector<Zel::PackageModel::Fix> &fixes,
              QWidget *previous);

Q_SIGNALS:
    void fixWanted(const QString &title);
    void ignoreWanted();

private:
    QLabel *m_hint;
    QLabel *m_explanation;
    QVBoxLayout *m_buttons;
};

/// A text as a button or menu shows it, without mnemonics.
QString withoutMnemonics(QString text);

} // namespace Editor
