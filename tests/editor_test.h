#pragma once

#include "window/main_window.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QDropEvent>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QSettings>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QTreeView>

#include <functional>
#include <memory>

inline QByteArray contentOf(const QString &fileName) {
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

inline void writeTo(const QString &fileName, const QByteArray &content) {
    QFile file(fileName);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
}

// Handles the next modal dialog, which must appear; the flag records whether it did.
class Answer {
public:
    template<typename Dialog>
    explicit Answer(std::function<void(Dialog *)> give)
        : m_give([give](QWidget *widget) {
            auto *dialog = qobject_cast<Dialog *>(widget);
            if (dialog)
                give(dialog);
            return dialog != nullptr;
        }) {
        poll();
    }
    explicit Answer(QMessageBox::StandardButton button)
        : Answer(std::function<void(QMessageBox *)>([this, button](QMessageBox *box) {
            text = box->text();
            box->button(button)->click();
        })) {}
    bool isGiven() const { return m_isGiven; }

    QString text;

private:
    // In posted events: timers fire while a dialog is being shown, when it cannot be closed yet.
    void poll() {
        QTimer::singleShot(0, &m_context, [this] {
            m_isGiven = m_give(QApplication::activeModalWidget());
            if (!m_isGiven)
                QTimer::singleShot(1, &m_context, [this] { poll(); });
        });
    }

    std::function<bool(QWidget *)> m_give;
    QObject m_context;
    bool m_isGiven = false;
};

inline std::function<void(QFileDialog *)> choose(const QString &fileName) {
    return [fileName](QFileDialog *dialog) {
        dialog->findChild<QLineEdit *>()->setText(fileName);
        dialog->findChild<QDialogButtonBox *>()->buttons().first()->click();
    };
}

/// Clicks the dialog's button with this text.
inline std::function<void(QDialog *)> click(const QString &text) {
    return [text](QDialog *dialog) {
        for (QAbstractButton *button : dialog->findChildren<QAbstractButton *>()) {
            if (button->text() == text)
                button->click();
        }
    };
}

/// The base class of tests that control the editor's window by keyboard and mouse. A test class
/// derives from it and from QObject, and calls prepare(), showWindow() and closeWindow() in
/// initTestCase(), init() and cleanup().
class EditorTest {
protected:
    void prepare() {
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        QCoreApplication::setOrganizationName(QStringLiteral("zel-test"));
        QSettings::setDefaultFormat(QSettings::IniFormat);
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_directory.path());
    }
    void showWindow() {
        m_window = std::make_unique<Editor::MainWindow>();
        m_window->show();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    }
    void closeWindow() {
        QApplication::setLayoutDirection(Qt::LeftToRight);
        m_window.reset();
    }

    QString copyOf(const char *sample) {
        const QDir samples(QStringLiteral(ZEL_SOURCE_DIR "/examples/packages"));
        const QDir from(samples.filePath(QLatin1String(sample)));
        QDir to(m_directory.filePath(QString::number(++m_copies)));
        to.mkpath(QStringLiteral("."));
        for (const QString &name : from.entryList(QDir::Files))
            QFile::copy(from.filePath(name), to.filePath(name));
        return to.filePath(QStringLiteral("manifest.xml"));
    }

    // The widget that receives keys.
    QWidget *focus() {
        if (!QApplication::focusWidget()) { // a dialog has just closed
            m_window->activateWindow();
            static_cast<void>(QTest::qWaitForWindowActive(m_window.get()));
        }
        return QApplication::focusWidget();
    }
    void type(const QString &text) {
        for (const QChar character : text)
            QTest::keyClicks(focus(), QString(character));
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(focus(), key, modifiers);
    }
    void replaceText(const QString &text) {
        press(Qt::Key_A, Qt::ControlModifier);
        type(text);
    }
    static void drop(QWidget *target, const QString &fileName) {
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(fileName)});
        QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(target, &enter);
        QVERIFY(enter.isAccepted());
        QDropEvent drop(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(target, &drop);
    }

    QUndoStack *stack() { return m_window->document().undoStack(); }
    QByteArray manifest() {
        m_window->document().package()->syncRecord();
        return m_window->document().package()->saveToManifestContent();
    }
    QTreeView *problems() { return view<QTreeView>("Problems"); }
    int problemCount() { return problems()->model()->rowCount(); }

    template<typename Widget>
    Widget *visible() const {
        for (Widget *candidate : m_window->findChildren<Widget *>()) {
            if (candidate->isVisible())
                return candidate;
        }
        return nullptr;
    }
    template<typename View>
    View *view(const char *accessibleName) {
        for (View *candidate : m_window->findChildren<View *>()) {
            if (candidate->accessibleName() == QLatin1String(accessibleName))
                return candidate;
        }
        return nullptr;
    }
    // Ignores the position of the mnemonic.
    static bool isSame(QString shown, const char *text) {
        return shown.remove(u'&') == QString::fromUtf8(text).remove(u'&');
    }
    // The field with this label.
    QLineEdit *field(const char *label) {
        for (const QLabel *candidate : m_window->findChildren<QLabel *>()) {
            if (isSame(candidate->text(), label))
                return qobject_cast<QLineEdit *>(candidate->buddy());
        }
        return nullptr;
    }
    QLineEdit *line(const char *placeholder) {
        for (QLineEdit *candidate : m_window->findChildren<QLineEdit *>()) {
            if (candidate->placeholderText() == QLatin1String(placeholder))
                return candidate;
        }
        return nullptr;
    }
    QPushButton *button(const char *text) {
        for (QPushButton *candidate : m_window->findChildren<QPushButton *>()) {
            if (isSame(candidate->text(), text))
                return candidate;
        }
        return nullptr;
    }
    // The tabs of the current page.
    QTabWidget *tabs() { return visible<QTabWidget>(); }

    QTemporaryDir m_directory;
    int m_copies = 0;
    std::unique_ptr<Editor::MainWindow> m_window;
};
