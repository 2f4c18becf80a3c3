#include "random_input.h"

#include "document/change_list.h"
#include "document/problem_report.h"

#include <packagemodel/package_edits.h>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QDialogButtonBox>
#include <QDir>
#include <QDropEvent>
#include <QFileDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QMouseEvent>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>

#include <algorithm>
#include <chrono>
#include <numeric>
#include <utility>

namespace {

const QStringList &texts() {
    static const QStringList all{
        QStringLiteral("a"),      QStringLiteral("greet"),   QStringLiteral("3.1"),
        QStringLiteral("3.x"),    QStringLiteral(" "),       QStringLiteral("<b>&amp;"),
        QStringLiteral("../"),    QStringLiteral("en_US"),   QString::fromUtf8("é日本語"),
        QStringLiteral("a\tb\n"), QStringLiteral("\u202ex"), QStringLiteral("\\pau=200\\")};
    return all;
}

const std::vector<Qt::Key> &keys() {
    static const std::vector<Qt::Key> all{
        Qt::Key_Tab,    Qt::Key_Backtab, Qt::Key_Return, Qt::Key_Escape, Qt::Key_Delete,
        Qt::Key_Up,     Qt::Key_Down,    Qt::Key_Left,   Qt::Key_Right,  Qt::Key_Backspace,
        Qt::Key_Home,   Qt::Key_End,     Qt::Key_PageUp, Qt::Key_Space,  Qt::Key_PageDown,
        Qt::Key_F2,     Qt::Key_F3,      Qt::Key_F5,     Qt::Key_F8,     Qt::Key_F10,
        Qt::Key_Insert, Qt::Key_Menu};
    return all;
}

const std::vector<Qt::Key> &letters() {
    static const std::vector<Qt::Key> all{
        Qt::Key_Z, Qt::Key_Z, Qt::Key_Z,  Qt::Key_Y,   Qt::Key_A, Qt::Key_C, Qt::Key_X,
        Qt::Key_V, Qt::Key_V, Qt::Key_D,  Qt::Key_F,   Qt::Key_H, Qt::Key_S, Qt::Key_N,
        Qt::Key_O, Qt::Key_1, Qt::Key_2,  Qt::Key_3,   Qt::Key_4, Qt::Key_5, Qt::Key_6,
        Qt::Key_7, Qt::Key_8, Qt::Key_Up, Qt::Key_Down};
    return all;
}

QString firstDifference(const QByteArray &expected, const QByteArray &actual) {
    const auto [left, right] =
        std::mismatch(expected.begin(), expected.end(), actual.begin(), actual.end());
    const auto excerpt = [](const QByteArray &text, auto at) {
        return QString::fromUtf8(text.mid(qMax(0, int(at - text.begin()) - 60), 120));
    };
    return excerpt(expected, left) + QStringLiteral("\n----\n") + excerpt(actual, right);
}

QStringList inWords(const QVector<Zel::PackageModel::Issue> &issues) {
    QStringList words;
    for (const auto &issue : issues)
        words += issue.id + QStringLiteral(" at ") + issue.path + QStringLiteral(": ") + issue.text;
    return words;
}

QByteArray manifestOf(Zel::PackageInfoModel *package) {
    package->syncRecord();
    return package->saveToManifestContent();
}

} // namespace

