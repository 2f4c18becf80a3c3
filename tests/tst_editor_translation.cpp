#include "document/field_edits.h"
#include "editor_test.h"
#include "models/translation_model.h"
#include "random_edits.h"
#include "table_file.h"
#include "widgets/field_note.h"
#include "widgets/text_pair.h"

#include <QAbstractItemModelTester>
#include <QComboBox>
#include <QTableView>

using namespace Editor;
using Tano::FieldPath;
using Zel::PackageModel::Edit;
using Zel::PackageModel::Edits;
using Zel::PackageModel::TextState;

namespace {

const QByteArray sample(R"(<package format="1" uid="u" version="1">
  <supportedLanguage code="en_US"/>
  <supportedLanguage code="fr_FR"/>
  <descriptionLanguage code="en_US"/>
  <descriptionLanguage code="fr_FR"/>
  <texts language="en_US"><name>Tea</name></texts>
  <texts language="fr_FR"><name>Tea</name></texts>
  <behavior path="greet">
    <texts language="en_US">
      <name>Greet</name>
      <tag>hi</tag>
      <tag>hello</tag>
      <tag>hey</tag>
      <loadingResponse>Hi</loadingResponse>
    </texts>
    <texts language="fr_FR">
      <tag>salut</tag>
      <loadingResponse>&lt;emphasis>Salut</loadingResponse>
    </texts>
  </behavior>
  <behavior path="rest">
    <texts language="fr_FR"><name>Dormir</name></texts>
  </behavior>
</package>)");

FieldPath path(const QString &text) {
    return *FieldPath::parse(Zel::toUtf8(text));
}

Edit set(const char *field, const char *value) {
    return {Edit::Action::Set, path(text(field)), text(value)};
}

QStringList rowsOf(const TranslationModel &model) {
    QStringList rows;
    for (int row = 0; row < model.rowCount(); ++row) {
        QStringList cells;
        for (int column = 0; column < textColumnCount; ++column)
            cells += model.index(row, column).data().toString();
        rows += cells.join(u'|');
    }
    return rows;
}

void load(TranslationModel &model) {
    model.setActive(true);
    model.setLanguages({text("fr_FR"), text("en_US")});
    QTRY_VERIFY(!model.isLoading());
}

} // namespace

class TestEditorTranslation : public QObject, private EditorTest {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { prepare(); }
    void cleanup() { closeWindow(); }

    void rows_data() { addRowsOf("editor/text-rows.json"); }
    void rows() {
        QFETCH(QString, state); // empty for all
        QFETCH(QString, search);
        Document document;
        QVERIFY(document.openTemplate(sample));
        TranslationModel model(document);
        TextFilter filter;
        filter.search = search;
        const auto index =
            text("Missing Malformed SourceChanged SameAsSource").split(u' ').indexOf(state);
        if (index >= 0)
            filter.state = TextState(index);
        model.setFilter(filter);
        load(model);
        QTEST(rowsOf(model), "expected");
    }

    // A source counts as changed until its translation changes too or the package is saved.
    void changedSources() {
        Document document;
        const QString file = copyOf("small");
        QVERIFY(document.open(file));
        TranslationModel model(document);
        load(model);
        const auto changed = [&] {
            QStringList fields;
            for (const QString &row : rowsOf(model).filter(text("|Source changed")))
                fields += row.section(u'|', 0, 1);
            return fields;
        };
        const QStringList none;
        document.edit({set("names[en_US]", "Evening wave"),
                       set("behaviors[.].triggerSentences[en_US][0]", "good evening")});
        QCOMPARE(changed(),
                 (QStringList{text("Name|Evening wave"), text("Trigger sentence 1|good evening")}));
        document.edit({set("names[fr_FR]", "Salut du soir")});
        QCOMPARE(changed(), QStringList(text("Trigger sentence 1|good evening")));
        document.undoStack()->undo();
        QCOMPARE(changed().size(), 2);
        QVERIFY(document.save(file));
        QCOMPARE(changed(), none);
        document.undoStack()->setIndex(0);
        QCOMPARE(changed().size(), 2);
    }

