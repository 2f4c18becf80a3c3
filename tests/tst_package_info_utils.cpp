#include <packagemodel/package_info_utils.h>

#include "signal_log.h"
#include "text.h"
#include "warning_guard.h"

#include <QTest>

using namespace Zel;

namespace {

QStringList codes(const RobotLanguages &languages) {
    QStringList codes;
    for (const RobotLanguage &each : languages)
        codes.append(each.isoCode());
    return codes;
}

// What stands in a manifest without faults, beside its languages and behaviors.
constexpr char soundUid[] = "my-app";
constexpr char soundRequirements[] = R"(<robotRequirement model="TERN"/>
                                        <brioRequirement minVersion="2.1"/>)";

bool load(PackageInfoModel &package, const QString &uid, const QString &content) {
    return package.loadFromManifestContent(
        text(R"(<package format="1" uid="%1" version="1.0.0">%2</package>)")
            .arg(uid, content)
            .toUtf8());
}

QStringList prefixed(const char *prefix, const QStringList &texts) {
    QStringList result;
    for (const QString &each : texts)
        result.append(text(prefix) + each);
    return result;
}

// "error uid [uid-invalid]" for each issue.
QStringList findings(const QVector<PackageModel::Issue> &issues) {
    QStringList lines;
    for (const auto &issue : issues) {
        const bool isError = issue.severity == PackageModel::Severity::Error;
        lines.append(text(isError ? "error " : "warning ") % issue.path % text(" [") % issue.id %
                     u']');
    }
    return lines;
}

} // namespace

class TestPackageInfoUtils : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QCOMPARE(m_warnings.take(), QStringList()); }

    void names_data();
    void names();
    void namesWithoutLanguage();
    void checks_data();
    void checks();
    void uids_data();
    void uids();
    void missingLanguages();
    void behaviorsWithOnePath();
    void languagesWithoutName();
    void otherDefaultLanguage();
    void outputsAreClearedFirst();
    void nullPackage();
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
    QVERIFY(load(package, text(soundUid),
                 content % text(R"(<behavior path="greet/behavior.xar">)") % content %
                     text("</behavior>")));
    const RobotLanguage wanted = robotLanguage(code);
    QCOMPARE(PackageModel::nameFromLanguage(&package, wanted), shown.at(0));
    QCOMPARE(PackageModel::uiName(&package, wanted), shown.at(1));
    QCOMPARE(PackageModel::descriptionFromLanguage(&package, wanted), shown.at(2));
    QCOMPARE(PackageModel::uiDescription(&package, wanted), shown.at(3));

    const BehaviorInfoModel *behavior = package.behaviors().first();
    const bool showsIdentity = shown.at(1) == text(soundUid);
    QCOMPARE(BehaviorModel::nameFromLocale(behavior, wanted), shown.at(0));
    QCOMPARE(BehaviorModel::uiName(behavior, wanted),
             showsIdentity ? behavior->path() : shown.at(1));
}

