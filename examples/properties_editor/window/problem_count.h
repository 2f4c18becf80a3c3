#pragma once

#include <QToolButton>

namespace Editor {

class Document;

/// The number of problems, in the status bar.
class ProblemCount : public QToolButton {
    Q_OBJECT

public:
    explicit ProblemCount(const Document &document, QWidget *parent = nullptr);

private:
    void refresh();

    const Document &m_document;
};

} // namespace Editor
