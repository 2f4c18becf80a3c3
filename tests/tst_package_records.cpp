#include <tano/package_info.h>

#include <QTest>

using Tano::BehaviorInfo;
using Tano::DialogInfo;
using Tano::PackageInfo;
using Strings = std::vector<std::string>;

class TestPackageRecords : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void copiesAreIndependent() {
        BehaviorInfo behavior;
        behavior.setPath("greet");
        behavior.addTag("x", "en_US");
        PackageInfo package;
        package.addBehavior(behavior);
        PackageInfo copy = package;
        QCOMPARE(copy, package);

        behavior.addTag("y", "en_US");
        QVERIFY(copy.replaceBehavior(0, behavior));
        copy.setAuthor("Ada");
        QCOMPARE(package.author(), std::string());
        QCOMPARE(package.behaviors()[0].languagesToTags().at("en_US"), Strings{"x"});
        QVERIFY(copy != package);

        PackageInfo moved = std::move(copy);
        copy =
            PackageInfo(); // NOLINT(bugprone-use-after-move): a moved-from record is a default one
        QCOMPARE(moved.author(), std::string("Ada"));
        QCOMPARE(copy, PackageInfo());
    }

    void entriesOutsideTheListChangeNothing() {
        PackageInfo package;
        package.addDialog({});
        package.addService({"s", {}, false, {}});
        const PackageInfo before = package;
        for (const int index : {-1, 1, 7}) {
            QVERIFY(!package.replaceBehavior(index, {}));
            QVERIFY(!package.removeBehavior(index));
            QVERIFY(!package.replaceDialog(index, {}));
            QVERIFY(!package.removeDialog(index));
            QVERIFY(!package.replaceService(index, {}));
            QVERIFY(!package.removeService(index));
        }
        QCOMPARE(package, before);
    }

    void languagesStandOnce() {
        PackageInfo package;
        for (const char *code : {"fr_FR", "en_US", "fr_FR"})
            package.addSupportedLanguage(code);
        QCOMPARE(package.supportedLanguages(), (Strings{"fr_FR", "en_US"}));
        package.removeSupportedLanguage("de_DE");
        package.removeSupportedLanguage("fr_FR");
        QCOMPARE(package.supportedLanguages(), Strings{"en_US"});
    }

    void trimmingKeepsWhatTheLanguagesOffer() {
        BehaviorInfo behavior;
        for (const char *code : {"de_DE", "en_US", "fr_FR"}) {
            behavior.setName("n", code);
            behavior.setDescription("d", code);
            behavior.addTag("t", code);
            behavior.addTriggerSentence("s", code);
            behavior.addLoadingResponse("r", code);
            behavior.addCondition("c", code); // a purpose, not a language
        }
        behavior.trimExtraInfo({"en_US", "fr_FR"}, {"fr_FR"});

        const auto keys = [](const auto &map) {
            Strings keys;
            for (const auto &entry : map)
                keys.push_back(entry.first);
            return keys;
        };
        QCOMPARE(keys(behavior.names()), (Strings{"en_US", "fr_FR"}));
        QCOMPARE(keys(behavior.descriptions()), (Strings{"en_US", "fr_FR"}));
        QCOMPARE(keys(behavior.languagesToTags()), Strings{"fr_FR"});
        QCOMPARE(keys(behavior.languagesToTriggerSentences()), Strings{"fr_FR"});
        QCOMPARE(keys(behavior.languagesToLoadingResponses()), Strings{"fr_FR"});
        QCOMPARE(behavior.purposesToConditions().size(), std::size_t(3));
    }

    void mentionsEveryLanguageCode() {
        PackageInfo package;
        package.addSupportedLanguage("a1");
        package.addDescriptionLanguage("a2");
        package.setName("n", "a3");
        package.setDescription("d", "a4");
        BehaviorInfo behavior;
        behavior.setName("n", "b1");
        behavior.setDescription("d", "b2");
        behavior.addTag("t", "b3");
        behavior.addTriggerSentence("s", "b4");
        behavior.addLoadingResponse("r", "b5");
        behavior.addCondition("c", "purpose");
        package.addBehavior(behavior);
        DialogInfo dialog;
        dialog.setTopic("c1", "path");
        package.addDialog(dialog);
        QCOMPARE(package.languageCodes(), (std::set<std::string>{"a1", "a2", "a3", "a4", "b1", "b2",
                                                                 "b3", "b4", "b5", "c1"}));
    }
};

QTEST_GUILESS_MAIN(TestPackageRecords)
#include "tst_package_records.moc"
