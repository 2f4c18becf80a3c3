#pragma once

#include "document/document.h"

#include <QWidget>

class QVBoxLayout;
class QLabel;
class QMenu;
class QScrollArea;
class QTreeView;

namespace Editor {

class ProblemsModel;

/// The problems of the package, and of the selected one its explanation, its remedy and its fixes.
class ProblemsPanel : public QWidget {
    Q_OBJECT

public:
    ProblemsPanel(Document &document, ProblemsModel *problems, QWidget *parent = nullptr);

    QTreeView *view() const { return m_view; }

public Q_SLOTS:
    // Each selects a problem and asks for its field to be shown.
    void showNext() { showBeside(1); }
    void showPrevious() { showBeside(-1); }

    /// Makes the safe fixes of all problems as one undo step.
    void fixAllSafe();

Q_SIGNALS:
    /// The user wants to see the field at fault.
    void fieldWanted(const QString &path);

private:
    void showBeside(int distance);
    void refresh();
    void showMenu(const QPoint &place);
    void addFixes(QMenu &menu);
    /// The problem that is selected; null for none.
    const Zel::PackageModel::Issue *current() const;

    Document &m_document;
    QTreeView *m_view;
    QScrollArea *m_details;
    QLabel *m_explanation;
    QVBoxLayout *m_fixes;
};

} // namespace Editor
