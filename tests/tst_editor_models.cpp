#include "document/field_edits.h"
#include "models/behaviors_model.h"
#include "models/entry_models.h"
#include "models/languages_model.h"
#include "models/problems_model.h"
#include "models/requirements_model.h"
#include "models/string_list_model.h"
#include "random_edits.h"

#include <QAbstractItemModelTester>
#include <QFile>
#include <QMimeData>
#include <QSignalSpy>
#include <QSortFilterProxyModel>
#include <QTemporaryDir>
#include <QTest>

#include <functional>
#include <random>

using namespace Editor;
using Tano::FieldPath;

namespace {

QString sample(const char *name) {
    return QStringLiteral(ZEL_SOURCE_DIR "/examples/packages/%1/manifest.xml")
        .arg(QLatin1String(name));
}

QByteArray manifestOf(Document &document) {
    document.package()->syncRecord();
    return document.package()->saveToManifestContent();
}

QStringList languagesOf(const Zel::PackageInfoModel &package) {
    QStringList codes;
    for (const Zel::RobotLanguage &language : Zel::PackageModel::languages(&package))
        codes.append(language.isoCode());
    return codes;
}

// The contents of a model, one line per row.
QStringList shown(const QAbstractItemModel &model) {
    QStringList rows;
    for (int row = 0; row < model.rowCount(); ++row) {
        QStringList cells;
        for (int column = 0; column < model.columnCount(); ++column) {
            const QModelIndex cell = model.index(row, column);
            const QVariant check = cell.data(Qt::CheckStateRole);
            cells.append(check.isValid() ? QString::number(check.toInt()) : cell.data().toString());
        }
        rows.append(cells.join(u'|'));
    }
    return rows;
}

struct AllModels {
    explicit AllModels(Document &document)
        : problems(document)
        , languages(document)
        , robots(document, RequirementsModel::Kind::Robot)
        , brio(document, RequirementsModel::Kind::Brio)
        , behaviors(document)
        , dialogs(document)
        , topics(document)
        , services(document)
        , sentences(document, QStringLiteral("Sentences"), [&document] {
            const auto *package = document.package();
            return Zel::PackageModel::itemPath(package, FieldPath().field("behaviors"), 0)
                .field("triggerSentences")
                .key("en_US");
        }) {
        filtered.setSourceModel(&behaviors);
        topics.setDialog(0);
        for (QAbstractItemModel *model : all())
            new QAbstractItemModelTester(
                model, QAbstractItemModelTester::FailureReportingMode::QtTest, model);
    }
    std::vector<QAbstractItemModel *> all() {
        return {&problems, &languages, &robots, &brio,     &behaviors,
                &filtered, &dialogs,   &topics, &services, &sentences};
    }
    QVector<QStringList> state() {
        QVector<QStringList> state;
        for (const QAbstractItemModel *model : all())
            state.append(shown(*model));
        return state;
    }

