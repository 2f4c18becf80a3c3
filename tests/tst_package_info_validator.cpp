#include <packagemodel/package_info_utils.h>
#include <packagemodel/package_info_validator.h>

#include "signal_log.h"
#include "text.h"
#include "warning_guard.h"

#include <QSignalSpy>
#include <QTest>

#include <rapidcheck.h>

#include <array>
#include <functional>
#include <memory>

using namespace Zel;

using Edit = std::function<void(PackageInfoModel &package)>;
Q_DECLARE_METATYPE(Edit)

namespace {

constexpr char faultyPackage[] = R"(
    <package format="1" uid="My.App" version="1.0.0">
      <supportedLanguage code="en_US"/><supportedLanguage code="fr_FR"/>
      <robotRequirement model="TERN" minBodyVersion="2" maxBodyVersion="1"/>
      <brioRequirement maxVersion="2"/>
      <behavior path="greet">
        <texts language="en_US"><triggerSentence>hello</triggerSentence></texts>
      </behavior>
      <behavior path="quiet"/>
    </package>)";

} // namespace

class TestPackageInfoValidator : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QCOMPARE(m_warnings.take(), QStringList()); }

    void construction();
    void mendingEachFault();
    void summariesComeFirst();
    void firstTriggerSentence();
    void deactivation();
    void activationWithoutDeactivation();
    void whatIsListenedTo_data();
    void whatIsListenedTo();
    void addedAndRemovedBehaviors();
    void receiversMayRemoveBehaviors();
    void summariesChangeAtTheEdgesOnly();
    void packageGoesFirst();
    void queuedDelivery();
    void flagsEqualAFreshRun();

private:
    WarningGuard m_warnings;
};

void TestPackageInfoValidator::construction() {
    PackageInfoModel package;
    PackageInfoValidator validator(&package);
    SignalLog log(validator);
    package.setUid(text("Upper"));
    QCOMPARE(log.take(), QStringList());
    QVERIFY(!validator.isActive());
    QVERIFY(validator.behaviorInErrors().isEmpty());
}

