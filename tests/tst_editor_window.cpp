#include "golden.h"
#include "pages/page.h"
#include "widgets/hint_label.h"
#include "widgets/icons.h"
#include "window/application_setup.h"
#include "window/main_window.h"
#include "window/page_stack.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenuBar>
#include <QMetaEnum>
#include <QPushButton>
#include <QSettings>
#include <QTabWidget>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>
#include <QTranslator>
#include <QTreeView>

#include <array>
#include <cmath>
#include <memory>

using namespace Editor;

namespace {

constexpr int pageCount = 6;

QString nameOf(QWidget *widget) {
    return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name);
}

QString roleOf(QWidget *widget) {
    const auto role = QAccessible::queryAccessibleInterface(widget)->role();
    return QLatin1String(QMetaEnum::fromType<QAccessible::Role>().valueToKey(role));
}

} // namespace

class TestEditorWindow : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        QSettings::setDefaultFormat(QSettings::IniFormat);
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_directory.path());
        setUpApplication();
    }

    void init() { restart(); }

    void cleanup() {
        m_window.reset();
        const auto translators = QCoreApplication::instance()->findChildren<QTranslator *>();
        qDeleteAll(translators);
        QSettings().clear();
        QApplication::setPalette(QPalette());
    }

    void tabKeyFollowsTheScreen_data() {
        QTest::addColumn<int>("page");
        const std::array names{"identity",  "languages", "requirements",
                               "behaviors", "dialogs",   "services"};
        for (int page = 0; page < pageCount; ++page)
            QTest::newRow(names.at(std::size_t(page))) << page;
    }
    void tabKeyFollowsTheScreen() {
        QFETCH(int, page);
        QVERIFY(m_window->openFile(sample("ten-languages")));
        m_window->showPage(page);
        QString stops;
        auto *tabs = shownPage()->findChild<QTabWidget *>();
        for (int tab = 0; tab < (tabs ? tabs->count() : 1); ++tab) {
            if (tabs) {
                tabs->setCurrentIndex(tab);
                stops += QStringLiteral("[%1]\n").arg(tabs->tabText(tab));
            }
            stops += walk();
        }
        const QString golden = QStringLiteral(ZEL_TEST_DATA "/editor/tab-order/%1.txt");
        COMPARE_WITH_GOLDEN(golden.arg(QLatin1String(QTest::currentDataTag())), stops.toUtf8());
    }

    void mnemonicsAreUnique_data() {
        QTest::addColumn<QString>("locale");
        for (const char *locale : {"en_US", "fr_FR", "ja_JP"})
            QTest::newRow(locale) << QString::fromLatin1(locale);
    }
    void mnemonicsAreUnique() {
        QFETCH(QString, locale);
        installTexts(QLocale(locale));
        restart();
        QStringList menus;
        for (const QAction *action : m_window->menuBar()->actions())
            menus += action->text();
        for (int page = 0; page < pageCount; ++page) {
            m_window->showPage(page);
            QStringList texts = menus;
            for (const auto *label : shownPage()->findChildren<QLabel *>())
                texts += label->buddy() ? label->text() : QString();
            for (const auto *button : shownPage()->findChildren<QAbstractButton *>())
                texts += button->text();
            QMap<QString, QString> textOf;
            for (const QString &text : std::as_const(texts)) {
                const QString key = QKeySequence::mnemonic(text).toString();
                QVERIFY2(key.isEmpty() || !textOf.contains(key),
                         qPrintable(QString::number(page) + key + u' ' + text + u' ' +
                                    textOf.value(key)));
                textOf.insert(key, text);
            }
        }
    }

    // Adds an entry with a button, types its name, and removes it with the Delete key.
    void newEntriesAreReadyForTyping_data() {
        QTest::addColumn<int>("page");
        QTest::addColumn<QString>("add");
        QTest::addColumn<QString>("view");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QByteArray>("expected");
        QTest::newRow("behavior") << 3 << "&Add"
                                  << "Behaviors"
                                  << "wave" << QByteArray("\"wave\"");
        QTest::newRow("dialog") << 4 << "&Add"
                                << "Dialogs"
                                << "tea" << QByteArray("\"tea\"");
        QTest::newRow("service") << 5 << "&Add"
                                 << "Services"
                                 << "clock" << QByteArray("\"clock\"");
        QTest::newRow("robot") << 2 << "Add &Robot"
                               << "Robots"
                               << "H" << QByteArray("robotRequirement model=\"HERON\"");
        QTest::newRow("middleware") << 2 << "Add &Brio Version"
                                    << "Brio middleware"
                                    << "7.1" << QByteArray("minVersion=\"7.1\"");
    }
    void newEntriesAreReadyForTyping() {
        QFETCH(int, page);
        QFETCH(QString, add);
        QFETCH(QString, typed);
        QFETCH(QByteArray, expected);
        m_window->showPage(page);
        const QByteArray before = manifest();
        QTest::mouseClick(button(add), Qt::LeftButton);
        QTest::keyClicks(QApplication::focusWidget(), typed);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QCoreApplication::processEvents();
        QVERIFY2(manifest().contains(expected), manifest().constData());

        QFETCH(QString, view);
        auto *list = this->view(view);
        list->setFocus();
        QVERIFY(list->currentIndex().isValid());
        QTest::keyClick(list, Qt::Key_Delete);
        QCOMPARE(manifest(), before);
    }

    // In the editor of a cell, the key removes a letter.
    void deletesLettersWhileTyping() {
        m_window->showPage(5);
        QTest::mouseClick(button(QStringLiteral("&Add")), Qt::LeftButton);
        QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("clock"));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Home);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Delete);
        const auto *line = qobject_cast<QLineEdit *>(QApplication::focusWidget());
        QVERIFY(line);
        QCOMPARE(line->text(), QStringLiteral("lock"));
    }

    void hintsAreVisible_data() {
        QTest::addColumn<QPalette>("palette");
        QTest::newRow("light") << QPalette();
        QTest::newRow("dark") << QPalette(QColor(0x20, 0x20, 0x20));
    }
    void hintsAreVisible() {
        QFETCH(QPalette, palette);
        HintLabel hint(QStringLiteral("\u2588"));
        QApplication::setPalette(palette);
        hint.show();
        QVERIFY(contrast(hint) > 4.5);
    }

    // The icons and marks that are shown already change their colors.
    void followsThePalette() {
        const QIcon icon = iconOf(Symbol::Add);
        const QImage before = icon.pixmap(32).toImage();
        auto *uid = qobject_cast<QLineEdit *>(buddyOf(QStringLiteral("&UID:")));
        const QColor tint = uid->palette().color(QPalette::Base);
        QVERIFY(tint.lightness() > 128);
        QApplication::setPalette(QPalette(QColor(0x20, 0x20, 0x20)));
        QCoreApplication::processEvents();
        QVERIFY(icon.pixmap(32).toImage() != before);
        QVERIFY2(uid->palette().color(QPalette::Base).lightness() < 128,
                 qPrintable(uid->palette().color(QPalette::Base).name()));
        QVERIFY(uid->palette().color(QPalette::Base) !=
                QApplication::palette().color(QPalette::Base));
    }