    ProblemsModel problems;
    LanguagesModel languages;
    RequirementsModel robots;
    RequirementsModel brio;
    BehaviorsModel behaviors;
    QSortFilterProxyModel filtered;
    DialogsModel dialogs;
    TopicsModel topics;
    ServicesModel services;
    StringListModel sentences;
};

using MakeEdit = std::function<void(Document &document, AllModels &models)>;

template<typename Model>
void check(Model &model, int row, int column) {
    const QModelIndex cell = model.index(row, column);
    const bool isChecked = cell.data(Qt::CheckStateRole).toInt() == Qt::Checked;
    model.setData(cell, isChecked ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
}

template<typename Model>
void write(Model &model, int row, int column, const char *text) {
    model.setData(model.index(row, column), QLatin1String(text));
}

MakeEdit remove(const char *list, int index) {
    return [=](Document &document, AllModels &) {
        document.edit({removed(document.package(), FieldPath().field(list), index)},
                      QStringLiteral("Remove"));
    };
}

template<typename Record>
MakeEdit add(const char *list, const Record &record) {
    return [=](Document &document, AllModels &) {
        document.edit({appended(FieldPath().field(list), record)}, QStringLiteral("Add"));
    };
}

FieldPath behaviorField(const QString &path, const char *name) {
    return FieldPath().field("behaviors").key(Zel::toUtf8(path)).field(name);
}

} // namespace

Q_DECLARE_METATYPE(MakeEdit)

class TestEditorModels : public QObject {
    Q_OBJECT

private Q_SLOTS:
    // A view without a current row passes invalid indexes.
    void invalidIndexes() {
        Document document;
        QVERIFY(document.open(sample("ten-languages")));
        AllModels models(document);
        for (QAbstractItemModel *model : models.all()) {
            for (int role = 0; role <= Qt::UserRole + 2; ++role)
                QVERIFY(!model->data({}, role).isValid());
            QVERIFY(!model->setData({}, QStringLiteral("x")));
            if (const auto *table = qobject_cast<TableModel *>(model))
                QVERIFY(table->field({}).isEmpty() && table->refusal({}, {}).isEmpty());
            const std::unique_ptr<QMimeData> data(model->mimeData({QModelIndex()}));
        }
        QVERIFY(!document.isModified());
    }

    void edit_data() {
        QTest::addColumn<MakeEdit>("make");
        using D = Document;
        using M = AllModels;
        const auto row = [](const char *name, const MakeEdit &make) {
            QTest::newRow(name) << make;
        };
        row("add language", [](D &, M &m) { m.languages.add(QStringLiteral("it_CH")); });
        row("remove languages", [](D &, M &m) { m.languages.remove({1, 3}); });
        row("stop supporting the third language",
            [](D &, M &m) { check(m.languages, 2, LanguagesModel::Supported); });
        row("remove the first description language",
            [](D &, M &m) { check(m.languages, 0, LanguagesModel::Described); });
        row("add description language", add("descriptionLanguages", QStringLiteral("xx_")));
        row("name", [](D &, M &m) { write(m.languages, 1, LanguagesModel::Name, ""); });
        row("add behavior", add("behaviors", Tano::BehaviorInfo()));
        row("remove the second behavior", remove("behaviors", 1));
        row("remove the last behavior", remove("behaviors", 7));
        row("rename behavior", [](D &d, M &) {
            const QString path = d.package()->behaviors()[0]->path();
            d.type(behaviorField(path, "path"), QStringLiteral("renamed"));
        });
        row("trigger sentence", [](D &, M &m) { write(m.sentences, 0, 0, "other"); });
        row("trigger sentences", [](D &, M &m) {
            m.sentences.add({QStringLiteral("one"), QStringLiteral("two")});
        });
        row("remove trigger sentence", [](D &d, M &m) {
            d.edit({removed(d.package(), m.sentences.list(), 0)}, QStringLiteral("Remove"));
        });
        row("add dialog", add("dialogs", Tano::DialogInfo()));
        row("remove the first dialog", remove("dialogs", 0));
        row("topic", [](D &, M &m) { write(m.topics, 1, 1, "other.top"); });
        row("remove topic", [](D &, M &m) { m.topics.removeTopic(0); });
        row("add service", add("services", Tano::PackageService()));
        row("remove the first service", remove("services", 0));
        row("rename service",
            [](D &, M &m) { write(m.services, 1, ServicesModel::Name, "other"); });
        row("command of service",
            [](D &, M &m) { write(m.services, 0, ServicesModel::ExecStart, "other"); });
        row("start of service", [](D &, M &m) { check(m.services, 0, ServicesModel::AutoRun); });
        row("add robot", [](D &, M &m) { m.robots.add(); });
        row("remove the first robot", remove("robotRequirements", 0));
        row("wrong range", [](D &, M &m) { write(m.robots, 0, 4, "1.0"); });
        row("robot", [](D &, M &m) { write(m.robots, 0, 0, "HERON"); });
        row("add Brio version", [](D &, M &m) { m.brio.add(); });
        row("remove Brio version", remove("brioRequirements", 0));
        row("Brio minimum", [](D &, M &m) { write(m.brio, 0, 0, ""); });
    }