    // Rows that no longer match the filter stay until another row becomes current.
    void filtersWhenTheRowChanges() {
        Document document;
        QVERIFY(document.openTemplate(sample));
        TranslationModel model(document);
        model.setFilter({TextState::Missing, {}});
        load(model);
        const FieldPath name = path(text("behaviors[greet].names[fr_FR]"));
        model.setCurrent(name);
        document.type(name, text("Saluer"));
        QCOMPARE(rowsOf(model).value(1), text("Name|Greet|Saluer|Translated"));
        document.type(path(text("behaviors[greet].names[en_US]")), QString());
        document.type(name, QString()); // absent in all languages, but being edited
        QCOMPARE(rowsOf(model).value(1), text("Name|||Missing"));
        document.type(name, text("Saluer"));
        model.setCurrent(path(text("behaviors[greet].tags[fr_FR][1]")));
        QCOMPARE(rowsOf(model).value(1), text("Tag 2|hello||Missing"));
        QCOMPARE(model.rowCount(), 3);
        QVERIFY(model.reveal(name).isValid());
        QCOMPARE(rowsOf(model).value(1), text("Name||Saluer|Translated"));
    }

    // After any edit, the rows equal those of a new model.
    void followsAnyEdit_data() {
        QTest::addColumn<bool>("isMissing");
        QTest::newRow("all") << false;
        QTest::newRow("missing") << true;
    }
    void followsAnyEdit() {
        QFETCH(bool, isMissing);
        Document document;
        QVERIFY(document.openTemplate(sample));
        TextFilter filter;
        if (isMissing)
            filter.state = TextState::Missing;
        TranslationModel live(document);
        const QAbstractItemModelTester tester(
            &live, QAbstractItemModelTester::FailureReportingMode::QtTest);
        live.setFilter(filter);
        load(live);
        RandomEdits edits(7);
        int changes = 0;
        for (int i = 0; i < 400; ++i) {
            const QStringList before = rowsOf(live);
            if (i % 5 == 4)
                document.undoStack()->setIndex(document.undoStack()->index() / 2 + i % 2);
            else
                document.edit({edits.next(*document.package())});
            live.setCurrent(path(i % 2 == 0 ? text("uid") : text("author")));
            TranslationModel fresh(document);
            fresh.setFilter(filter);
            load(fresh);
            QTRY_VERIFY(!live.isLoading());
            QCOMPARE(rowsOf(live), rowsOf(fresh));
            changes += rowsOf(live) != before ? 1 : 0;
        }
        QVERIFY2(changes > 20, qPrintable(QString::number(changes)));
    }

    void translatorsDay() {
        openIn(copyOf("ten-languages"), {text("nl_NL")});
        choose(1, text("Dutch"));
        const QByteArray before = manifest();
        QCOMPARE(missing(), 89);
        pair()->target()->setFocus();
        for (int i = 0; i < 10; ++i) {
            type(QStringLiteral("t%1").arg(i));
            press(Qt::Key_Return, Qt::ControlModifier);
        }
        QCOMPARE(stack()->count(), 10);
        QCOMPARE(missing(), 79);
        const QByteArray ten = manifest();
        QVERIFY(ten.contains("<tag>t4</tag>"));

        for (int i = 0; i < 6; ++i) // including an item of a list
            stack()->undo();
        QCOMPARE(current(), text("behaviors[greet-visitor].tags[nl_NL][0]"));
        stack()->setIndex(10);
        stack()->undo(); // returns to the text on this page
        QCOMPARE(pair()->target()->toPlainText(), QString());
        QCOMPARE(focus(), pair()->target());
        QVERIFY(pair()->isVisible());
        type(text("x"));
        press(Qt::Key_Backspace);
        type(text("t9"));
        QCOMPARE(manifest(), ten);

        press(Qt::Key_Up, Qt::AltModifier); // wraps around to the last one
        QCOMPARE(table()->currentIndex().row(), table()->model()->rowCount() - 1);
        chooseFilter(text("Missing"));
        const int rows = table()->model()->rowCount();
        pair()->target()->setFocus();
        type(text("t10"));
        QCOMPARE(table()->model()->rowCount(), rows);
        press(Qt::Key_Return, Qt::ControlModifier);
        QTRY_VERIFY(table()->model()->rowCount() < rows);
        stack()->undo();

        const int steps = stack()->index();
        button("Fill &All Missing")->click();
        QCOMPARE(stack()->index(), steps + 1);
        QTRY_VERIFY(!model()->isLoading());
        QCOMPARE(missing(), 0);
        const QByteArray filled = manifest();
        const QString file = m_directory.filePath(text("nl.xlf"));
        const Answer save(::choose(file));
        button("E&xport XLIFF…")->click();
        QVERIFY(save.isGiven());

        stack()->undo();
        QCOMPARE(manifest(), ten);
        QCOMPARE(import(file),
                 text("Texts imported: 79. Unchanged: 10. Not translated: 0. Skipped: 0."));
        QCOMPARE(manifest(), filled);
        stack()->setIndex(0);
        QCOMPARE(manifest(), before);
    }

