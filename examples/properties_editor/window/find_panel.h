#pragma once

#include "document/document.h"

#include <packagemodel/package_search.h>

#include <QTimer>
#include <QWidget>

#include <memory>

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTreeView;

namespace Editor {

class MatchesModel;

/// Finds text in all fields of the package, and replaces it as one undo step.
///
/// Searches in short steps while the user works, and starts again after each edit.
class FindPanel : public QWidget {
    Q_OBJECT

public:
    explicit FindPanel(Document &document, QWidget *parent = nullptr);
    ~FindPanel() override;

    /// Whether the search is still running.
    bool isSearching() const { return m_timer.isActive(); }
    const MatchesModel &found() const { return *m_found; }

public Q_SLOTS:
    /// Focuses the line for the search text.
    void start();
    // Each selects a match and requests its field.
    void showNext() { showBeside(1); }
    void showPrevious() { showBeside(-1); }

Q_SIGNALS:
    /// The user wants to see the field of a match.
    void fieldWanted(const QString &path);

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    QCheckBox *newOption(const QString &text);
    void startAnew();
    void restart();
    void search();
    void refresh();
    void showBeside(int distance);
    void replace(const Zel::PackageModel::TextMatches &matches);
    Zel::PackageModel::SearchOptions options() const;

    Document &m_document;
    QLineEdit *m_text;
    QLineEdit *m_replacement;
    QCheckBox *m_matchCase;
    QCheckBox *m_matchWords;
    QCheckBox *m_isExpression;
    QPushButton *m_replace;
    QPushButton *m_replaceAll;
    QLabel *m_summary;
    QTreeView *m_view;
    MatchesModel *m_found;
    QRegularExpression m_pattern;
    std::unique_ptr<Zel::PackageModel::FieldWalk> m_walk;
    QTimer m_timer;
    QString m_note; // the result of the last replacement
    int m_row = -1; // to be reselected after a replacement
};

} // namespace Editor
