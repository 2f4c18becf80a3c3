#include "behaviors_model.h"
#include "editor_commands.h"
#include "entry_models.h"
#include "field_place.h"
#include "languages.h"
#include "languages_model.h"
#include "problems_model.h"
#include "requirements_model.h"
#include "string_list_model.h"

#include <packagemodel/behavior_commands.h>
#include <packagemodel/dialog_commands.h>
#include <packagemodel/set_string.h>

#include <QAbstractItemModelTester>
#include <QSortFilterProxyModel>
#include <QTest>

#include <functional>

using namespace Editor;
using Zel::PackageInfoModel;

namespace {

QString sample(const char *name) {
    return QStringLiteral(ZEL_SOURCE_DIR "/examples/packages/%1/manifest.xml")
        .arg(QLatin1String(name));
}

QByteArray manifestOf(Document &document) {
    document.package()->syncRecord();
    return document.package()->saveToManifestContent();
}

// What a model shows, one line a row.
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
        , sentences(document, QStringLiteral("Sentences")) {
        filtered.setSourceModel(&behaviors);
        show(document);
        for (QAbstractItemModel *model : all())
            new QAbstractItemModelTester(
                model, QAbstractItemModelTester::FailureReportingMode::QtTest, model);
    }
    // The entries that those two show.
    void show(Document &document) {
        topics.setDialog(0);
        sentences.setSource({[&document] {
                                 const auto all = document.package()->behaviors();
                                 return all.isEmpty() ? QStringList()
                                                      : all.first()->triggerSentences(
                                                            languageOf(QStringLiteral("en_US")));
                             },
                             {},
                             {}});
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

using MakeEdit = std::function<QUndoCommand *(PackageInfoModel *package)>;

} // namespace

Q_DECLARE_METATYPE(MakeEdit)

class TestEditorModels : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void edit_data() {
        QTest::addColumn<MakeEdit>("make");
        const auto row = [](const char *name, const MakeEdit &make) {
            QTest::newRow(name) << make;
        };
        const auto language = [](const char *code) { return languageOf(QLatin1String(code)); };

        row("add language", [=](PackageInfoModel *p) {
            return new SupportedLanguageCommand(p, language("it_IT"));
        });
        row("remove the third language", [=](PackageInfoModel *p) {
            return new SupportedLanguageCommand(p, language("de_DE"));
        });
        row("remove the first description language", [=](PackageInfoModel *p) {
            return new DescriptionLanguageCommand(p, language("en_US"));
        });
        row("add description language", [=](PackageInfoModel *p) {
            return new DescriptionLanguageCommand(p, language("xx_"));
        });
        row("add behavior",
            [](PackageInfoModel *p) { return newAddBehaviorCommand(p, QStringLiteral("new")); });
        row("remove the second behavior",
            [](PackageInfoModel *p) { return newRemoveBehaviorCommand(p, 1); });
        row("remove the last behavior", [](PackageInfoModel *p) {
            return newRemoveBehaviorCommand(p, int(p->behaviors().size()) - 1);
        });
        row("rename behavior", [](PackageInfoModel *p) {
            return new Zel::BehaviorPathCommand(p, p->behaviors().first()->path(),
                                                QStringLiteral("renamed"), true);
        });
        row("remove trigger sentence", [=](PackageInfoModel *p) {
            return Zel::BehaviorAddRemoveTriggerSentenceCommand::removeCommand(
                p, p->behaviors().first()->path(), language("en_US"), 0);
        });
        row("add dialog",
            [](PackageInfoModel *p) { return newAddDialogCommand(p, QStringLiteral("new")); });
        row("remove the first dialog",
            [](PackageInfoModel *p) { return newRemoveDialogCommand(p, 0); });
        row("remove topic", [=](PackageInfoModel *p) {
            return new Zel::DialogInfoModelRemoveTopicCommand(p, p->dialogs().first()->topicName(),
                                                              language("en_US"));
        });
        row("add service",
            [](PackageInfoModel *p) { return newAddServiceCommand(p, QStringLiteral("new")); });
        row("remove the first service",
            [](PackageInfoModel *p) { return newRemoveServiceCommand(p, 0); });
        row("rename service", [](PackageInfoModel *p) {
            return newServiceFieldCommand(p, 1, ServiceField::Name, QStringLiteral("other"), true);
        });
        row("command of service", [](PackageInfoModel *p) {
            return newServiceFieldCommand(p, 0, ServiceField::ExecStart, QStringLiteral("other"),
                                          true);
        });
        row("start of service",
            [](PackageInfoModel *p) { return new ServiceAutoRunCommand(p, 0); });
        row("add robot", [](PackageInfoModel *p) { return newAddRobotRequirementCommand(p); });
        row("remove the first robot",
            [](PackageInfoModel *p) { return newRemoveRobotRequirementCommand(p, 0); });
        row("wrong range", [](PackageInfoModel *p) {
            return newRequirementFieldCommand(p, robotRequirementFields().at(4), 0,
                                              QStringLiteral("1.0"), true);
        });
        row("add Brio version",
            [](PackageInfoModel *p) { return newAddBrioRequirementCommand(p); });
        row("remove Brio version",
            [](PackageInfoModel *p) { return newRemoveBrioRequirementCommand(p, 0); });
        row("Brio minimum", [](PackageInfoModel *p) {
            return newRequirementFieldCommand(p, brioRequirementFields().at(0), 0, QString(), true);
        });
        row("name", [=](PackageInfoModel *p) {
            return new Zel::PackageLocalizedStringCommand(
                p, QString(), Zel::PackageLocalizedStringCommand::Name, language("fr_FR"), true);
        });
        row("version", [](PackageInfoModel *p) {
            return newVersionCommand(p, QStringLiteral("9.8.7"), true);
        });
    }

