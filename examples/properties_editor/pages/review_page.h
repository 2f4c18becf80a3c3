#pragma once

#include "page.h"

#include <QTimer>

class QListView;
class QStringListModel;
class QTabWidget;

namespace Editor {

class XmlView;
struct ChangeList;

/// The package before saving or publishing: the changes since it was last saved, the manifest as
/// XML at the last focused field, and the changes by publishing.
class ReviewPage : public Page {
    Q_OBJECT

public:
    explicit ReviewPage(Document &document, QWidget *parent = nullptr);

    bool showField(const Tano::FieldPath &path) override;

Q_SIGNALS:
    /// The user selected a changed field.
    void fieldWanted(const QString &path);

protected:
    void showEvent(QShowEvent *event) override;

private:
    // A list of changes; selecting a line shows its field.
    struct ChangesTab {
        QListView *view;
        QStringListModel *lines;
        QVector<Tano::FieldPath> paths;
    };

    void addChangesTab(ChangesTab &tab, const QString &title, const QString &explanation);
    static void fill(ChangesTab &tab, const ChangeList &changes, const QString &emptyText);
    void noteFocus(const QWidget *widget);
    void refresh();

    QTabWidget *m_tabs;
    ChangesTab m_changes{};
    ChangesTab m_publication{};
    XmlView *m_xml;
    Tano::FieldPath m_field;
    QTimer m_timer;
};

} // namespace Editor
