#include <packagemodel/package_info_utils.h>

#include "golden.h"
#include "signal_log.h"
#include "table_file.h"
#include "text.h"
#include "warning_guard.h"

#include <QDir>
#include <QTest>

using namespace Zel;

namespace {

const QDir checkData(text(ZEL_TEST_DATA "/checks"));

// The lines of a golden file.
QByteArray golden(const QStringList &lines) {
    return lines.isEmpty() ? QByteArray() : QString(lines.join(u'\n') % u'\n').toUtf8();
}

// Loads a package whose only faults concern languages and behaviors.
bool load(PackageInfoModel &package, const QString &content) {
    const QString requirements = text(R"(<robotRequirement model="TERN"/>
                                         <brioRequirement minVersion="2.1"/>)");
    return package.loadFromManifestContent(
        text(R"(<package format="1" uid="my-app" version="1.0.0">%1%2</package>)")
            .arg(content, requirements)
            .toUtf8());
}

// "error uid [uid-invalid]" for each issue.
QStringList findings(const PackageInfoModel &package) {
    QStringList lines;
    const auto issues = PackageModel::issues(&package);
    for (const auto &issue : issues) {
        const QString severity =
            text(std::array{"note ", "warning ", "error "}.at(std::size_t(issue.severity)));
        lines.append(severity % issue.path % text(" [") % issue.id % u']');
    }
    return lines;
}

// The findings of the checks that list languages.
QStringList missingLanguages(const PackageInfoModel &package) {
    const RobotLanguages stale{language("fr")};
    RobotLanguages inDefault = stale;
    RobotLanguages others = stale;
    RobotLanguages described = stale;
    PackageModel::BehaviorsMissingLanguages behaviors{{text("stale"), stale}};
    QStringList lines;
    if (!PackageModel::validateApplicationNames(&package, inDefault, others) ||
        !inDefault.empty() || !others.empty())
        lines.append(text("names missing in ") % SignalLog::print(inDefault) % u' ' %
                     SignalLog::print(others));
    if (!PackageModel::validateApplicationDescriptions(&package, described) || !described.empty())
        lines.append(text("descriptions missing in ") % SignalLog::print(described));
    const bool areComplete = PackageModel::validateBehaviorTriggerSentences(&package, behaviors);
    for (const auto &[path, languages] : behaviors) {
        if (!areComplete || !languages.empty())
            lines.append(text("sentences of ") % path % text(" missing in ") %
                         SignalLog::print(languages));
    }
    return lines;
}

// The messages of the single checks, all of which are errors.
QStringList singleMessages(const PackageInfoModel &package) {
    QStringList messages;
    for (const auto check :
         {PackageModel::validatePackageUID, PackageModel::validateRobotRequirements,
          PackageModel::validateBrioRequirements}) {
        QStringList found(text("stale"));
        const bool isSound = check(&package, found);
        messages += isSound == found.isEmpty() ? found : QStringList(text("not as answered"));
    }
    QMap<QString, QStringList> ofBehaviors{{text("stale"), {text("stale")}}};
    const bool areSound = PackageModel::validateBehaviors(&package, ofBehaviors);
    messages +=
        areSound == ofBehaviors.isEmpty() ? QStringList() : QStringList(text("not as answered"));
    for (const QStringList &found : std::as_const(ofBehaviors))
        messages += found;
    return messages;
}

} // namespace

class TestPackageInfoUtils : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_warnings.watch(); }
    void cleanup() { QCOMPARE(m_warnings.take(), QStringList()); }

    void names_data();
    void names();
    void namesWithoutLanguage();
    void checks_data();
    void checks();
    void uids_data() { addRowsOf("checks/uids.json"); }
    void uids();
    void languagesWithoutName();
    void otherDefaultLanguage();
    void nullPackage();
    void textsOfIssues();
    void visitors();
    void rules();

private:
    WarningGuard m_warnings;
};

void TestPackageInfoUtils::names_data() {
    QTest::addColumn<QString>("content");
    QTest::addColumn<QString>("code");
    QTest::addColumn<QStringList>("shown"); // name, uiName, description, uiDescription

    const QString english = text(R"(<texts language="en_US"><name>Tea</name>
                                    <description>Hot</description></texts>)");
    const QString french = text(R"(<texts language="fr_FR"><name>Thé</name></texts>)");
    const auto shown = [](auto... texts) { return QStringList{text(texts)...}; };
    QTest::newRow("in that language")
        << QString(english + french) << "fr_FR" << shown("Thé", "Thé", "", "Hot");
    QTest::newRow("in the default language") << english << "ja_JP" << shown("", "Tea", "", "Hot");
    QTest::newRow("in another language only") << french << "ja_JP" << shown("", "my-app", "", "");
    QTest::newRow("no language") << english << "" << shown("", "Tea", "", "Hot");
}