RandomInput::RandomInput(quint32 seed, const QString &folder)
    : m_random(seed)
    , m_folder(folder) {
    m_log.setFileName(qEnvironmentVariable("ZEL_INPUT_LOG"));
    if (!m_log.fileName().isEmpty() && !m_log.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        qFatal("%s cannot be written.", qPrintable(m_log.fileName()));
    log(QStringLiteral("seed %1").arg(seed));
    QApplication::setQuitOnLastWindowClosed(false);
    m_window = std::make_unique<Editor::MainWindow>();
    m_window->keepEditsIn(QDir(folder).filePath(QStringLiteral("state")));
    m_window->show();
    m_window->showStartPage();
    m_watchdog = std::thread([this] { watchForHangs(); });
}

RandomInput::~RandomInput() {
    m_isDone = true;
    m_watchdog.join();
}

void RandomInput::watchForHangs() {
    unsigned last = m_heartbeat;
    for (int quiet = 0; !m_isDone; ++quiet) {
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
        if (m_heartbeat != last)
            quiet = 0;
        last = m_heartbeat;
        if (quiet > 600)
            qFatal("The editor does not answer.");
    }
}

void RandomInput::log(const QString &text) {
    if (m_log.isOpen())
        m_log.write((text + u'\n').toUtf8());
}

QString RandomInput::run(int events) {
    m_left = events;
    schedule();
    if (chance(80))
        m_window->openFile(someFile());
    while (m_left > 0 && m_fault.isEmpty())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    check();
    return m_fault;
}

// A dialog runs its own event loop within a step, where the next steps go on.
void RandomInput::schedule() {
    QTimer::singleShot(std::exchange(m_pause, 0), this, &RandomInput::step);
}

const std::vector<RandomInput::Choice> &RandomInput::choices() {
    static const std::vector<Choice> all{{"text", 20, &RandomInput::typeText},
                                         {"key", 20, &RandomInput::pressKey},
                                         {"shortcut", 12, &RandomInput::pressShortcut},
                                         {"click", 25, &RandomInput::click},
                                         {"drag", 4, &RandomInput::drag},
                                         {"wheel", 2, &RandomInput::turnWheel},
                                         {"action", 8, &RandomInput::triggerAction},
                                         {"resize", 1, &RandomInput::resize},
                                         {"clipboard", 1, &RandomInput::setClipboard},
                                         {"drop", 1, &RandomInput::dropFile},
                                         {"file", 1, &RandomInput::changeFile},
                                         {"looks", 1, &RandomInput::changeLooks},
                                         {"wait", 4, &RandomInput::wait}};
    return all;
}

void RandomInput::step() {
    ++m_heartbeat;
    m_left = qMax(0, m_left - 1);
    QWidget *modal = QApplication::activeModalWidget();
    QWidget *popup = QApplication::activePopupWidget();
    schedule(); // also after the last event: a dialog may open later
    // Random keys in a file dialog could rename or delete files of others.
    if (modal && (chance(15) || m_left == 0 || qobject_cast<QFileDialog *>(modal)))
        return answerDialog();
    if (m_left == 0) {
        if (popup)
            popup->close();
        return;
    }
    if (!m_window->isVisible() && !modal)
        m_window->show(); // it was closed
    if (m_left % 200 == 0 && !modal && !popup)
        return check();
    static const int sum =
        std::accumulate(choices().begin(), choices().end(), 0,
                        [](int total, const Choice &choice) { return total + choice.weight; });
    int at = below(sum);
    auto choice = choices().begin();
    for (; at >= choice->weight; ++choice)
        at -= choice->weight;
    const QWidget *focus = QApplication::focusWidget();
    log(QStringLiteral("%1 %2 in %3, focus in %4")
            .arg(m_left)
            .arg(QLatin1String(choice->name), QLatin1String(target()->metaObject()->className()),
                 focus ? QLatin1String(focus->metaObject()->className()) % u' ' %
                             focus->accessibleName()
                       : QString()));
    (this->*choice->event)();
}

// Everything undone is the package as it was opened or saved, everything redone the present one,
// and a second look finds the same issues.
void RandomInput::check() {
    log(QStringLiteral("check"));
    m_window->document().closeRun();
    auto &document = m_window->document();
    QUndoStack *stack = document.undoStack();
    const int index = stack->index();
    const QByteArray present = manifestOf(document.package());
    const auto compare = [&](const QByteArray &expected, const char *text) {
        const QByteArray actual = manifestOf(document.package());
        if (actual != expected)
            m_fault = QLatin1String(text) + u'\n' + firstDifference(expected, actual);
    };
    if (stack->cleanIndex() >= 0) {
        stack->setIndex(stack->cleanIndex());
        compare(QByteArray::fromStdString(document.saved().saveToManifestContent()),
                "Undo does not lead back to the saved package:");
    }
    stack->setIndex(0);
    stack->setIndex(index);
    compare(present, "Redo leads to a different package:");
    Editor::changesBetween(Zel::PackageInfoModel(document.saved()), *document.package());
    const auto issues =
        Zel::PackageModel::issues(document.package(), Editor::issueOptions(document.fileName()));
    const QStringList expected = inWords(issues);
    const QStringList shown = inWords(document.issues());
    const auto [left, right] =
        std::mismatch(expected.begin(), expected.end(), shown.begin(), shown.end());
    if (left != expected.end() || right != shown.end())
        m_fault = QStringLiteral("The issues are not those of the package:\n") +
                  (left == expected.end() ? QString() : *left) + QStringLiteral("\n----\n") +
                  (right == shown.end() ? QString() : *right);
    if (!m_fault.isEmpty())
        m_left = 0;
}

QWidget *RandomInput::target() const {
    if (QWidget *popup = QApplication::activePopupWidget())
        return popup;
    if (QWidget *modal = QApplication::activeModalWidget())
        return modal;
    return m_window.get();
}

QWidget *RandomInput::widgetIn(QWidget *window, QPoint *position) {
    *position = QPoint(below(qMax(1, window->width())), below(qMax(1, window->height())));
    QWidget *child = window->childAt(*position);
    if (!child)
        return window;
    *position = child->mapFrom(window, *position);
    return child;
}

QString RandomInput::someFile() {
    static const QStringList names{QStringLiteral("small/manifest.xml"),
                                   QStringLiteral("faulty/manifest.xml"),
                                   QStringLiteral("ten-languages/manifest.xml"),
                                   QStringLiteral("unfinished/manifest.xml"),
                                   QStringLiteral("new.xml"),
                                   QStringLiteral("small/icon.png"),
                                   QStringLiteral("ten-languages/icon.png"),
                                   QStringLiteral("texts.xlf"),
                                   QStringLiteral("missing/manifest.xml")};
    return QDir(m_folder).filePath(oneOf(names));
}

void RandomInput::typeText() {
    const QString text = oneOf(texts());
    for (const QChar character : text) {
        QWidget *focus = QApplication::focusWidget();
        QTest::sendKeyEvent(QTest::Click, focus ? focus : target(), Qt::Key_unknown, character,
                            Qt::NoModifier);
    }
}

void RandomInput::pressKey() {
    static const std::vector<Qt::KeyboardModifiers> modifiers{
        Qt::NoModifier,      Qt::NoModifier,
        Qt::NoModifier,      Qt::NoModifier,
        Qt::ControlModifier, Qt::ShiftModifier,
        Qt::AltModifier,     Qt::ControlModifier | Qt::ShiftModifier};
    QWidget *focus = QApplication::focusWidget();
    QTest::keyClick(focus ? focus : target(), oneOf(keys()), oneOf(modifiers));
}

void RandomInput::pressShortcut() {
    QWidget *focus = QApplication::focusWidget();
    const auto modifiers = chance(80)   ? Qt::KeyboardModifiers(Qt::ControlModifier)
                           : chance(50) ? Qt::ControlModifier | Qt::ShiftModifier
                                        : Qt::KeyboardModifiers(Qt::AltModifier);
    QTest::keyClick(focus ? focus : target(), oneOf(letters()), modifiers);
}

void RandomInput::sendMouse(QEvent::Type type, QWidget *widget, QPoint position,
                            Qt::MouseButton button, Qt::MouseButtons buttons) {
    QMouseEvent event(type, QPointF(position), QPointF(widget->mapToGlobal(position)), button,
                      buttons, Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
}

void RandomInput::click() {
    QPoint position;
    const QPointer<QWidget> widget = widgetIn(target(), &position);
    if (!widget->isEnabled())
        return;
    const auto button = chance(90) ? Qt::LeftButton : Qt::RightButton;
    const bool isDouble = chance(15);
    sendMouse(isDouble ? QEvent::MouseButtonDblClick : QEvent::MouseButtonPress, widget, position,
              button, button);
    if (widget)
        sendMouse(QEvent::MouseButtonRelease, widget, position, button, Qt::NoButton);
    if (widget && button == Qt::RightButton) {
        QContextMenuEvent event(QContextMenuEvent::Mouse, position, widget->mapToGlobal(position));
        QApplication::sendEvent(widget, &event);
    }
}

void RandomInput::drag() {
    QPoint position;
    const QPointer<QWidget> widget = widgetIn(target(), &position);
    if (!widget->isEnabled())
        return;
    sendMouse(QEvent::MouseButtonPress, widget, position, Qt::LeftButton, Qt::LeftButton);
    // A drag runs its own event loop until the button is released.
    QTimer::singleShot(5, this, [this, widget, position] {
        if (widget)
            sendMouse(QEvent::MouseButtonRelease, widget, position, Qt::LeftButton, Qt::NoButton);
    });
    for (int i = 0; i < 3 && widget; ++i) {
        position += QPoint(below(120) - 60, below(120) - 60);
        sendMouse(QEvent::MouseMove, widget, position, Qt::NoButton, Qt::LeftButton);
    }
}

void RandomInput::turnWheel() {
    QPoint position;
    QWidget *widget = widgetIn(target(), &position);
    const QPoint turn(0, chance(50) ? 120 : -120);
    QWheelEvent event(QPointF(position), QPointF(widget->mapToGlobal(position)), {}, turn,
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(widget, &event);
}

void RandomInput::triggerAction() {
    const QList<QAction *> actions = target()->findChildren<QAction *>();
    if (actions.isEmpty())
        return;
    QAction *action = oneOf(actions);
    if (!action->isEnabled() || !action->isVisible() || action->menu())
        return;
    log(QStringLiteral("    ") + action->text());
    action->trigger();
}

void RandomInput::resize() {
    target()->resize(300 + below(1200), 200 + below(800));
}

void RandomInput::setClipboard() {
    QApplication::clipboard()->setText(oneOf(texts()) + u'\n' + oneOf(texts()));
}

void RandomInput::dropFile() {
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(someFile())});
    QPoint position;
    QWidget *widget = widgetIn(target(), &position);
    QDragEnterEvent enter(position, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(widget, &enter);
    if (!enter.isAccepted())
        return;
    QDropEvent drop(position, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(widget, &drop);
}

void RandomInput::changeFile() {
    const QString open = m_window->document().fileName();
    const QString name = chance(70) && !open.isEmpty() ? open : someFile();
    if (name.endsWith(QLatin1String("icon.png")))
        return; // the editor notices other icons at the next edit only
    if (chance(10)) {
        QFile::remove(name);
        return;
    }
    QFile source(chance(70) ? QDir(m_folder).filePath(QStringLiteral("small/manifest.xml"))
                            : someFile());
    if (!source.open(QIODevice::ReadOnly))
        return;
    QByteArray content = source.readAll();
    if (chance(50))
        content.replace("name", "nome");
    else
        content.replace("1.", "2.");
    QFile file(name);
    if (file.open(QIODevice::WriteOnly))
        file.write(content);
    file.close();
    m_window->document().checkDisk();
}

void RandomInput::changeLooks() {
    if (chance(50))
        QApplication::setLayoutDirection(chance(50) ? Qt::RightToLeft : Qt::LeftToRight);
    else
        QApplication::setPalette(chance(50) ? QPalette(Qt::black) : QPalette());
}

void RandomInput::wait() {
    m_pause = below(30);
}

void RandomInput::answerDialog() {
    QWidget *modal = QApplication::activeModalWidget();
    log(QStringLiteral("%1 answer %2").arg(m_left).arg(modal->windowTitle()));
    if (auto *dialog = qobject_cast<QFileDialog *>(modal))
        return answerFileDialog(dialog);
    const auto buttons = modal->findChildren<QAbstractButton *>();
    if (m_left > 0 && !buttons.isEmpty() && chance(60))
        oneOf(buttons)->click();
    else if (auto *dialog = qobject_cast<QDialog *>(modal))
        dialog->reject();
    else
        modal->close();
}

void RandomInput::answerFileDialog(QFileDialog *dialog) {
    if (m_left <= 0 || chance(30))
        return dialog->reject();
    dialog->findChild<QLineEdit *>()->setText(someFile());
    dialog->findChild<QDialogButtonBox *>()->buttons().first()->click();
}
