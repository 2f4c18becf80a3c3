#pragma once

#include "document/recovery.h"

class QWidget;

namespace Editor {

class MessageBar;

/// Asks what to do about unsaved edits that were found, and says when another window has the same
/// file open.
class RecoveryDialogs : public QObject {
    Q_OBJECT

public:
    RecoveryDialogs(Document &document, Recovery &recovery, MessageBar &messageBar,
                    QWidget *window);

    /// Offers to open the packages with unsaved edits, one after the other, until one is opened.
    void offerLeftovers();

private:
    void handleNotice();
    void offerLeftover();
    void restore();

    Document &m_document;
    Recovery &m_recovery;
    MessageBar &m_messageBar;
    QWidget *m_window;
    bool m_isAccepted = false; // the user has asked for the edits of the package that is opened
};

} // namespace Editor