void TestPackageInfoUtils::names() {
    QFETCH(QString, content);
    QFETCH(QString, code);
    QFETCH(QStringList, shown);
    PackageInfoModel package;
    QVERIFY(load(package, content % text(R"(<behavior path="greet/behavior.xar">)") % content %
                              text("</behavior>")));
    const RobotLanguage wanted = robotLanguage(code);
    QCOMPARE(PackageModel::nameFromLanguage(&package, wanted), shown.at(0));
    QCOMPARE(PackageModel::uiName(&package, wanted), shown.at(1));
    QCOMPARE(PackageModel::descriptionFromLanguage(&package, wanted), shown.at(2));
    QCOMPARE(PackageModel::uiDescription(&package, wanted), shown.at(3));

    const BehaviorInfoModel *behavior = package.behaviors().first();
    const bool showsIdentity = shown.at(1) == text("my-app");
    QCOMPARE(BehaviorModel::nameFromLocale(behavior, wanted), shown.at(0));
    QCOMPARE(BehaviorModel::uiName(behavior, wanted),
             showsIdentity ? behavior->path() : shown.at(1));
}

void TestPackageInfoUtils::namesWithoutLanguage() {
    PackageInfoModel package;
    QVERIFY(load(package, {}));
    package.addBehavior(text("greet"));
    for (const RobotLanguage &each : {RobotLanguage(), language("en_US")}) {
        package.setName(each.uiName() % text("!"), each);
        package.setDescription(each.uiName() % text("!"), each);
        package.behaviors().first()->setName(each.uiName() % text("!"), each);
    }
    QCOMPARE(PackageModel::uiName(&package, RobotLanguage()), text("English (United States)!"));
    QCOMPARE(PackageModel::uiDescription(&package, RobotLanguage()),
             text("English (United States)!"));
    QCOMPARE(BehaviorModel::uiName(package.behaviors().first(), RobotLanguage()), text("!"));
}

void TestPackageInfoUtils::checks_data() {
    QTest::addColumn<QString>("name");
    const auto names = checkData.entryList({text("*.xml")}, QDir::Files, QDir::Name);
    for (const QString &name : names)
        QTest::newRow(qPrintable(name)) << name.chopped(4);
}

void TestPackageInfoUtils::checks() {
    QFETCH(QString, name);
    PackageInfoModel package;
    QVERIFY(package.loadFromManifestContent(testData(text("checks/%1.xml").arg(name))));
    QStringList errors(text("stale"));
    QStringList warnings = errors;
    const bool isValid = PackageModel::validate(&package, errors, warnings);
    QCOMPARE(isValid, (errors + warnings).isEmpty());
    QCOMPARE(singleMessages(package), errors);
    const QStringList reported = findings(package) + errors + warnings + missingLanguages(package);
    COMPARE_WITH_GOLDEN(checkData.filePath(name + text(".txt")), golden(reported));
}

void TestPackageInfoUtils::uids() {
    QFETCH(QString, uid);
    QFETCH(int, isValid);
    PackageInfoModel package;
    package.setUid(uid);
    QStringList errors;
    QCOMPARE(PackageModel::validatePackageUID(&package, errors), isValid == 1);
    QCOMPARE(errors, isValid == 1 ? QStringList()
                                  : QStringList(text("Application UID is not defined correctly.")));
}

void TestPackageInfoUtils::languagesWithoutName() {
    PackageInfoModel package;
    package.addSupportedLanguage(RobotLanguage());
    package.addBehavior(text("a"));
    package.behaviors().first()->addTriggerSentence(text("x"), language("fr"));
    QMap<QString, QStringList> messages;
    QVERIFY(PackageModel::validateBehaviors(&package, messages));
    QCOMPARE(messages.size(), 0);
    package.addSupportedLanguage(language("ja"));
    QVERIFY(!PackageModel::validateBehaviors(&package, messages));
    QCOMPARE(messages.first(),
             QStringList(text("Behavior 'a' has no trigger sentence defined for: Japanese")));
}