void TestPackageInfoUtils::namesWithoutLanguage() {
    PackageInfoModel package;
    QVERIFY(load(package, text(soundUid), {}));
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
    QTest::addColumn<QString>("content");
    QTest::addColumn<QString>("expectedFindings");
    QTest::addColumn<QString>("expectedMessages");

    const QString sound = text(soundRequirements);
    const QString brio = text(R"(<brioRequirement minVersion="2.1"/>)");
    const QString robot = text(R"(<robotRequirement model="TERN"/>)");

    QTest::newRow("nothing wrong, no languages") << sound << ""
                                                 << "";
    QTest::newRow("no requirements") << ""
                                     << R"(error robotRequirements [robot-requirements-missing]
                    error brioRequirements [brio-requirement-missing])"
                                     << R"(E Robot requirements are not defined.
              E Brio version requirement is not defined.)";
    QTest::newRow("robot: all at once, body before head, the next one looked at too")
        << QString(brio + text(R"(<robotRequirement model="" minBodyVersion="2" maxBodyVersion="1.9"
                                                    minHeadVersion="1.4" maxHeadVersion="1.3.9"/>
                                  <robotRequirement model="H1" minHeadVersion="2"
                                                    maxHeadVersion="1"/>)"))
        << R"(error robotRequirements[0].model [robot-model-missing]
              error robotRequirements[0].maxBodyVersion [robot-body-range-reversed]
              error robotRequirements[0].maxHeadVersion [robot-head-range-reversed]
              error robotRequirements[1].maxHeadVersion [robot-head-range-reversed])"
        << R"(E A robot requirement has no model defined.
              E '' robot requirement has a wrong body version max value.
              E '' robot requirement has a wrong head version max value.
              E 'H1' robot requirement has a wrong head version max value.)";
    QTest::newRow("robot: open and equal bounds")
        << QString(brio + text(R"(<robotRequirement model="A" minBodyVersion="9"/>
                                  <robotRequirement model="B" maxBodyVersion="1"/>
                                  <robotRequirement model="C" minHeadVersion="1.2"
                                                    maxHeadVersion="1.2"/>)"))
        << ""
        << "";
    QTest::newRow("robot: a prefix is less")
        << QString(brio + text(R"(<robotRequirement model="A" minBodyVersion="1.2.0"
                                                    maxBodyVersion="1.2"/>)"))
        << "error robotRequirements[0].maxBodyVersion [robot-body-range-reversed]"
        << "E 'A' robot requirement has a wrong body version max value.";
    QTest::newRow("brio: a missing minimum ends the check")
        << QString(robot + text(R"(<brioRequirement/>
                                   <brioRequirement minVersion="2.1" maxVersion="1.0"/>)"))
        << "error brioRequirements[0].minVersion [brio-minimum-missing]"
        << "E Brio version requirement is not valid: minimal version is not defined.";
    QTest::newRow("brio: a reversed range does not")
        << QString(robot + text(R"(<brioRequirement minVersion="2.1" maxVersion="1.0"/>
                                   <brioRequirement/>)"))
        << R"(error brioRequirements[0].maxVersion [brio-range-reversed]
              error brioRequirements[1].minVersion [brio-minimum-missing])"
        << R"(E Brio version requirement is not valid: 1.0 &lt; 2.1
              E Brio version requirement is not valid: minimal version is not defined.)";

    const QString languages = text(R"(<supportedLanguage code="ja"/>
                                      <supportedLanguage code="en_US"/>
                                      <supportedLanguage code="fr"/>)");
    QTest::newRow("names: the default language is told first")
        << QString(sound + languages + text(R"(
            <texts language="fr"><description>a</description></texts>
            <texts language="ja"><description>b</description></texts>
            <texts language="en_US"><description>c</description></texts>)"))
        << R"(warning names[en_US] [name-missing-default]
              warning names[ja] [name-missing]
              warning names[fr] [name-missing])"
        << "W Application name is not defined for: English (United States), Japanese, French";
    QTest::newRow("names: of others only; descriptions in the order of support")
        << QString(sound + languages + text(R"(
            <texts language="fr"><name>a</name></texts>
            <texts language="en_US"><name>b</name></texts>
            <texts language="de"><name>c</name></texts>)"))
        << R"(warning names[ja] [name-missing]
              warning descriptions[ja] [description-missing]
              warning descriptions[en_US] [description-missing]
              warning descriptions[fr] [description-missing])"
        << R"(W Application name is not defined for: Japanese
              W Application description is not defined for: Japanese, English (United States), French)";

    const QString two = text(R"(<supportedLanguage code="ja"/><supportedLanguage code="fr"/>
        <texts language="fr"><name>a</name><description>a</description></texts>
        <texts language="ja"><name>b</name><description>b</description></texts>)");
    const auto behavior = [](const char *path, const char *language, const char *sentences) {
        return text(R"(<behavior path="%1"><texts language="%2">%3</texts></behavior>)")
            .arg(text(path), text(language), text(sentences));
    };
    const char *sentence = "<triggerSentence>hello</triggerSentence>";
    QTest::newRow("behaviors: by path; those without a sentence are left alone")
        << QString(sound % two % behavior("z", "fr", sentence) % behavior("quiet", "fr", "") %
                   behavior("blank", "fr", "<triggerSentence/>") % behavior("a", "de", sentence))
        << R"(error behaviors[a].triggerSentences[ja] [trigger-sentences-missing]
              error behaviors[a].triggerSentences[fr] [trigger-sentences-missing]
              error behaviors[z].triggerSentences[ja] [trigger-sentences-missing])"
        << R"(E Behavior 'a' has no trigger sentence defined for: Japanese, French
              E Behavior 'z' has no trigger sentence defined for: Japanese)";
    QTest::newRow("behaviors: an empty sentence stands for one")
        << QString(sound % two % text(R"(<behavior path="b">
            <texts language="fr"><triggerSentence>salut</triggerSentence></texts>
            <texts language="ja"><triggerSentence/></texts></behavior>)"))
        << ""
        << "";
    QTest::newRow("behaviors: no supported language")
        << QString(sound % behavior("b", "fr", sentence)) << ""
        << "";
}

