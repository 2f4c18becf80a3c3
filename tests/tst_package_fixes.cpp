#include "golden.h"
#include "random_edits.h"
#include "text.h"

#include <packagemodel/ignore_comments.h>
#include <packagemodel/issue_tracker.h>
#include <packagemodel/package_edit_command.h>
#include <packagemodel/package_info_model.h>
#include <packagemodel/package_json.h>

#include <tano/kept_content.h>

#include <QDir>
#include <QUndoStack>

#include <functional>
#include <memory>

using namespace Zel;
using namespace Zel::PackageModel;

namespace {

// "uid [uid-invalid]: Application UID is not defined correctly.", then one line per fix.
QByteArray listing(const QVector<Issue> &issues) {
    QString lines;
    for (const Issue &issue : issues) {
        lines += issue.path % text(" [") % issue.id % text("]: ") % issue.plainText() % u'\n';
        for (const Fix &fix : issue.fixes)
            lines += text(fix.isSafe ? "  safe: " : "  else: ") % fix.title % u'\n';
    }
    return lines.toUtf8();
}

} // namespace

class TestPackageFixes : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void examples() {
        for (const Rule &rule : rules()) {
            const bool isRoot = rule.example.startsWith(text("<package"));
            const QString root = text(R"(<package format="1" uid="u" version="1">)");
            PackageInfoModel package;
            QVERIFY(package.loadFromManifestContent(
                ((isRoot ? QString() : root) + rule.example + text("</package>")).toUtf8()));
            const auto found = issues(&package, {text("/nowhere")});
            const bool isFound = std::any_of(found.begin(), found.end(), [&](const Issue &issue) {
                return issue.id == rule.id;
            });
            QVERIFY2(isFound != rule.example.isEmpty(), qPrintable(rule.id));
        }
    }

    void manifests_data() {
        QTest::addColumn<QString>("file");
        const QDir own(text(ZEL_TEST_DATA "/fixes"));
        for (const QString &name : own.entryList({text("*.xml")}))
            QTest::newRow(qPrintable(name)) << own.filePath(name);
        const QDir samples(text(ZEL_SOURCE_DIR "/examples/packages"));
        for (const char *name : {"faulty", "unfinished", "small"})
            QTest::newRow(name) << samples.filePath(text(name) % text("/manifest.xml"));
    }

    // A record has the same issues as its model.
    void records_data() { manifests_data(); }

    void records() {
        QFETCH(QString, file);
        Tano::PackageInfo record;
        QFile manifest(file);
        QVERIFY(record.loadFromManifestFile(manifest));
        const PackageInfoModel package(record);
        IssueOptions options{QFileInfo(file).path(), &record};
        options.withFixes = false;
        const auto lines = [](const QVector<Issue> &issues) {
            QByteArrayList lines = listing(issues).split('\n');
            std::sort(lines.begin(), lines.end());
            return lines.join('\n');
        };
        QVector<Issue> found;
        visitIssues(
            record,
            [&](const Issue &issue) {
                found.append(issue);
                return IssueVisit::Continue;
            },
            options);
        QCOMPARE(lines(found), lines(issues(&package, options)));
    }

    // The issues, their fixes, and the manifest after the safe fixes and after all fixes.
    void manifests() {
        QFETCH(QString, file);
        const IssueOptions options{QFileInfo(file).path()};
        QByteArray result;
        for (const FixChoice choice : {FixChoice::Safe, FixChoice::All}) {
            QFile manifest(file);
            PackageInfoModel package;
            QVERIFY(package.loadFromManifestFile(manifest));
            const QByteArray before = package.saveToManifestContent();
            if (choice == FixChoice::Safe)
                result += listing(issues(&package, options));
            const Edits made = fixIssues(&package, choice, options);
            const QByteArray after = package.saveToManifestContent();
            QCOMPARE(QString::fromUtf8(toJson(fixIssues(&package, choice, options))),
                     QString::fromUtf8(toJson(Edits())));
            result += "\nafter " + QByteArray(choice == FixChoice::Safe ? "safe" : "all") +
                      " fixes:\n" + (after == before ? "" : after) +
                      listing(issues(&package, options));

            PackageInfoModel other;
            QVERIFY(other.loadFromManifestContent(before));
            QCOMPARE(apply(&other, made).error, QString());
            QCOMPARE(other.saveToManifestContent(), after);
        }
        COMPARE_WITH_GOLDEN(text(ZEL_TEST_DATA "/fixes/") % QFileInfo(file).dir().dirName() % u'-' %
                                QFileInfo(file).baseName() % text(".txt"),
                            result);
    }

    // A tracker has the issues, and the fixes, that a check of the whole package finds.
    void trackedIssues_data() { addSeeds(8); }

    void trackedIssues() {
        QFETCH(const unsigned, seed);
        RandomEdits random(seed);
        auto package = std::make_unique<PackageInfoModel>();
        const char *sample = seed % 2 ? "faulty" : "ten-languages";
        QVERIFY(package->loadFromManifestFile(text(ZEL_SOURCE_DIR "/examples/packages/") %
                                              text(sample) % text("/manifest.xml")));
        IssueOptions options;
        if (seed % 3 == 0)
            options.filterFor = [](const PackageInfoModel &) {
                return [](const Issue &issue) { return issue.id != text("uid-invalid"); };
            };
        if (seed % 3 == 1) {
            options.filterFor = notIgnored;
            const auto all = issues(package.get(), options);
            for (int i = 0; i < all.size(); i += 2)
                apply(package.get(), ignoringEdits(package.get(), {all.at(i)}));
        }
        IssueTracker tracker(package.get(), options);
        for (int i = 0; i < 60; ++i) {
            Edits edits{random.next(*package)};
            if (seed % 3 == 1 && i % 15 == 14)
                edits = ignoringEdits(package.get(), tracker.issues().mid(i % 4, 1));
            apply(package.get(), edits);
            const QByteArray before = listing(tracker.issues());
            const bool isChanged = tracker.update();
            QVector<Issue> expected = issues(package.get(), options);
            for (Issue &issue : expected) {
                if (i % 10 == 0)
                    QCOMPARE(listing({tracked(tracker, issue)}), listing({issue}));
                issue.fixes.clear();
            }
            QCOMPARE(listing(tracker.issues()), listing(expected));
            QCOMPARE(isChanged, listing(tracker.issues()) != before);
        }
        package.reset();
        tracker.update();
        QVERIFY(tracker.issues().isEmpty());
    }

    // A tracker asks for the filter again only after edits on which comments depend, and follows
    // unknown content.
    void keptFilter() {
        const RobotLanguage english = Zel::robotLanguage(text("en_US"));
        PackageInfoModel package;
        QVERIFY(package.loadFromManifestContent(R"(
<package format="1" uid="u" version="1">
  <author>a</author>
  <supportedLanguage code="en_US"/>
  <behavior path="commented">
    <texts language="en_US">
      <!-- zel-package: ignore text-blank -->
      <triggerSentence> </triggerSentence>
      <triggerSentence>a</triggerSentence>
      <triggerSentence mood="x">  </triggerSentence>
      <tag mood="x">z</tag>
    </texts>
  </behavior>
  <!-- zel-package: ignore nature-unknown -->
  <behavior path="plain" nature="x"/>
  <moods/>
</package>)"));
        IssueOptions options;
        options.withFixes = false;
        options.filterFor = notIgnored;
        int calls = 0;
        IssueOptions counting = options;
        counting.filterFor = [&](const PackageInfoModel &changed) {
            ++calls;
            return notIgnored(changed);
        };
        IssueTracker tracker(&package, counting);
        BehaviorInfoModel *commented = package.behaviors().first();
        BehaviorInfoModel *plain = package.behaviors().last();
        PackageInfoModel moved(package);
        const std::pair<int, std::function<void()>> edits[]{
            {1, [&] { commented->addTag(text("x"), english); }},
            {1, [&] { commented->insertTag(text("y"), english, 0); }},
            {0, [&] { plain->setNature(text("y")); }},
            {1, [&] { commented->removeTag(0, english); }},
            {0, [&] { package.setAuthor(text("b")); }},
            {1, [&] { package.setDescription(text("a"), english); }},
            {0, [&] { package.setDescription(text("b\x01"), english); }},
            {0, [&] { plain->setName(text("a\x01"), english); }},
            {1, [&] { package.setAuthor({}); }},
            {1, [&] { plain->setPath(text("other")); }},
            {1, [&] { package.moveBehavior(0, 1); }},
            {1, [&] { package = moved; }},
            {1, [&] { package.removeBehavior(text("commented")); }},
        };
        for (const auto &[expected, edit] : edits) {
            calls = 0;
            edit();
            tracker.update();
            QCOMPARE(calls, expected);
            QCOMPARE(listing(tracker.issues()), listing(issues(&package, options)));
        }
    }

    // Those of some fields are the same as when all are checked.
    void issuesAtPaths_data() { manifests_data(); }

    void issuesAtPaths() {
        QFETCH(QString, file);
        QFile manifest(file);
        Tano::PackageInfo record;
        QVERIFY(record.loadFromManifestFile(manifest));
        const PackageInfoModel package(record);
        const auto all = issues(&package);
        IssueOptions some;
        for (int i = 0; i < all.size(); i += 3)
            some.paths.insert(all.at(i).path);
        some.paths.insert(text("author"));
        QVector<Issue> expected;
        std::copy_if(all.begin(), all.end(), std::back_inserter(expected),
                     [&](const Issue &issue) { return some.paths.contains(issue.path); });
        QCOMPARE(listing(issues(&package, some)), listing(expected));
        QCOMPARE(IssueTracker(&package, some).issues().size(), expected.size());
        int visited = 0;
        some.withFixes = false;
        visitIssues(
            record, [&](const Issue &) { return ++visited, IssueVisit::Continue; }, some);
        QCOMPARE(visited, int(expected.size()));
    }

    // Each issue on its own, and all of them in turn.
    void ignoredIssues_data() { manifests_data(); }

    void ignoredIssues() {
        QFETCH(QString, file);
        QFile manifest(file);
        PackageInfoModel package;
        QVERIFY(package.loadFromManifestFile(manifest));
        IssueOptions options{QFileInfo(file).path()};
        options.filterFor = notIgnored;
        const auto all = issues(&package, options);
        const QByteArray before = package.saveToManifestContent();
        const auto isThere = [&](const Issue &issue) {
            const auto left = issues(&package, options);
            return std::any_of(left.begin(), left.end(), [&](const Issue &each) {
                return each.id == issue.id && each.path == issue.path;
            });
        };
        QByteArray places;
        for (const Issue &issue : all) {
            const Edits edits = ignoringEdits(&package, {issue});
            const auto read = editsFromJson(toJson(edits));
            const Applied applied = apply(&package, read.edits);
            QCOMPARE(applied.error + read.error, QString());
            QVERIFY2(!isThere(issue), qPrintable(issue.id));
            QVERIFY(ignoringEdits(&package, {issue}).isEmpty());
            for (const Tano::KeptComment &comment : Tano::comments(package.packageInfo())) {
                if (QByteArray::fromStdString(comment.text).contains(issue.id.toUtf8()))
                    places += issue.path.toUtf8() + " [" + issue.id.toUtf8() + "] before '" +
                              QByteArray::fromStdString(comment.before.toString()) + "'\n";
            }
            QCOMPARE(apply(&package, applied.inverse).error, QString());
            QCOMPARE(package.saveToManifestContent(), before);
        }
        if (all.isEmpty())
            return;
        PackageInfoModel inTurn(package.packageInfo());
        for (const Issue &issue : all)
            QCOMPARE(apply(&inTurn, ignoringEdits(&inTurn, {issue})).error, QString());
        QCOMPARE(apply(&package, ignoringEdits(&package, all)).error, QString());
        QCOMPARE(package.saveToManifestContent(), inTurn.saveToManifestContent());
        QCOMPARE(listing(issues(&package, options)), QByteArray());
        COMPARE_WITH_GOLDEN(text(ZEL_TEST_DATA "/fixes/ignored-") %
                                QFileInfo(file).dir().dirName() % text(".txt"),
                            places + package.saveToManifestContent());
    }

    // The comments of many behaviors with the same path, added and read at once, also those of
    // texts that do not reach the record before it is synchronized.
    void ignoredInsertions() {
        const RobotLanguage english = Zel::robotLanguage(text("en_US"));
        PackageInfoModel package;
        Tano::BehaviorInfo behavior;
        behavior.setPath("greet");
        behavior.addTag(" ", "en_US");
        for (int i = 0; i < 50; ++i) {
            package.addBehavior(behavior);
            package.behaviors().last()->insertTag(text("  "), english, 0);
            package.behaviors().last()->insertTriggerSentence(text(" "), english, 0);
        }
        IssueOptions options;
        options.filterFor = notIgnored;
        auto blank = issues(&package, options);
        const auto isOther = [](const Issue &issue) { return issue.id != text("text-blank"); };
        blank.erase(std::remove_if(blank.begin(), blank.end(), isOther), blank.end());
        QCOMPARE(blank.size(), 150);
        for (const Issue &issue : {blank.first(), blank.at(70), blank.last()})
            QCOMPARE(apply(&package, ignoringEdits(&package, {issue})).error, QString());
        QCOMPARE(package.behaviors().last()->tags(english).size(), 2);
        QCOMPARE(apply(&package, ignoringEdits(&package, blank)).error, QString());
        const auto left = issues(&package, options);
        QVERIFY(std::all_of(left.begin(), left.end(), isOther));
    }

    // Commands that fix, ignore and edit lead back and forth exactly.
    void replayedCommands_data() { addSeeds(8); }

    void replayedCommands() {
        QFETCH(const unsigned, seed);
        RandomEdits random(seed);
        std::mt19937 choice(seed);
        PackageInfoModel package;
        QVERIFY(package.loadFromManifestFile(
            text(ZEL_SOURCE_DIR "/examples/packages/faulty/manifest.xml")));
        const auto bytes = [&] {
            package.syncRecord();
            return package.saveToManifestContent();
        };
        const QByteArray initial = bytes();
        QUndoStack stack;
        for (int i = 0; i < 25; ++i) {
            const auto found = issues(&package);
            const Issue issue =
                found.value(found.isEmpty() ? 0 : int(choice() % unsigned(found.size())));
            Edits edits{random.next(package)};
            if (choice() % 3 == 0)
                edits = ignoringEdits(&package, {issue});
            else if (choice() % 3 == 0 && !issue.fixes.isEmpty())
                edits = issue.fixes.first().edits;
            PackageInfoModel scratch(package.packageInfo());
            if (!edits.isEmpty() && apply(&scratch, edits).error.isEmpty())
                stack.push(new PackageEditCommand(&package, edits));
            const QByteArray present = bytes();
            const int index = stack.index();
            stack.setIndex(0);
            QCOMPARE(bytes(), initial);
            stack.setIndex(index);
            QCOMPARE(bytes(), present);
        }
    }

private:
    static Issue tracked(const IssueTracker &tracker, const Issue &issue) {
        Issue found = issue;
        found.fixes = tracker.fixes(issue);
        return found;
    }
};

QTEST_GUILESS_MAIN(TestPackageFixes)
#include "tst_package_fixes.moc"