void TestPackageInfoUtils::otherDefaultLanguage() {
    const RobotLanguage previous = Language::defaultLanguage();
    Language::setDefaultLanguage(language("fr"));
    PackageInfoModel package;
    package.addSupportedLanguage(language("en_US"));
    package.addSupportedLanguage(language("fr"));
    RobotLanguages missingDefault;
    RobotLanguages missing;
    const bool isValid = PackageModel::validateApplicationNames(&package, missingDefault, missing);
    package.setName(text("Thé"), language("fr"));
    const QString shown = PackageModel::uiName(&package, language("ja"));
    Language::setDefaultLanguage(previous);

    QVERIFY(!isValid);
    QCOMPARE(SignalLog::print(missingDefault), text("[fr]"));
    QCOMPARE(SignalLog::print(missing), text("[en_US]"));
    QCOMPARE(shown, text("Thé"));
}

void TestPackageInfoUtils::nullPackage() {
    QStringList errors(text("stale"));
    QStringList warnings(text("stale"));
    QVERIFY(!PackageModel::validate(nullptr, errors, warnings));
    QCOMPARE(errors + warnings, QStringList());
    QVERIFY(PackageModel::issues(nullptr).isEmpty());
    QCOMPARE(PackageModel::uiName(nullptr, language("fr")), QString());
    QCOMPARE(PackageModel::uiDescription(nullptr, language("fr")), QString());
    QCOMPARE(BehaviorModel::uiName(nullptr, language("fr")), QString());
}

void TestPackageInfoUtils::textsOfIssues() {
    PackageInfoModel package;
    QVERIFY(load(package, text(R"(<robotRequirement model="&lt;i>&amp;lt;" minBodyVersion="2"
                                                    maxBodyVersion="1"/>
                                  <brioRequirement minVersion="2" maxVersion="1"/>)")));
    QStringList texts;
    for (const auto &issue : PackageModel::issues(&package))
        texts += {issue.plainText(), issue.richText()};
    const QStringList expected{
        text("'<i>&lt;' robot requirement has a wrong body version max value."),
        text("'&lt;i&gt;&amp;lt;' robot requirement has a wrong body version max value."),
        text("Brio version requirement is not valid: 1 < 2"),
        text("Brio version requirement is not valid: 1 &lt; 2")};
    QCOMPARE(texts.mid(0, expected.size()), expected);
}

void TestPackageInfoUtils::visitors() {
    Tano::PackageInfo record;
    for (const char *code : {"en_US", "fr_FR", "it_IT"})
        record.addSupportedLanguage(code);
    for (const char *path : {"b", "a"}) {
        Tano::BehaviorInfo behavior;
        behavior.setPath(path);
        behavior.addTriggerSentence("hello", "en_US");
        record.addBehavior(behavior);
    }
    const PackageInfoModel package(record);
    const auto visited = [&](PackageModel::IssueVisit answer, const char *id) {
        QStringList paths;
        PackageModel::visitIssues(&package, [&](const PackageModel::Issue &issue) {
            paths += issue.path;
            return issue.id == QLatin1String(id) ? answer : PackageModel::IssueVisit::Continue;
        });
        return paths.join(u' ');
    };
    using Visit = PackageModel::IssueVisit;
    const QString first = text("uid robotRequirements brioRequirements names[en_US] ");
    const QString last = text(" descriptions[en_US] descriptions[fr_FR] descriptions[it_IT] "
                              "behaviors[a].triggerSentences[fr_FR]");
    QCOMPARE(visited(Visit::Stop, "name-missing"), first + text("names[fr_FR]"));
    QCOMPARE(visited(Visit::SkipRule, "name-missing"),
             first + text("names[fr_FR]") + last +
                 text(" behaviors[a].triggerSentences[it_IT] behaviors[b].triggerSentences[fr_FR] "
                      "behaviors[b].triggerSentences[it_IT]"));
    QCOMPARE(visited(Visit::SkipRule, "trigger-sentences-missing"),
             first + text("names[fr_FR] names[it_IT]") + last);
    PackageModel::visitIssues(nullptr, [](const auto &) { return Visit::Stop; });
}

void TestPackageInfoUtils::rules() {
    QStringList ids;
    const auto rules = PackageModel::rules();
    for (const auto &rule : rules) {
        ids.append(rule.id);
        QVERIFY2(!rule.explanation.isEmpty() && !rule.remedy.isEmpty(), qPrintable(rule.id));
    }
    COMPARE_WITH_GOLDEN(checkData.filePath(text("rules.txt")), golden(ids));
}

QTEST_GUILESS_MAIN(TestPackageInfoUtils)

#include "tst_package_info_utils.moc"