void TestPackageInfoUtils::checks() {
    QFETCH(QString, content);
    QFETCH(QString, expectedFindings);
    QFETCH(QString, expectedMessages);
    PackageInfoModel package;
    QVERIFY(load(package, text(soundUid), content));

    QCOMPARE(findings(PackageModel::issues(&package)),
             lines(expectedFindings.toUtf8().constData()));
    QStringList errors;
    QStringList warnings;
    const bool isValid = PackageModel::validate(&package, errors, warnings);
    QCOMPARE(prefixed("E ", errors) + prefixed("W ", warnings),
             lines(expectedMessages.toUtf8().constData()));
    QCOMPARE(isValid, expectedMessages.isEmpty());

    // The single checks make the same messages between them.
    QStringList single;
    QStringList found;
    const auto add = [&](bool isSound) {
        QCOMPARE(isSound, found.isEmpty());
        single += found;
    };
    add(PackageModel::validatePackageUID(&package, found));
    add(PackageModel::validateRobotRequirements(&package, found));
    add(PackageModel::validateBrioRequirements(&package, found));
    QMap<QString, QStringList> ofBehaviors;
    const bool behaviorsAreSound = PackageModel::validateBehaviors(&package, ofBehaviors);
    QCOMPARE(behaviorsAreSound, ofBehaviors.isEmpty());
    for (const QStringList &messages : std::as_const(ofBehaviors))
        single += messages;
    QCOMPARE(single, errors);
}

void TestPackageInfoUtils::uids_data() {
    QTest::addColumn<QString>("uid");
    QTest::addColumn<bool>("isValid");

    QTest::newRow("all kinds") << "my-app_2" << true;
    QTest::newRow("one hyphen") << "-" << true;
    QTest::newRow("50 characters") << QString(50, u'a') << true;
    QTest::newRow("51 characters") << QString(51, u'a') << false;
    QTest::newRow("empty") << "" << false;
    QTest::newRow("digits only") << "2026" << false;
    QTest::newRow("digits and a letter at the end") << "2026b" << true;
    QTest::newRow("upper case") << "MyApp" << false;
    QTest::newRow("dot") << "my.app" << false;
    QTest::newRow("line feed at the end") << "my-app\n" << false;
    QTest::newRow("digit beyond ASCII") << "app\u0661" << false;
    QTest::newRow("letter beyond ASCII") << "caf\u00e9" << false;
}

void TestPackageInfoUtils::uids() {
    QFETCH(QString, uid);
    QFETCH(bool, isValid);
    PackageInfoModel package;
    package.setUid(uid);
    QStringList errors;
    QCOMPARE(PackageModel::validatePackageUID(&package, errors), isValid);
    QCOMPARE(errors, isValid ? QStringList()
                             : QStringList(text("Application UID is not defined correctly.")));
}