    // Types directly in the list; texts without a place are refused there as well.
    void typesInPlace() {
        QVERIFY(m_directory.isValid());
        openIn(fileOf(sample), {});
        const QByteArray before = manifest();
        table()->setFocus();
        select(text("behaviors[greet].tags[fr_FR][2]"));
        press(Qt::Key_F2);
        type(text("hey"));
        auto *cell = qobject_cast<QLineEdit *>(focus());
        QVERIFY(cell);
        QCOMPARE(cell->findChild<TextField *>()->refusal(),
                 text("Translate the item before this one first: a list has no gaps."));
        press(Qt::Key_Return, Qt::ControlModifier);
        QCOMPARE(focus(), cell); // it stays
        QCOMPARE(manifest(), before);
        press(Qt::Key_Escape);

        select(text("behaviors[greet].tags[fr_FR][1]"));
        type(text("x"));
        press(Qt::Key_Backspace);
        QCOMPARE(stack()->count(), 0); // no empty item remains
        QCOMPARE(manifest(), before);
        type(text("coucou"));
        press(Qt::Key_Return, Qt::ControlModifier);
        type(text("hey"));
        press(Qt::Key_Return);
        QCOMPARE(stack()->count(), 2);
        QVERIFY(manifest().contains("<tag>salut</tag>\n      <tag>coucou</tag>\n"
                                    "      <tag>hey</tag>"));
    }

    void previewsScripts() {
        openIn(fileOf(sample), {});
        select(text("behaviors[greet].loadingResponses[fr_FR][0]"));
        QStringList shown;
        for (const QLabel *label : pair()->findChildren<QLabel *>()) {
            if (label->isVisible())
                shown += label->text().section(u':', 0, 0);
        }
        QCOMPARE(shown, QStringList(text("Malformed speech script")));
        pair()->target()->setFocus();
        button("&Copy Source")->click();
        QCOMPARE(pair()->target()->toPlainText(), text("Hi"));
        QCOMPARE(stack()->count(), 1);
        replaceText(text("<emphasis>Salut</emphasis>"));
        QVERIFY(hasLabel(text("As plain text: Salut")));
        QCOMPARE(stack()->count(), 2);
    }

    void imports_data() { addRowsOf("editor/imports.json"); }
    void imports() {
        QFETCH(QString, source);
        QFETCH(QString, target);
        QFETCH(QString, said);
        openIn(fileOf(sample), {});
        const QString xliff =
            text("<xliff version='1.2' xmlns='urn:oasis:names:tc:xliff:document:1.2'><file "
                 "source-language='en-US'><body><trans-unit id='1' "
                 "resname='behaviors[greet].names[fr_FR]'><source>%1</source><target>%2</target>"
                 "</trans-unit></body></file></xliff>")
                .arg(source, target);
        const QString heard = import(fileOf(xliff.toUtf8()), source == text("Welcome"));
        QVERIFY2(heard.startsWith(said), qPrintable(heard));
        QCOMPARE(stack()->count(), said.contains(text("imported: 1")) ? 1 : 0);
    }