    // Models show each edit, undoing it restores the exact bytes of the file, and redoing works.
    void edit() {
        QFETCH(MakeEdit, make);
        Document document;
        AllModels models(document);
        QVERIFY(document.open(sample("ten-languages")));
        const QByteArray before = manifestOf(document);
        const auto shownBefore = models.state();

        make(document, models);
        QCOMPARE(document.undoStack()->count(), 1);
        const QByteArray after = manifestOf(document);
        const auto shownAfter = models.state();
        QVERIFY(after != before);
        AllModels fresh(document);
        QCOMPARE(shownAfter, fresh.state());
        QCOMPARE(models.languages.keys(), languagesOf(*document.package()));
        document.undoStack()->undo();
        QCOMPARE(manifestOf(document), before);
        QCOMPARE(models.state(), shownBefore);
        document.undoStack()->redo();
        QCOMPARE(manifestOf(document), after);
        QCOMPARE(models.state(), shownAfter);
    }

    void issuesFollowEdits() {
        Document document;
        ProblemsModel problems(document);
        QVERIFY(document.open(sample("small")));
        QCOMPARE(problems.rowCount(), 0);
        const QString path = document.package()->behaviors().first()->path();
        AllModels models(document);
        models.languages.add(QStringLiteral("ja_JP"));
        QStringList paths;
        for (int row = 0; row < problems.rowCount(); ++row)
            paths.append(problems.index(row, 0).data(ProblemsModel::PathRole).toString());
        QCOMPARE(
            paths,
            (QStringList{QStringLiteral("behaviors[%1].triggerSentences[ja_JP]").arg(path),
                         QStringLiteral("names[ja_JP]"), QStringLiteral("descriptions[ja_JP]")}));
        QCOMPARE(problems.index(0, ProblemsModel::Field).data().toString(),
                 QStringLiteral("Trigger sentences of “%1” in Japanese (Japan)").arg(path));
        QVERIFY(document.entrySeverity(QStringLiteral("behaviors"), path));
        remove("behaviors", 0)(document, models);
        QCOMPARE(problems.rowCount(), 2);
        document.undoStack()->undo();
        QCOMPARE(problems.rowCount(), 3);
        document.type(behaviorField(path, "path"), QStringLiteral("other"));
        QVERIFY(!document.entrySeverity(QStringLiteral("behaviors"), path));
        QVERIFY(document.entrySeverity(QStringLiteral("behaviors"), QStringLiteral("other")));
    }

    // Sorted views take time proportional to all rows for each announced step.
    void announcesFewSteps() {
        using Zel::PackageModel::Edit;
        using Zel::PackageModel::Edits;
        constexpr int count = 90;
        Tano::PackageInfo record;
        for (int i = 0; i < count; ++i) {
            Tano::BehaviorInfo behavior;
            behavior.setPath(std::to_string(i));
            behavior.setNature("solitry");
            record.addBehavior(behavior);
        }
        Document document;
        QVERIFY(document.openTemplate(QByteArray::fromStdString(record.saveToManifestContent())));
        AllModels models(document);
        const ProblemsModel &problems = models.problems;
        const int before = problems.rowCount();
        QSignalSpy removed(&problems, &QAbstractItemModel::rowsRemoved);
        QSignalSpy inserted(&problems, &QAbstractItemModel::rowsInserted);
        QSignalSpy moved(&problems, &QAbstractItemModel::rowsMoved);

        const auto path = [](int i) {
            return FieldPath().field("behaviors").entry(std::to_string(i));
        };
        Edits corrections;
        for (int i = 0; i < count; i += 2)
            corrections.append(
                {Edit::Action::Set, path(i).field("nature"), QStringLiteral("interactive")});
        Edits half;
        for (int i = 0; i < count / 2; ++i)
            half.append({Edit::Action::Remove, path(i)});
        for (const Edits &edits :
             {corrections, half, Edits{{Edit::Action::Move, path(0), {}, 89}}}) {
            document.edit(edits);
            QCOMPARE(models.state(), AllModels(document).state());
            document.undoStack()->undo();
            QCOMPARE(models.state(), AllModels(document).state());
            QCOMPARE(problems.rowCount(), before);
        }
        QVERIFY(removed.size() + inserted.size() + moved.size() < 20);
        QVERIFY(removed.size() > 0); // half of them in one run
    }