    // Each edit is seen by the models, is undone to the very bytes of the file, and done again.
    void edit() {
        QFETCH(MakeEdit, make);
        Document document;
        AllModels models(document);
        QVERIFY(document.open(sample("ten-languages")));
        models.show(document);
        const QByteArray before = manifestOf(document);
        const auto shownBefore = models.state();

        document.push(make(document.package()));
        const QByteArray after = manifestOf(document);
        const auto shownAfter = models.state();
        QVERIFY(after != before);
        AllModels fresh(document);
        QCOMPARE(shownAfter, fresh.state());
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
        document.push(
            new SupportedLanguageCommand(document.package(), languageOf(QStringLiteral("ja_JP"))));
        QStringList paths;
        for (int row = 0; row < problems.rowCount(); ++row)
            paths.append(problems.index(row, 0).data(ProblemsModel::PathRole).toString());
        QCOMPARE(paths, (QStringList{namePath(QStringLiteral("ja_JP")),
                                     descriptionPath(QStringLiteral("ja_JP")),
                                     sentencesPath(path, QStringLiteral("ja_JP"))}));
        QVERIFY(document.behaviorSeverity(path));
        document.push(newRemoveBehaviorCommand(document.package(), 0));
        QCOMPARE(problems.rowCount(), 2);
        document.undoStack()->undo();
        QCOMPARE(problems.rowCount(), 3);
        document.push(
            new Zel::BehaviorPathCommand(document.package(), path, QStringLiteral("other"), true));
        QVERIFY(!document.behaviorSeverity(path));
        QVERIFY(document.behaviorSeverity(QStringLiteral("other")));
    }

    void typingMerges() {
        Document document;
        QVERIFY(document.open(sample("small")));
        LanguagesModel languages(document);
        const QModelIndex cell = languages.index(0, LanguagesModel::Name);
        const QString before = cell.data().toString();
        for (const char *text : {"W", "Wa", "Wav"})
            languages.setData(cell, QLatin1String(text));
        QCOMPARE(document.undoStack()->count(), 1);
        document.closeRun();
        languages.setData(cell, QStringLiteral("Wave"));
        QCOMPARE(document.undoStack()->count(), 2);
        document.abandonRun();
        QCOMPARE(cell.data().toString(), QStringLiteral("Wav"));
        document.undoStack()->undo();
        QCOMPARE(cell.data().toString(), before);
    }

    void fieldPlaces_data() {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("parts");
        const auto row = [](const char *path, const char *parts) {
            QTest::newRow(path) << QString::fromLatin1(path) << QString::fromLatin1(parts);
        };
        row("uid", "uid|||");
        row("names[fr_FR]", "names|fr_FR||");
        row("robotRequirements[10].model", "robotRequirements|10|model|");
        row("behaviors[a].triggerSentences[ja_JP]", "behaviors|a|triggerSentences|ja_JP");
        row("behaviors[a\\].b[c\\]].triggerSentences[fr]", "behaviors|a].b[c]|triggerSentences|fr");
    }
    void fieldPlaces() {
        QFETCH(QString, path);
        const FieldPlace parsed = FieldPlace::parse(path);
        const QStringList parts{parsed.list, parsed.key, parsed.field, parsed.subkey};
        QTEST(parts.join(u'|'), "parts");
    }
};

QTEST_MAIN(TestEditorModels)
#include "tst_editor_models.moc"