    void languagesDiffer() {
        openIn(copyOf("ten-languages"), {});
        select(text("behaviors[greet-visitor].names[fr_FR]"));
        choose(1, text("German"));
        QCOMPARE(current(), text("behaviors[greet-visitor].names[de_DE]"));
        choose(0, text("German")); // via French, with which it is swapped
        QCOMPARE(current(), text("behaviors[greet-visitor].names[fr_FR]"));
        QCOMPARE(chooser(1)->findText(chooser(0)->currentText()), -1);
        choose(1, text("Japanese"));
        QVERIFY(m_window->openFile(copyOf("ten-languages")));
        QTRY_VERIFY(!model()->isLoading());
        QCOMPARE(current(),
                 text("behaviors[greet-visitor].names[ja_JP]")); // remembered by the window
    }

private:
    TextPair *pair() { return m_window->findChild<TextPair *>(); }
    TranslationModel *model() { return m_window->findChild<TranslationModel *>(); }
    QTableView *table() { return view<QTableView>("Texts"); }
    QComboBox *chooser(int index) {
        return table()->parentWidget()->parentWidget()->findChildren<QComboBox *>().at(index);
    }
    QString current() { return Zel::fromUtf8(model()->field(table()->currentIndex()).toString()); }
    int missing() { return model()->total().expected - model()->total().present; }

    QString fileOf(const QByteArray &content) {
        const QString name = m_directory.filePath(QStringLiteral("%1.xml").arg(++m_copies));
        writeTo(name, content);
        return name;
    }
    // Shows the page for a package with additional languages.
    void openIn(const QString &file, const QStringList &languages) {
        showWindow();
        QVERIFY(m_window->openFile(file));
        for (const QString &code : languages) {
            for (const char *list : {"supportedLanguages", "descriptionLanguages"})
                Zel::PackageModel::apply(m_window->document().package(),
                                         appended(path(text(list)), code));
        }
        m_window->showPage(6);
        QTRY_VERIFY(!model()->isLoading());
    }
    void choose(int index, const QString &name) {
        QComboBox *box = chooser(index);
        box->setFocus();
        const int wanted = box->findText(name, Qt::MatchStartsWith);
        for (int steps = std::abs(wanted - box->currentIndex()); steps > 0; --steps)
            press(box->currentIndex() < wanted ? Qt::Key_Down : Qt::Key_Up);
        QTRY_VERIFY(!model()->isLoading());
        QVERIFY2(chooser(index)->currentText().startsWith(name),
                 qPrintable(chooser(index)->currentText()));
    }
    void chooseFilter(const QString &name) {
        chooser(2)->setCurrentText(name);
        QTRY_VERIFY(!model()->isLoading());
    }
    void select(const QString &field) {
        table()->setCurrentIndex(model()->indexOf(path(field)));
        QCOMPARE(current(), field);
    }
    bool hasLabel(const QString &shown) {
        for (const QLabel *label : pair()->findChildren<QLabel *>()) {
            if (label->isVisible() && label->text() == shown)
                return true;
        }
        return false;
    }
    // Imports a file and returns the message that is shown.
    QString import(const QString &file, bool asks = false) {
        QString said;
        const std::function<void(QFileDialog *)> give = [&](QFileDialog *dialog) {
            auto *answer = new QTimer(dialog);
            int boxes = asks ? 2 : 1;
            QObject::connect(answer, &QTimer::timeout, answer, [&said, boxes]() mutable {
                auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
                if (!box)
                    return;
                said = box->text();
                const bool isQuestion = --boxes > 0;
                box->button(isQuestion ? QMessageBox::No : QMessageBox::Ok)->click();
            });
            answer->setParent(m_window.get());
            answer->start(0);
            ::choose(file)(dialog);
        };
        const Answer open(give);
        button("&Import XLIFF…")->click();
        delete m_window->findChild<QTimer *>(QString(), Qt::FindDirectChildrenOnly);
        return said;
    }
};

QTEST_MAIN(TestEditorTranslation)
#include "tst_editor_translation.moc"