void TestPackageInfoValidator::mendingEachFault() {
    PackageInfoModel package;
    QVERIFY(package.loadFromManifestContent(faultyPackage));
    BehaviorInfoModel *greet = package.behavior(text("greet"));
    PackageInfoValidator validator(&package);
    SignalLog log(validator);

    validator.activate();
    QCOMPARE(log.take(), lines(R"(
        packageHasErrorsChanged(true)
        applicationUIDStateChanged(false)
        robotRequirementsStateChanged(false)
        brioRequirementsStateChanged(false)
        packageHasWarningsChanged(true)
        applicationNamesStateChanged([en_US], [fr_FR])
        applicationDescriptionsStateChanged([en_US, fr_FR])
        triggerSentencesStateChanged(greet, [fr_FR])
        triggerSentencesStateChanged(quiet, []))"));
    QCOMPARE(validator.behaviorInErrors(), QList<const BehaviorInfoModel *>{greet});

    package.setUid(text("my-app"));
    QCOMPARE(log.take(), lines("applicationUIDStateChanged(true)"));
    package.updateRobotRequirement(0, {text("TERN"), {}, {}, {1}, {2}});
    QCOMPARE(log.take(), lines("robotRequirementsStateChanged(true)"));
    package.updateBrioRequirement(0, {{1}, {2}});
    QCOMPARE(log.take(), lines("brioRequirementsStateChanged(true)"));
    package.setName(text("Hello"), language("en_US"));
    QCOMPARE(log.take(), lines(R"(packageHasErrorsChanged(false)
                                  applicationNamesStateChanged([], [fr_FR]))"));
    package.setName(text("Bonjour"), language("fr_FR"));
    QCOMPARE(log.take(), lines("applicationNamesStateChanged([], [])"));
    package.setDescription(text("a"), language("en_US"));
    QCOMPARE(log.take(), lines("applicationDescriptionsStateChanged([fr_FR])"));
    package.setDescription(text("b"), language("fr_FR"));
    QCOMPARE(log.take(), lines(R"(packageHasWarningsChanged(false)
                                  applicationDescriptionsStateChanged([]))"));
    greet->addTriggerSentence(text("salut"), language("fr_FR"));
    QCOMPARE(log.take(), lines("triggerSentencesStateChanged(greet, [])"));
    QVERIFY(validator.behaviorInErrors().isEmpty());

    package.setUid(text("My.App"));
    QCOMPARE(log.take(), lines(R"(packageHasErrorsChanged(true)
                                  applicationUIDStateChanged(false))"));
}

void TestPackageInfoValidator::summariesComeFirst() {
    PackageInfoModel package;
    QVERIFY(package.loadFromManifestContent(faultyPackage));
    QStringList told;
    using V = PackageInfoValidator;
    for (const auto check :
         {&V::validateUID, &V::validateRobotRequirements, &V::validateBrioRequirements,
          &V::validateApplicationNames, &V::validateApplicationDescriptions}) {
        PackageInfoValidator validator(&package);
        SignalLog log(validator);
        (validator.*check)();
        told += log.take();
    }
    QCOMPARE(told, lines(R"(packageHasErrorsChanged(true)
                            applicationUIDStateChanged(false)
                            packageHasErrorsChanged(true)
                            robotRequirementsStateChanged(false)
                            packageHasErrorsChanged(true)
                            brioRequirementsStateChanged(false)
                            packageHasErrorsChanged(true)
                            packageHasWarningsChanged(true)
                            applicationNamesStateChanged([en_US], [fr_FR])
                            packageHasWarningsChanged(true)
                            applicationDescriptionsStateChanged([en_US, fr_FR]))"));
}

void TestPackageInfoValidator::firstTriggerSentence() {
    PackageInfoModel package;
    QVERIFY(package.loadFromManifestContent(faultyPackage));
    BehaviorInfoModel *quiet = package.behavior(text("quiet"));
    PackageInfoValidator validator(&package);
    validator.activate();
    SignalLog log(validator);
    quiet->addTriggerSentence(text("salut"), language("fr_FR"));
    QCOMPARE(log.take(), lines("triggerSentencesStateChanged(quiet, [en_US])"));
    QVERIFY(validator.behaviorInErrors().contains(quiet));
    quiet->removeTriggerSentence(0, language("fr_FR"));
    QCOMPARE(log.take(), lines("triggerSentencesStateChanged(quiet, [])"));
    QVERIFY(!validator.behaviorInErrors().contains(quiet));
}

void TestPackageInfoValidator::deactivation() {
    PackageInfoModel package;
    QVERIFY(package.loadFromManifestContent(faultyPackage));
    BehaviorInfoModel *greet = package.behavior(text("greet"));
    PackageInfoValidator validator(&package);
    SignalLog log(validator);
    validator.activate();
    const QStringList first = log.take();

    validator.deactivate();
    package.setUid(text("Other.App"));
    greet->setUserRequestable(true);
    QCOMPARE(log.take(), QStringList());
    QVERIFY(!validator.isActive());
    QCOMPARE(validator.behaviorInErrors(), QList<const BehaviorInfoModel *>{greet});
    validator.setPackageErrors(PackageError::InvalidUID, false);
    validator.setPackageWarnings(PackageWarning::MissingNames, false);
    QCOMPARE(log.take(), QStringList()); // the sets were empty

    validator.activate();
    QCOMPARE(log.take(), first);
    package.setUid(text("third.app"));
    QCOMPARE(log.take(), lines("applicationUIDStateChanged(false)"));
}

void TestPackageInfoValidator::activationWithoutDeactivation() {
    PackageInfoModel package;
    QVERIFY(package.loadFromManifestContent(faultyPackage));
    PackageInfoValidator validator(&package);
    validator.activate();
    validator.activate();
    SignalLog log(validator);
    package.setUid(text("my-app"));
    package.behaviors().first()->setUserRequestable(true);
    QCOMPARE(log.take(), lines(R"(applicationUIDStateChanged(true)
                                  applicationUIDStateChanged(true)
                                  triggerSentencesStateChanged(greet, [fr_FR])
                                  triggerSentencesStateChanged(greet, [fr_FR]))"));
    validator.deactivate();
    package.setUid(text("my-app-2"));
    QCOMPARE(log.take(), QStringList());
}

void TestPackageInfoValidator::whatIsListenedTo_data() {
    QTest::addColumn<Edit>("edit");
    QTest::addColumn<QString>("expected");

    const auto row = [](const char *name, const char *expected, const Edit &edit) {
        QTest::newRow(name) << edit << text(expected);
    };
    const auto greet = [](PackageInfoModel &package) { return package.behavior(text("greet")); };
    const RobotLanguage english = language("en_US");
    const RobotLanguage french = language("fr_FR");
    const char *names = "applicationNamesStateChanged([en_US], [fr_FR])";
    const char *triggers = "triggerSentencesStateChanged(greet, [fr_FR])";

    row("robot requirement added", "robotRequirementsStateChanged(false)",
        [](auto &package) { package.addRobotRequirement(); });
    row("robot requirement removed", "robotRequirementsStateChanged(false)",
        [](auto &package) { package.removeRobotRequirement(0); });
    row("brio requirement added", "brioRequirementsStateChanged(false)",
        [](auto &package) { package.addBrioRequirement(); });
    row("brio requirement removed", "brioRequirementsStateChanged(false)",
        [](auto &package) { package.removeBrioRequirement(0); });
    row("names cleared", names, [](auto &package) { package.clearNames(); });
    row("supported language added",
        R"(applicationNamesStateChanged([en_US], [fr_FR, ja_JP])
           applicationDescriptionsStateChanged([en_US, fr_FR, ja_JP]))",
        [](auto &package) { package.addSupportedLanguage(language("ja_JP")); });
    row("supported language removed",
        R"(applicationNamesStateChanged([en_US], [])
           applicationDescriptionsStateChanged([en_US]))",
        [=](auto &package) { package.removeSupportedLanguage(french); });
    row("behavior removed", "", [=](auto &package) { package.removeBehavior(greet(package)); });
    row("user-requestable", triggers,
        [=](auto &package) { greet(package)->setUserRequestable(true); });
    row("sentence inserted", triggers,
        [=](auto &package) { greet(package)->insertTriggerSentence(text("x"), english, 0); });
    row("sentence updated", triggers,
        [=](auto &package) { greet(package)->updateTriggerSentence(0, text("x"), english); });
    row("sentence emptied", "triggerSentencesStateChanged(greet, [])",
        [=](auto &package) { greet(package)->updateTriggerSentence(0, QString(), english); });
    row("what no check reads", "", [=](auto &package) {
        package.setAuthor(text("x"));
        package.addDescriptionLanguage(language("ja_JP"));
        greet(package)->addTag(text("x"), english);
        greet(package)->setPath(text("y"));
    });
}

void TestPackageInfoValidator::whatIsListenedTo() {
    QFETCH(Edit, edit);
    QFETCH(QString, expected);
    PackageInfoModel package;
    QVERIFY(package.loadFromManifestContent(faultyPackage));
    PackageInfoValidator validator(&package);
    validator.activate();
    SignalLog log(validator);
    edit(package);
    QCOMPARE(log.take(), lines(expected.toUtf8().constData()));
}

void TestPackageInfoValidator::addedAndRemovedBehaviors() {
    PackageInfoModel package;
    QVERIFY(package.loadFromManifestContent(faultyPackage));
    PackageInfoValidator validator(&package);
    validator.activate();
    SignalLog log(validator);

    Tano::BehaviorInfo added;
    added.setPath("added");
    added.addTriggerSentence("hello", "en_US");
    package.addBehavior(added);
    QCOMPARE(log.take(), QStringList());
    package.behavior(text("added"))->setUserRequestable(true);
    QCOMPARE(log.take(), lines("triggerSentencesStateChanged(added, [fr_FR])"));

    // The removed one lives on for a while, and stays listed.
    auto *greet = new BehaviorInfoModel(*package.behavior(text("greet")));
    package.clearBehaviors();
    package.addBehavior(greet);
    greet->setUserRequestable(true);
    log.take();
    QCOMPARE(validator.behaviorInErrors().count(greet), 1);
    connect(&package, &PackageInfoModel::behaviorRemoved, this,
            [&](BehaviorInfoModel *removed) { removed->setUserRequestable(false); });
    package.removeBehavior(greet);
    QCOMPARE(log.take(), QStringList());
    QCOMPARE(validator.behaviorInErrors().count(greet), 1);
}

void TestPackageInfoValidator::receiversMayRemoveBehaviors() {
    PackageInfoModel package;
    QVERIFY(package.loadFromManifestContent(faultyPackage));
    PackageInfoValidator validator(&package);
    SignalLog log(validator);
    connect(&validator, &PackageInfoValidator::triggerSentencesStateChanged, this,
            [&] { package.clearBehaviors(); });
    validator.validateBehaviorTriggerSentences();
    QCOMPARE(log.take(), lines("triggerSentencesStateChanged(greet, [fr_FR])"));
}

void TestPackageInfoValidator::summariesChangeAtTheEdgesOnly() {
    PackageInfoModel package;
    PackageInfoValidator validator(&package);
    SignalLog log(validator);
    validator.setPackageErrors(PackageError::InvalidUID, true);
    validator.setPackageErrors(PackageError::InvalidUID, true);
    validator.setPackageErrors(PackageError::InvalidBrioRequirements, true);
    validator.setPackageErrors(PackageError::InvalidUID, false);
    QCOMPARE(log.take(), lines("packageHasErrorsChanged(true)"));
    validator.setPackageWarnings(PackageWarning::MissingDescriptions, true);
    validator.setPackageErrors(PackageError::InvalidBrioRequirements, false);
    validator.setPackageWarnings(PackageWarning::MissingNames, false);
    QCOMPARE(log.take(), lines(R"(packageHasWarningsChanged(true)
                                  packageHasErrorsChanged(false))"));
    validator.setPackageWarnings(PackageWarning::MissingDescriptions, false);
    QCOMPARE(log.take(), lines("packageHasWarningsChanged(false)"));
}

void TestPackageInfoValidator::packageGoesFirst() {
    auto package = std::make_unique<PackageInfoModel>();
    QVERIFY(package->loadFromManifestContent(faultyPackage));
    PackageInfoValidator validator(package.get());
    validator.activate();
    package.reset();
    SignalLog log(validator);
    validator.validateTriggerSentences(nullptr);
    validator.validateBehaviorTriggerSentences();
    validator.deactivate();
    validator.activate();
    QCOMPARE(log.take(), QStringList());
}

void TestPackageInfoValidator::queuedDelivery() {
    PackageInfoModel package;
    QVERIFY(package.loadFromManifestContent(faultyPackage));
    PackageInfoValidator validator(&package);
    SignalLog log;
    log.watch(validator, {}, Qt::QueuedConnection);
    validator.validateBehaviorTriggerSentences();
    QCOMPARE(log.take(), QStringList());
    QCoreApplication::sendPostedEvents();
    QCOMPARE(log.take(), lines(R"(triggerSentencesStateChanged(greet, [fr_FR])
                                  triggerSentencesStateChanged(quiet, []))"));
}

namespace {

// What a listener knows who has only ever heard the notifications.
struct Heard {
    bool uid = false;
    bool robot = false;
    bool brio = false;
    bool errors = false;
    bool warnings = false;
    QStringList missing; // languages of names and descriptions
    std::map<const BehaviorInfoModel *, RobotLanguages> triggers;

    void listen(PackageInfoValidator &validator) {
        using V = PackageInfoValidator;
        const auto keep = [&](auto signal, bool &flag) {
            QObject::connect(&validator, signal, &validator, [&flag](bool value) { flag = value; });
        };
        keep(&V::applicationUIDStateChanged, uid);
        keep(&V::robotRequirementsStateChanged, robot);
        keep(&V::brioRequirementsStateChanged, brio);
        keep(&V::packageHasErrorsChanged, errors);
        keep(&V::packageHasWarningsChanged, warnings);
        missing = QStringList{{}, {}, {}};
        QObject::connect(&validator, &V::applicationNamesStateChanged, &validator,
                         [this](const RobotLanguages &inDefault, const RobotLanguages &others) {
                             missing[0] = SignalLog::print(inDefault);
                             missing[1] = SignalLog::print(others);
                         });
        QObject::connect(&validator, &V::applicationDescriptionsStateChanged, &validator,
                         [this](const RobotLanguages &l) { missing[2] = SignalLog::print(l); });
        QObject::connect(&validator, &V::triggerSentencesStateChanged, &validator,
                         [this](const BehaviorInfoModel *behavior, const RobotLanguages &l) {
                             triggers[behavior] = l;
                         });
    }
};

// One random edit of anything that a check reads, and of some that none does.
void editAtRandom(PackageInfoModel &package, PackageInfoValidator &validator) {
    static const std::array<const char *, 4> codes{"en_US", "fr_FR", "ja_JP", "xx_YY"};
    static const std::array<const char *, 4> texts{"", "", "tea", "Tea time"};
    const auto any = [](int count) { return *rc::gen::inRange(0, count); };
    const RobotLanguage language = robotLanguage(text(codes.at(std::size_t(any(4)))));
    const QString value = text(texts.at(std::size_t(any(4))));
    const auto version = [&] {
        const int major = any(3);
        return major == 0 ? SoftwareVersion() : SoftwareVersion{std::uint32_t(major)};
    };
    const auto robot = [&] {
        return RobotRequirement{value, version(), version(), version(), version()};
    };
    const auto brio = [&] { return BrioRequirement{version(), version()}; };
    const auto behaviors = package.behaviors();
    BehaviorInfoModel *behavior =
        behaviors.isEmpty() ? nullptr : behaviors.at(any(behaviors.size()));

    switch (any(17)) {
    case 0:
        return package.setUid(value);
    case 1:
        return package.setName(value, language);
    case 2:
        return package.setDescription(value, language);
    case 3:
        return package.clearNames();
    case 4:
        package.addSupportedLanguage(language);
        break;
    case 5:
        package.removeSupportedLanguage(language);
        break;
    case 6:
        return package.addRobotRequirement(robot());
    case 7:
        package.updateRobotRequirement(any(2), robot());
        return;
    case 8:
        package.removeRobotRequirement(any(2));
        return;
    case 9:
        return package.addBrioRequirement(brio());
    case 10:
        package.updateBrioRequirement(any(2), brio());
        return;
    case 11:
        package.removeBrioRequirement(any(2));
        return;
    case 12:
        package.addBehavior(text("b") % QString::number(any(3)));
        break;
    case 13:
        if (behavior)
            behavior->addTriggerSentence(value, language);
        return;
    case 14:
        if (behavior)
            behavior->updateTriggerSentence(any(2), value, language);
        return;
    case 15:
        if (behavior)
            behavior->removeTriggerSentence(any(2), language);
        return;
    default:
        if (behavior)
            package.removeBehavior(behavior);
        return;
    }
    // A change of the supported languages, and a new behavior, leave the sentences unchecked.
    validator.validateBehaviorTriggerSentences();
}

// What the notifications have told equals what the checks say now.
void expectFresh(const PackageInfoModel &package, const PackageInfoValidator &validator,
                 const Heard &heard) {
    QStringList messages;
    RC_ASSERT(heard.uid == PackageModel::validatePackageUID(&package, messages));
    RC_ASSERT(heard.robot == PackageModel::validateRobotRequirements(&package, messages));
    RC_ASSERT(heard.brio == PackageModel::validateBrioRequirements(&package, messages));
    RobotLanguages inDefault;
    RobotLanguages others;
    RobotLanguages descriptions;
    PackageModel::validateApplicationNames(&package, inDefault, others);
    PackageModel::validateApplicationDescriptions(&package, descriptions);
    RC_ASSERT((heard.missing == QStringList{SignalLog::print(inDefault), SignalLog::print(others),
                                            SignalLog::print(descriptions)}));
    RC_ASSERT(heard.errors == !(heard.uid && heard.robot && heard.brio && inDefault.empty()));
    RC_ASSERT(heard.warnings == !(others.empty() && descriptions.empty()));

    const auto listed = validator.behaviorInErrors();
    const auto behaviors = package.behaviors();
    for (const BehaviorInfoModel *behavior : behaviors) {
        RobotLanguages missing;
        PackageModel::validateTriggerSentences(&package, behavior, missing);
        const auto told = heard.triggers.find(behavior);
        RC_ASSERT(told != heard.triggers.end() && told->second == missing);
        RC_ASSERT(listed.contains(behavior) == !missing.empty());
    }
}

// The issues, with those that differ in their language only taken together, are the messages.
void expectIssuesAsMessages(const PackageInfoModel &package) {
    std::array<QStringList, 2> told; // warnings, errors
    std::array<QString, 2> last;     // the beginning of the message that a language is added to
    const auto issues = PackageModel::issues(&package);
    for (const auto &issue : issues) {
        const auto kind = std::size_t(issue.severity);
        const int colon = issue.text.lastIndexOf(text(" for: "));
        const QString beginning = colon < 0 ? QString() : issue.text.left(colon);
        const QString language = issue.text.mid(colon + 6);
        if (colon >= 0 && last.at(kind) == beginning && !told.at(kind).isEmpty())
            told.at(kind).last() +=
                QLatin1String(language.isEmpty() || told.at(kind).last().endsWith(u' ') ? ""
                                                                                        : ", ") %
                language;
        else
            told.at(kind).append(issue.text);
        last.at(kind) = beginning;
    }
    QStringList errors;
    QStringList warnings;
    RC_ASSERT(PackageModel::validate(&package, errors, warnings) == issues.isEmpty());
    RC_ASSERT(told.at(0) == warnings);
    RC_ASSERT(told.at(1) == errors);
}

} // namespace

void TestPackageInfoValidator::flagsEqualAFreshRun() {
    const bool holds = rc::check("live flags equal a fresh run, and issues the messages", [] {
        PackageInfoModel package;
        if (*rc::gen::arbitrary<bool>())
            RC_ASSERT(package.loadFromManifestContent(faultyPackage));
        PackageInfoValidator validator(&package);
        Heard heard;
        heard.listen(validator);
        validator.activate();
        const int edits = *rc::gen::inRange(1, 60);
        for (int i = 0; i < edits; ++i) {
            editAtRandom(package, validator);
            expectFresh(package, validator, heard);
            expectIssuesAsMessages(package);
        }
    });
    QVERIFY(holds);
}

QTEST_GUILESS_MAIN(TestPackageInfoValidator)

#include "tst_package_info_validator.moc"
