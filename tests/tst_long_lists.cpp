#include "text.h"
#include "warning_guard.h"

#include <packagemodel/package_info_model.h>
#include <packagemodel/package_info_utils.h>

#include <QTest>

#include <atomic>
#include <cstdlib>
#include <new>
#include <random>

using namespace Zel;

namespace {

// Counts calls of operator new: nodes of maps, vectors, and the records' texts beyond 15 bytes.
std::atomic<long> allocations{0};

} // namespace

// NOLINTBEGIN(misc-new-delete-overloads,cppcoreguidelines-no-malloc)
void *operator new(std::size_t size) {
    ++allocations;
    if (void *block = std::malloc(size))
        return block;
    throw std::bad_alloc();
}
void *operator new(std::size_t size, const std::nothrow_t &) noexcept {
    ++allocations;
    return std::malloc(size);
}
void operator delete(void *block) noexcept {
    std::free(block);
}
void operator delete(void *block, std::size_t) noexcept {
    std::free(block);
}
// NOLINTEND(misc-new-delete-overloads,cppcoreguidelines-no-malloc)

namespace {

RobotLanguage numbered(int number) {
    return {ISOCode(text("n%1").arg(number)), NuanceCode()};
}

std::vector<std::string> codesOf(const RobotLanguages &languages) {
    std::vector<std::string> codes;
    for (const RobotLanguage &language : languages)
        codes.push_back(toUtf8(language.isoCode()));
    return codes;
}

QString longText(int number) {
    return text("a text that has a block of its own %1").arg(number);
}

// Supports `count` languages; has a behavior with one trigger sentence in each and `count` in the
// first, and `count` dialogs and requirements.
Tano::PackageInfo packageOf(int count) {
    Tano::PackageInfo package;
    Tano::BehaviorInfo behavior;
    for (int i = 0; i < count; ++i) {
        const std::string code = toUtf8(numbered(i).isoCode());
        const std::string value = toUtf8(longText(i));
        package.addSupportedLanguage(code);
        behavior.setName(value, code);
        behavior.addTriggerSentence(value, code);
        behavior.addTriggerSentence(value, "n0");
        behavior.addCondition(value, "launch");
        package.addRobotRequirement({value, {}, {}, {}, {}});
        Tano::DialogInfo dialog;
        dialog.setTopicName(value);
        dialog.setTopic(code, value);
        package.addDialog(dialog);
    }
    package.addBehavior(behavior);
    return package;
}

using Operation = void (*)(PackageInfoModel &package, int count);

} // namespace
Q_DECLARE_METATYPE(Operation)

