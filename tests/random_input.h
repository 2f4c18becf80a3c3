#pragma once

#include "window/main_window.h"

#include <QEvent>
#include <QFile>
#include <QObject>
#include <QPointer>
#include <QRandomGenerator>
#include <QStringList>

#include <atomic>
#include <functional>
#include <memory>
#include <thread>
#include <vector>

class QFileDialog;

/// Uses the editor's window as a hasty user does: random keys, clicks, drags and menu actions, also
/// in the dialogs and menus that open, while other programs change the files. Every now and then
/// checks that undo leads back exactly and that the issues are those of the package.
///
/// The same seed gives the same input, except for what timers change. With ZEL_INPUT_LOG in the
/// environment, each event is written to that file before it is sent.
class RandomInput : public QObject {
    Q_OBJECT

public:
    /// Works on manifests in a folder, which it also writes to.
    RandomInput(quint32 seed, const QString &folder);
    ~RandomInput() override;

    /// Sends events, and returns once the dialogs are closed again. Returns what was wrong.
    QString run(int events);

private:
    using Event = void (RandomInput::*)();
    struct Choice {
        const char *name;
        int weight;
        Event event;
    };
    static const std::vector<Choice> &choices();

    void step();
    void schedule();
    void check();
    void watchForHangs();
    void log(const QString &text);

    void typeText();
    void pressKey();
    void pressShortcut();
    void click();
    void drag();
    void turnWheel();
    void triggerAction();
    void resize();
    void setClipboard();
    void dropFile();
    void changeFile();
    void changeLooks();
    void wait();
    void answerDialog();
    void answerFileDialog(QFileDialog *dialog);

    int below(int end) { return int(m_random.bounded(end)); }
    bool chance(int percent) { return below(100) < percent; }
    template<typename List>
    auto oneOf(const List &list) {
        return list[below(int(list.size()))];
    }
    QWidget *target() const;
    QWidget *widgetIn(QWidget *window, QPoint *position);
    void sendMouse(QEvent::Type type, QWidget *widget, QPoint position, Qt::MouseButton button,
                   Qt::MouseButtons buttons);
    QString someFile();

    QRandomGenerator m_random;
    QString m_folder;
    QFile m_log;
    std::unique_ptr<Editor::MainWindow> m_window;
    int m_left = 0;
    int m_pause = 0; // before the step after the next one, in milliseconds
    QString m_fault;

    std::atomic<unsigned> m_heartbeat{0};
    std::atomic<bool> m_isDone{false};
    std::thread m_watchdog;
};
