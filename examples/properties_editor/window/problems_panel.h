#pragma once

#include "document/document.h"

#include <QWidget>

class QBoxLayout;
class QLabel;
class QTreeView;

namespace Editor {

class ProblemDetails;
class ProblemFilter;
class ProblemsModel;

/// The problems of the package, filtered and sorted as the user wants, and the details of the
/// current one.
class ProblemsPanel : public QWidget {
    Q_OBJECT

public:
    ProblemsPanel(Document &document, ProblemsModel *problems, QWidget *parent = nullptr);

    QTreeView *view() const { return m_view; }

public Q_SLOTS:
    // Each selects a problem and requests its field.
    void showNext() { showBeside(1); }
    void showPrevious() { showBeside(-1); }

    /// Applies the safe fixes of all problems as one undo step.
    void fixAllSafe();

Q_SIGNALS:
    /// The user wants to see the field at fault.
    void fieldWanted(const QString &path);

private:
    QBoxLayout *newFilterLine();
    void setUpView();
    void addActions();
    void sort(int column, Qt::SortOrder order);
    void showBeside(int distance);
    void refresh();
    void fix(const QString &title);
    void ignoreSelected();
    void copySelected();
    void showMenu(const QPoint &place);
    /// The selected problems in the order of the list; the current one while none is selected.
    QVector<Zel::PackageModel::Issue> selected() const;
    /// The problem of a row; null for none.
    const Zel::PackageModel::Issue *issueOf(const QModelIndex &index) const;

    Document &m_document;
    ProblemsModel *m_problems;
    ProblemFilter *m_filter;
    QTreeView *m_view;
    QLabel *m_emptiness;
    ProblemDetails *m_details;
    int m_sortedColumn = -1;
    Qt::SortOrder m_sortOrder = Qt::AscendingOrder;
};

} // namespace Editor
