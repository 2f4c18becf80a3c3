#pragma once

#include "document/recovery.h"

class QWidget;

namespace Editor {

class MessageBar;

/// Asks what to do with unsaved edits that were found, and reports if another window has the file
/// open.
class RecoveryDialogs : public QObject {
    Q_OBJECT

public:
    RecoveryDialogs(Document &document, Recovery &recovery, MessageBar &messageBar,
                    QWidget *window);

    /// Offers to open packages with unsaved edits, one by one, until one is opened.
    void offerLeftovers();

private:
    void handleNotice();
    void offerLeftover();
    void restore();

    Document &m_document;
    Recovery &m_recovery;
    MessageBar &m_messageBar;
    QWidget *m_window;
    bool m_isAccepted = false; // the user has accepted the edits of the package being opened
};

} // namespace Editor
