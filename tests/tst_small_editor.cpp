#include "small_editor.h"
#include "text.h"

#include <QDir>
#include <QMenuBar>
#include <QTemporaryDir>
#include <QTest>

class TestSmallEditor : public QObject {
    Q_OBJECT

private Q_SLOTS:
    // Typing is one undo step, problems follow each edit, and the file follows a save.
    void editsUndoesAndSaves() {
        const QTemporaryDir folder;
        const QString fileName = folder.filePath(text("manifest.xml"));
        QVERIFY(
            QFile::copy(text(ZEL_SOURCE_DIR "/examples/packages/small/manifest.xml"), fileName));
        SmallEditor editor;
        QVERIFY(editor.open(fileName));
        QVERIFY(!editor.open(folder.filePath(text("missing.xml"))));
        editor.show();

        const auto lines = editor.findChildren<QLineEdit *>();
        QLineEdit *name = lines.at(0);
        QListWidget *behaviors = editor.findChildren<QListWidget *>().at(0);
        const QListWidget *problems = editor.findChildren<QListWidget *>().at(1);
        QCOMPARE(name->text(), text("Morning wave"));
        QCOMPARE(behaviors->item(0)->text(), text("Wave"));
        QCOMPARE(problems->count(), 0);

        name->setFocus();
        name->selectAll();
        QTest::keyClick(name, Qt::Key_Backspace);
        QCOMPARE(problems->item(0)->text(),
                 text("Application name is not defined for: English (United States)"));
        QTest::keyClicks(name, text("Hello"));
        behaviors->item(0)->setText(text("Greet"));
        QVERIFY(editor.isWindowModified());
        editor.save();
        QVERIFY(!editor.isWindowModified());

        Zel::PackageInfoModel saved;
        QVERIFY(saved.loadFromManifestFile(fileName));
        const auto english = Zel::robotLanguage(text("en_US"));
        QCOMPARE(saved.name(english), text("Hello"));
        QCOMPARE(saved.behaviors().at(0)->name(english), text("Greet"));

        QAction *undo = editor.menuBar()->actions().at(2);
        undo->trigger();
        undo->trigger();
        QCOMPARE(behaviors->item(0)->text(), text("Wave"));
        QCOMPARE(name->text(), text("Morning wave"));
        QCOMPARE(undo->text(), text("Undo"));
    }

    // docs/small-editor.md promises that.
    void hasAtMost150Lines() {
        int lines = 0;
        const QDir folder(text(ZEL_SOURCE_DIR "/examples/small_editor"));
        for (const char *name : {"main.cpp", "small_editor.cpp", "small_editor.h"}) {
            QFile file(folder.filePath(text(name)));
            QVERIFY(file.open(QIODevice::ReadOnly));
            lines += int(file.readAll().count('\n'));
        }
        QVERIFY2(lines <= 150, qPrintable(QString::number(lines)));
    }

    // The picture of docs/small-editor.md, which ZEL_PICTURE=FILE draws.
    void picture() {
        SmallEditor editor;
        QVERIFY(editor.open(text(ZEL_SOURCE_DIR "/examples/packages/ten-languages/manifest.xml")));
        QLineEdit *description = editor.findChildren<QLineEdit *>().at(1);
        description->setFocus();
        description->selectAll();
        QTest::keyClick(description, Qt::Key_Backspace);
        editor.resize(760, 480);
        const QString file = qEnvironmentVariable("ZEL_PICTURE");
        QVERIFY(file.isEmpty() || editor.grab().save(file));
    }
};

QTEST_MAIN(TestSmallEditor)
#include "tst_small_editor.moc"