private:
    static QString sample(const char *name) {
        return QStringLiteral(ZEL_SOURCE_DIR "/examples/packages/%1/manifest.xml")
            .arg(QLatin1String(name));
    }

    void restart() {
        m_window = std::make_unique<MainWindow>();
        m_window->show();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    }

    // Presses Tab until the focus is where it was; returns a line for each stop.
    QString walk() {
        auto *start = view(QStringLiteral("Pages"));
        start->setFocus();
        QString stops;
        for (int i = 0; i < 60; ++i) {
            QWidget *stop = QApplication::focusWidget();
            stops += nameOf(stop) + QStringLiteral(" (") + roleOf(stop) + QStringLiteral(")\n");
            if (nameOf(stop).isEmpty())
                return stops + QLatin1String(stop->metaObject()->className()) +
                       QStringLiteral(" has no name\n");
            QTest::keyClick(stop, Qt::Key_Tab);
            if (QApplication::focusWidget() == start)
                return stops;
        }
        return stops + QStringLiteral("does not come back\n");
    }

    // Of the lightest and the darkest pixel, as WCAG counts it.
    static double contrast(QWidget &widget) {
        const QImage image = widget.grab().toImage();
        double lightest = 0;
        double darkest = 1;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const QColor color = image.pixelColor(x, y);
                const double light = 0.2126 * std::pow(color.redF(), 2.2) +
                                     0.7152 * std::pow(color.greenF(), 2.2) +
                                     0.0722 * std::pow(color.blueF(), 2.2);
                lightest = std::max(lightest, light);
                darkest = std::min(darkest, light);
            }
        }
        return (lightest + 0.05) / (darkest + 0.05);
    }

    QWidget *shownPage() {
        const auto *stack = m_window->findChild<PageStack *>();
        return stack->pages().at(stack->current());
    }
    QByteArray manifest() {
        m_window->document().package()->syncRecord();
        return m_window->document().package()->saveToManifestContent();
    }
    QAbstractItemView *view(const QString &accessibleName) {
        const auto views = m_window->findChildren<QAbstractItemView *>();
        const auto found = std::find_if(views.begin(), views.end(), [&](const auto *each) {
            return each->accessibleName() == accessibleName;
        });
        return found == views.end() ? nullptr : *found;
    }
    QPushButton *button(const QString &text) {
        for (auto *candidate : shownPage()->findChildren<QPushButton *>()) {
            if (candidate->text() == text)
                return candidate;
        }
        return nullptr;
    }
    QWidget *buddyOf(const QString &label) {
        for (const auto *candidate : m_window->findChildren<QLabel *>()) {
            if (candidate->text() == label)
                return candidate->buddy();
        }
        return nullptr;
    }

    QTemporaryDir m_directory;
    std::unique_ptr<MainWindow> m_window;
};

QTEST_MAIN(TestEditorWindow)
#include "tst_editor_window.moc"