class TestLongLists : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_warnings.watch(); }
    void cleanup() { QCOMPARE(m_warnings.take(), QStringList()); }

    // The writer estimates the size of a list from its first entries.
    void unevenListsTakeLittleMemory() {
        Tano::PackageInfo record;
        for (int i = 0; i < 3000; ++i) {
            Tano::BehaviorInfo behavior;
            behavior.setPath(std::to_string(i));
            if (i == 0)
                behavior.setDescription(std::string(std::size_t(4) << 20, 'x'), "en_US");
            record.addBehavior(behavior);
        }
        const std::string written = record.saveToManifestContent();
        QVERIFY(written.capacity() - written.size() <= std::size_t(64) << 20);
    }

    // Additions, removals and lookups in random order, with occasional reads of the whole list.
    void languagesInOrder() {
        std::mt19937 random(1);
        PackageInfoModel package;
        RobotLanguages expected;
        for (int step = 0; step < 2000; ++step) {
            const RobotLanguage language = numbered(int(random() % 60));
            const auto found = std::find(expected.begin(), expected.end(), language);
            QCOMPARE(package.hasLanguageSupport(language), found != expected.end());
            if (random() % 5 < 2) {
                package.removeSupportedLanguage(language);
                if (found != expected.end())
                    expected.erase(found);
            } else {
                package.addSupportedLanguage(language);
                if (found == expected.end())
                    expected.push_back(language);
            }
            if (random() % 4 == 0)
                QVERIFY(package.supportedLanguages() == expected);
            if (random() % 4 == 0)
                QCOMPARE(package.packageInfo().supportedLanguages(), codesOf(expected));
        }
        QVERIFY(package.supportedLanguages() == expected);
        QVERIFY(expected.size() > 20);
    }

    void duplicatesAreRefused_data() {
        QTest::addColumn<bool>("areConditions");
        QTest::newRow("tags") << false;
        QTest::newRow("conditions") << true;
    }
    void duplicatesAreRefused() {
        QFETCH(const bool, areConditions);
        BehaviorInfoModel behavior{Tano::BehaviorInfo()};
        const RobotLanguage english = robotLanguage(text("en_US"));
        const QString purpose = text("launch");
        const auto add = [&](const char *value) {
            return areConditions ? behavior.addCondition(text(value), purpose)
                                 : behavior.addTag(text(value), english);
        };
        for (int i = 0; i < 40; ++i)
            QVERIFY(add(QByteArray::number(i).constData()));
        QVERIFY(!add("39"));
        QVERIFY(areConditions ? behavior.updateCondition(3, text("x"), purpose)
                              : behavior.updateTag(3, text("x"), english));
        QVERIFY(!add("x"));
        QVERIFY(add("3"));
        QVERIFY(areConditions ? behavior.removeCondition(0, purpose)
                              : behavior.removeTag(0, english));
        QVERIFY(add("0") && !add("0"));
        QVERIFY(areConditions ? behavior.insertCondition(text("y"), purpose, 0)
                              : behavior.insertTag(text("y"), english, 0));
        QVERIFY(!add("y"));
        behavior.trimExtraInfo({}, {});
        QCOMPARE(add("7"), !areConditions);
    }

    void unusedLanguagesAreForgotten() {
        const auto isKnown = [](const QString &code) {
            return !robotLanguage(code).isoCode().isEmpty();
        };
        PackageInfoModel other;
        for (int load = 0; load < 3; ++load) {
            Tano::PackageInfo record;
            record.setName("x", "shared");
            record.addSupportedLanguage("load" + std::to_string(load));
            PackageInfoModel package;
            QVERIFY(package.loadFromManifestContent(
                QByteArray::fromStdString(record.saveToManifestContent())));
            QVERIFY(isKnown(text("load%1").arg(load)) && isKnown(text("shared")));
            if (load == 1)
                other = package;
        }
        QVERIFY(!isKnown(text("load0")) && !isKnown(text("load2")));
        QVERIFY(isKnown(text("load1")) && isKnown(text("shared")));
        other.clear();
        QVERIFY(!isKnown(text("load1")) && !isKnown(text("shared")));
    }

    // Four times the entries need about four times the allocations, not sixteen times.
    void allocationsAreLinear_data() {
        QTest::addColumn<Operation>("operation");
        const auto row = [](const char *name, Operation operation) {
            QTest::newRow(name) << operation;
        };
        row("plain text", [](auto &package, int) { package.genPlainTextFromScript(); });
        row("trim", [](auto &package, int) { package.trimExtraInfo(); });
        row("issues",
            [](auto &package, int) { QVERIFY(!PackageModel::issues(&package).isEmpty()); });
        row("copy", [](auto &package, int) { const PackageInfoModel copy(package); });
        row("clear", [](auto &package, int) { package.clear(); });
        row("conditions", [](auto &package, int count) {
            for (int i = 0; i < count; ++i)
                package.behaviors().constFirst()->addCondition(longText(-1 - i), text("launch"));
        });
        row("names", [](auto &package, int count) {
            for (int i = 0; i < count; ++i)
                package.behaviors().constFirst()->setName(text("new"), numbered(i));
        });
        row("requirements", [](auto &package, int count) {
            for (int i = 0; i < count; ++i)
                package.updateRobotRequirement(i, {});
        });
    }
    void allocationsAreLinear() {
        QFETCH(const Operation, operation);
        const auto taken = [&](int count) {
            PackageInfoModel package(packageOf(count));
            const long before = allocations;
            operation(package, count);
            return allocations - before;
        };
        taken(10); // allocates what is created only once
        const long few = taken(100);
        const long many = taken(400);
        QVERIFY2(many < 6 * few + 100, qPrintable(text("%1, %2").arg(few).arg(many)));
    }

private:
    WarningGuard m_warnings;
};

QTEST_MAIN(TestLongLists)
#include "tst_long_lists.moc"
