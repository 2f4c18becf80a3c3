#include "golden.h"
#include "signal_log.h"
#include "warning_guard.h"

#include <packagemodel/package_scripts.h>

#include <QFile>
#include <QTest>

using namespace Zel;

namespace {

RobotLanguage language(const char *code) {
    return robotLanguage(QString::fromUtf8(code));
}

// The reports about the two malformed scripts of source.xml.
const QString openParagraph =
    QStringLiteral("genPlainTextValues: Could not generate plain text value properly: Line 1, "
                   "column 12: The script ends while <p> is open.");
const QString badRepeat =
    QStringLiteral("genPlainTextFromScript: Could not generate plain text value properly: Line 1, "
                   "column 1: The repeat \"-1\" is malformed; it is a number, or a range such as "
                   "0-1 or 1-.");

const QString trimmed = QStringLiteral(ZEL_TEST_DATA "/publication/trimmed.xml");

QByteArray contentOf(const char *name) {
    QFile file(QStringLiteral(ZEL_TEST_DATA "/publication/") % QLatin1String(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

std::vector<Tano::BehaviorInfo> recordsOf(const QVector<BehaviorInfoModel *> &behaviors) {
    std::vector<Tano::BehaviorInfo> records;
    for (const BehaviorInfoModel *behavior : behaviors)
        records.push_back(behavior->toBehaviorInfo());
    return records;
}

// The values in a cache, like "en_US:Tea".
QString printed(const Language::LocalizedStrings &values) {
    QStringList texts;
    for (const auto &[text, itsLanguage] : values)
        texts += itsLanguage.isoCode() % u':' % text;
    return texts.join(u' ');
}

} // namespace

class TestPublication : public QObject {
    Q_OBJECT

private:
    PackageInfoModel m_package;
    WarningGuard m_warnings;

private Q_SLOTS:
    // The package supports English, French and a script variant, has German descriptions, and
    // contains texts in Dutch, which it does not list.
    void init() {
        m_warnings.watch();
        QVERIFY(m_package.loadFromManifestContent(contentOf("source.xml")));
    }
    void cleanup() { QCOMPARE(m_warnings.take(), QStringList()); }

    void trims() {
        Tano::PackageInfo record = m_package.packageInfo();
        record.trimExtraInfo();
        COMPARE_WITH_GOLDEN(trimmed, QByteArray::fromStdString(record.saveToManifestContent()));

        const BehaviorInfoModel *pour = m_package.behaviors().at(0);
        SignalLog log(m_package);
        log.watch(*m_package.behaviors().at(0));
        m_package.trimExtraInfo();
        QCOMPARE(log.take(), QStringList());
        COMPARE_WITH_GOLDEN(trimmed, m_package.saveToManifestContent());
        QCOMPARE(printed(m_package.names()),
                 QStringLiteral("de_DE:Tee en_US:Tea<break/>time ja_JP-x-scrpol:<p>"));
        QCOMPARE(printed(m_package.descriptions()), QStringLiteral("en_US:One <p>open"));
        QCOMPARE(printed(pour->names()), QStringLiteral("en_US:Pour & drink"));
        QCOMPARE(pour->languagesToTags().size(), std::size_t(1));
        QCOMPARE(pour->languagesToTriggerSentences().size(), std::size_t(2));
        QCOMPARE(pour->languagesToLoadingResponses().size(), std::size_t(1));
    }

    // A receiver adds sentences in languages before and after the one being converted.
    void listsAddedMeanwhile() {
        Tano::PackageInfo record;
        Tano::BehaviorInfo info;
        for (const char *code : {"de_DE", "en_US", "fr_FR", "it_IT"})
            record.addSupportedLanguage(code);
        info.addTriggerSentence("gone", "cs_CZ");
        info.addTriggerSentence("gone", "de_DE");
        info.addTriggerSentence("one<break/>1", "en_US");
        record.addBehavior(info);
        PackageInfoModel package(record);
        BehaviorInfoModel *behavior = package.behaviors().constFirst();
        connect(behavior, &BehaviorInfoModel::triggerSentenceUpdated, this,
                [&](int, const QString &, const RobotLanguage &updated) {
                    if (updated != language("en_US"))
                        return;
                    behavior->removeTriggerSentence(0, language("cs_CZ"));
                    behavior->removeTriggerSentence(0, language("de_DE"));
                    for (const char *code : {"it_IT", "de_DE", "fr_FR"})
                        behavior->addTriggerSentence(QStringLiteral("two<break/>2"),
                                                     language(code));
                });
        package.genPlainTextFromScript();
        QStringList texts;
        for (const char *code : {"de_DE", "en_US", "fr_FR", "it_IT", "fr_FR-x-scrpol"}) {
            texts += behavior->triggerSentences({ISOCode(QLatin1String(code)), NuanceCode()});
        }
        QCOMPARE(texts.join(u'|'), QStringLiteral("two<break/>2|one 1|two 2|two 2|two<break/>2"));
    }

    // An insertion and a change with blocked signals wait for the next change, such as trimming.
    void recordAndModelsAgree() {
        const auto behaviors = m_package.behaviors();
        behaviors.at(0)->insertTag(QStringLiteral("hot"), language("en_US"), 0);
        behaviors.at(1)->blockSignals(true);
        behaviors.at(1)->setName(QStringLiteral("Wacht"), language("nl_NL"));
        behaviors.at(1)->setPath(QStringLiteral("sit"));
        m_package.trimExtraInfo();
        QVERIFY(m_package.packageInfo().behaviors() == recordsOf(behaviors));
        QVERIFY(behaviors.at(1)->names().empty());
        m_package.clearBehaviors();
        m_package.trimExtraInfo();
        QVERIFY(m_package.packageInfo().behaviors().empty());
    }

    void generatesPlainText() {
        SignalLog log;
        log.watch(m_package);
        for (BehaviorInfoModel *behavior : m_package.behaviors())
            log.watch(*behavior, behavior->path());
        m_package.trimExtraInfo();
        m_package.genPlainTextFromScript();
        QCOMPARE(log.take(), lines(R"x(
            nameUpdated("Tee", de_DE-x-scrpol)
            nameUpdated("Tea<break/>time", en_US-x-scrpol)
            nameUpdated("Tea time", en_US)
            descriptionUpdated("One <p>open", en_US-x-scrpol)
            pour.behaviorNameUpdated("Pour & drink", en_US-x-scrpol)
            pour.behaviorDescriptionUpdated("<s>Gießt.</s>", de_DE-x-scrpol)
            pour.behaviorDescriptionUpdated("Gießt.", de_DE)
            pour.triggerSentenceAdded("<item repeat="0-1">please</item> pour", en_US-x-scrpol)
            pour.triggerSentenceUpdated(0, "please pour", en_US)
            pour.triggerSentenceAdded("<item repeat="-1">now</item>", en_US-x-scrpol)
            pour.loadingResponseAdded("<sub alias="x">1</sub>.", en_US-x-scrpol)
            pour.loadingResponseUpdated(0, "1.", en_US)
        )x"));
        QCOMPARE(m_warnings.take(), QStringList({openParagraph, badRepeat}));
        QVERIFY(m_package.packageInfo().behaviors() == recordsOf(m_package.behaviors()));

        const RobotLanguage variant = m_package.names().back().second;
        QCOMPARE(variant.isoCode(), QStringLiteral("en_US-x-scrpol"));
        const RobotLanguage english = language("en_US");
        QCOMPARE(variant.name(), english.name());
        QCOMPARE(variant.englishName(), english.englishName());
        QCOMPARE(variant.nativeName(), english.nativeName());
        QCOMPARE(variant.nuanceCode(), english.nuanceCode());
        QVERIFY(variant.version() == english.version());
        QVERIFY(!m_package.hasLanguageDescription(variant));
    }

    // Texts that are already plain replace the scripts; lists of scripts are extended by them.
    void generatesAgain() {
        m_package.genPlainTextFromScript();
        m_package.genPlainTextFromScript();
        QCOMPARE(m_warnings.take(),
                 QStringList({openParagraph, badRepeat, openParagraph, badRepeat}));
        const RobotLanguage variant = m_package.names().back().second;
        const BehaviorInfoModel *pour = m_package.behaviors().at(0);
        QCOMPARE(m_package.name(language("en_US")), QStringLiteral("Tea time"));
        QCOMPARE(m_package.name(language("ja_JP-x-scrpol")), QStringLiteral("<p>"));
        QCOMPARE(pour->loadingResponses(
                     RobotLanguage(ISOCode(QStringLiteral("en_US-x-scrpol")), NuanceCode())),
                 QStringList({QStringLiteral("<sub alias=\"x\">1</sub>."), QStringLiteral("1.")}));
        QVERIFY(variant.isoCode().endsWith(PackageModel::k_sa.text()));
    }

    void receiversMayRemoveBehaviors() {
        const auto publish = [](auto amid) {
            PackageInfoModel package;
            QVERIFY(package.loadFromManifestContent(contentOf("source.xml")));
            connect(package.behaviors().at(0), amid, &package,
                    [&] { package.removeBehavior(QStringLiteral("pour")); });
            package.genPlainTextFromScript();
            QCOMPARE(package.behaviors().size(), 1);
        };
        publish(&BehaviorInfoModel::triggerSentenceAdded);
        QCOMPARE(m_warnings.take(), QStringList({openParagraph, badRepeat}));
        publish(&BehaviorInfoModel::behaviorDescriptionUpdated);
        QCOMPARE(m_warnings.take(), QStringList(openParagraph));
    }

    void listsErrors() {
        QStringList errors;
        const auto all = PackageModel::scriptErrors(&m_package);
        for (const auto &error : all)
            errors += error.path % u' ' % error.text.left(17);
        QCOMPARE(errors,
                 QStringList({QStringLiteral("descriptions[en_US] Line 1, column 12"),
                              QStringLiteral("behaviors[pour].triggerSentences[en_US][1] Line 1, "
                                             "column 1:")}));
        QVERIFY(PackageModel::scriptErrors(nullptr).isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestPublication)
#include "tst_publication.moc"