    // The package is unchanged, and the reason is shown.
    void refusals() {
        Document document;
        QVERIFY(document.open(sample("ten-languages")));
        AllModels models(document);
        const QSignalSpy refused(&document, &Document::editRefused);
        const QString taken = document.package()->services().at(0)->name();
        QCOMPARE(models.services.refusal(models.services.index(1, ServicesModel::Name), taken),
                 QStringLiteral("'%1' is already in use.").arg(taken));
        QVERIFY(!models.robots.refusal(models.robots.index(0, 1), QStringLiteral("1.x")).isEmpty());
        QVERIFY(models.robots.refusal(models.robots.index(0, 1), QStringLiteral("1.2")).isEmpty());
        QVERIFY(!models.languages
                     .refusal(models.languages.index(0, LanguagesModel::Name), QString(QChar(1)))
                     .isEmpty());
        models.languages.add(QStringLiteral("en_US"));
        QCOMPARE(refused.size(), 1);
        QCOMPARE(refused.at(0).at(0).toString(), QStringLiteral("'en_US' already exists."));
        QCOMPARE(document.undoStack()->count(), 0);
    }

    void pendingEdits_data() { addSeeds(16); }
    // The pending edits turn the saved file into the current package.
    void pendingEdits() {
        QFETCH(unsigned, seed);
        const QTemporaryDir directory;
        const QString fileName = directory.filePath(QStringLiteral("manifest.xml"));
        // With and without comments and unknown content.
        const QString original =
            seed % 2 == 0 ? QStringLiteral(ZEL_TEST_DATA "/fields/package.xml") : sample("small");
        QVERIFY(QFile::copy(original, fileName));
        Document document;
        QVERIFY(document.open(fileName));
        RandomEdits edits(seed);
        std::mt19937 random(seed);
        for (int step = 0; step < 60; ++step) {
            const unsigned kind = unsigned(random() % 12);
            if (kind < 2)
                document.undoStack()->undo();
            else if (kind < 4)
                document.undoStack()->redo();
            else if (kind == 4)
                QVERIFY(document.save(fileName));
            else if (kind < 7)
                document.type(FieldPath().field("author"), QString::number(random() % 3));
            else
                document.edit({edits.next(*document.package())});
            const auto pending = document.pendingEdits();
            QCOMPARE(pending.isEmpty(), !document.isModified());
            Zel::PackageInfoModel saved;
            QVERIFY(pending.isEmpty() || saved.loadFromManifestFile(fileName));
            QCOMPARE(Zel::PackageModel::apply(&saved, pending).error, QString());
            if (!pending.isEmpty())
                QCOMPARE(saved.saveToManifestContent().split('\n'),
                         manifestOf(document).split('\n'));
        }
    }

    void coverageFollowsEdits() {
        Document document;
        QVERIFY(document.open(sample("small")));
        const LanguagesModel languages(document);
        const QModelIndex cell = languages.index(0, LanguagesModel::Coverage);
        const auto percent = [&] { return cell.data(LanguagesModel::PercentRole).toInt(); };
        QCOMPARE(percent(), 100);
        const auto *behavior = document.package()->behaviors().first();
        document.type(behaviorField(behavior->path(), "names").key("en_US"), QString());
        const auto expected = Zel::PackageModel::coverages(document.package()).front();
        QCOMPARE(percent(), expected.percent());
        QVERIFY(percent() < 100);
        QCOMPARE(cell.data().toString(), QStringLiteral("%1 of %2")
                                             .arg(expected.total().present)
                                             .arg(expected.total().expected));
    }
};

QTEST_MAIN(TestEditorModels)
#include "tst_editor_models.moc"
