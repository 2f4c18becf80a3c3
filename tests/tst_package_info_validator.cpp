#include <packagemodel/package_info_utils.h>
#include <packagemodel/package_info_validator.h>

#include "signal_log.h"
#include "text.h"
#include "warning_guard.h"

#include <QTest>

#include <rapidcheck.h>

#include <array>
#include <map>

using namespace Zel;

namespace {

const QByteArray faultyPackage = testData(text("transcripts/faulty.xml"));

} // namespace

class TestPackageInfoValidator : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_warnings.watch(); }
    void cleanup() { QCOMPARE(m_warnings.take(), QStringList()); }

    void removedBehaviorsAreHeardNoMore();
    void flagsEqualAFreshRun();

private:
    WarningGuard m_warnings;
};

void TestPackageInfoValidator::removedBehaviorsAreHeardNoMore() {
    PackageInfoModel package;
    QVERIFY(package.loadFromManifestContent(faultyPackage));
    PackageInfoValidator validator(&package);
    validator.activate();
    QVERIFY(validator.isActive());
    SignalLog log(validator);
    // A removed behavior lives on for a while and stays in the list.
    connect(&package, &PackageInfoModel::behaviorRemoved, this, [&](BehaviorInfoModel *removed) {
        removed->setUserRequestable(true);
        QCOMPARE(validator.behaviorInErrors().count(removed), 1);
    });
    package.removeBehavior(text("greet"));
    QCOMPARE(log.take(), QStringList());
    QCOMPARE(validator.behaviorInErrors().size(), 1);
}

namespace {

// The state known to a listener that only receives notifications.
struct Heard {
    bool uid = false;
    bool robot = false;
    bool brio = false;
    bool errors = false;
    bool warnings = false;
    QStringList missing; // languages without names and descriptions
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

// One random edit of something that a check reads, or that no check reads.
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
        behaviors.isEmpty() ? nullptr : behaviors.at(any(int(behaviors.size())));

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
    // Changing supported languages and adding behaviors do not trigger the check of sentences.
    validator.validateBehaviorTriggerSentences();
}

// The state according to the notifications equals the current results of the checks.
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
        const auto announced = heard.triggers.find(behavior);
        RC_ASSERT(announced != heard.triggers.end() && announced->second == missing);
        RC_ASSERT(listed.contains(behavior) == !missing.empty());
    }
}

} // namespace

void TestPackageInfoValidator::flagsEqualAFreshRun() {
    const bool holds = rc::check("live flags equal a fresh run", [] {
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
        }
    });
    QVERIFY(holds);
}

QTEST_GUILESS_MAIN(TestPackageInfoValidator)

#include "tst_package_info_validator.moc"