void TestPackageInfoUtils::missingLanguages() {
    PackageInfoModel package;
    QVERIFY(load(package, text(soundUid), text(R"(
        <supportedLanguage code="ja"/><supportedLanguage code="en_US"/><supportedLanguage code="fr"/>
        <texts language="fr"><name>a</name></texts>
        <texts language="ja"><description>b</description></texts>
        <behavior path="late"><texts language="fr"><triggerSentence>a</triggerSentence></texts></behavior>
        <behavior path="even"><texts language="fr"><name>a</name></texts></behavior>)")));

    RobotLanguages missingDefault;
    RobotLanguages missing;
    QVERIFY(!PackageModel::validateApplicationNames(&package, missingDefault, missing));
    QCOMPARE(codes(missingDefault), QStringList(text("en_US")));
    QCOMPARE(codes(missing), QStringList(text("ja")));
    QVERIFY(!PackageModel::validateApplicationDescriptions(&package, missing));
    QCOMPARE(codes(missing), QStringList({text("en_US"), text("fr")}));

    PackageModel::BehaviorsMissingLanguages behaviors;
    QVERIFY(!PackageModel::validateBehaviorTriggerSentences(&package, behaviors));
    QCOMPARE(behaviors.size(), std::size_t(2));
    QCOMPARE(behaviors.at(0).first, text("late"));
    QCOMPARE(codes(behaviors.at(0).second), QStringList({text("ja"), text("en_US")}));
    QCOMPARE(behaviors.at(1).first, text("even"));
    QCOMPARE(codes(behaviors.at(1).second), QStringList());
}

void TestPackageInfoUtils::behaviorsWithOnePath() {
    PackageInfoModel package;
    QVERIFY(load(package, text(soundUid), text(soundRequirements) % text(R"(
        <supportedLanguage code="ja"/><supportedLanguage code="fr"/>
        <behavior path="a"><texts language="fr"><triggerSentence>x</triggerSentence></texts></behavior>
        <behavior path="b"><texts language="ja"><triggerSentence>x</triggerSentence></texts></behavior>)")));
    package.behaviors().at(1)->setPath(text("a"));
    QMap<QString, QStringList> messages;
    QVERIFY(!PackageModel::validateBehaviors(&package, messages));
    QCOMPARE(messages.keys(), QStringList(text("a")));
    QCOMPARE(messages.first(),
             QStringList({text("Behavior 'a' has no trigger sentence defined for: Japanese"),
                          text("Behavior 'a' has no trigger sentence defined for: French")}));
}

void TestPackageInfoUtils::languagesWithoutName() {
    PackageInfoModel package;
    QVERIFY(load(package, text(soundUid), text(soundRequirements)));
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
    package.addSupportedLanguage(RobotLanguage(ISOCode(text("xx_YY")), NuanceCode()));
    QVERIFY(!PackageModel::validateBehaviors(&package, messages));
    QCOMPARE(
        messages.first(),
        QStringList(text("Behavior 'a' has no trigger sentence defined for: Japanese, xx_YY")));
}

void TestPackageInfoUtils::otherDefaultLanguage() {
    const RobotLanguage previous = Language::defaultLanguage();
    Language::setDefaultLanguage(language("fr"));
    PackageInfoModel package;
    QVERIFY(load(package, text(soundUid), text(R"(
        <supportedLanguage code="en_US"/><supportedLanguage code="fr"/>)")));
    RobotLanguages missingDefault;
    RobotLanguages missing;
    const bool isValid = PackageModel::validateApplicationNames(&package, missingDefault, missing);
    package.setName(text("Thé"), language("fr"));
    const QString shown = PackageModel::uiName(&package, language("ja"));
    Language::setDefaultLanguage(previous);

    QVERIFY(!isValid);
    QCOMPARE(codes(missingDefault), QStringList(text("fr")));
    QCOMPARE(codes(missing), QStringList(text("en_US")));
    QCOMPARE(shown, text("Thé"));
}

void TestPackageInfoUtils::outputsAreClearedFirst() {
    PackageInfoModel package;
    QVERIFY(load(package, text(soundUid), text(soundRequirements)));
    const QStringList stale(text("stale"));
    QStringList errors = stale;
    QStringList warnings = stale;
    RobotLanguages languages{language("fr")};
    RobotLanguages others = languages;
    PackageModel::BehaviorsMissingLanguages behaviors{{text("stale"), languages}};
    QMap<QString, QStringList> messages{{text("stale"), stale}};

    QVERIFY(PackageModel::validate(&package, errors, warnings));
    QCOMPARE(errors + warnings, QStringList());
    for (const auto check :
         {PackageModel::validatePackageUID, PackageModel::validateRobotRequirements,
          PackageModel::validateBrioRequirements}) {
        errors = stale;
        QVERIFY(check(&package, errors));
        QCOMPARE(errors, QStringList());
    }
    QVERIFY(PackageModel::validateApplicationNames(&package, languages, others));
    QVERIFY(languages.empty() && others.empty());
    languages = {language("fr")};
    QVERIFY(PackageModel::validateApplicationDescriptions(&package, languages));
    QVERIFY(languages.empty());
    QVERIFY(PackageModel::validateBehaviors(&package, messages));
    QVERIFY(PackageModel::validateBehaviorTriggerSentences(&package, behaviors));
    QVERIFY(messages.isEmpty() && behaviors.empty());
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

void TestPackageInfoUtils::rules() {
    QStringList ids;
    const auto rules = PackageModel::rules();
    for (const auto &rule : rules) {
        ids.append(rule.id);
        QVERIFY2(!rule.explanation.isEmpty() && !rule.remedy.isEmpty(), qPrintable(rule.id));
    }
    QCOMPARE(ids, lines(R"(uid-invalid
                           robot-requirements-missing
                           robot-model-missing
                           robot-body-range-reversed
                           robot-head-range-reversed
                           brio-requirement-missing
                           brio-minimum-missing
                           brio-range-reversed
                           name-missing-default
                           name-missing
                           description-missing
                           trigger-sentences-missing)"));
}

QTEST_GUILESS_MAIN(TestPackageInfoUtils)

#include "tst_package_info_utils.moc"
