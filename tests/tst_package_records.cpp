#include <tano/package_info.h>

#include "record_data.h" // the private members

#include <QTest>

using Tano::BehaviorInfo;
using Tano::DialogInfo;
using Tano::PackageInfo;
using Strings = std::vector<std::string>;

namespace {

// Bindings to all members of each record: a new member does not compile until it is listed.

auto members(Tano::RobotRequirement &r) {
    auto &[a, b, c, d, e] = r;
    return std::tie(a, b, c, d, e);
}
auto members(Tano::BrioRequirement &r) {
    auto &[a, b] = r;
    return std::tie(a, b);
}
auto members(Tano::PackageService &r) {
    auto &[a, b, c, d] = r;
    return std::tie(a, b, c, d);
}
auto members(BehaviorInfo &r) {
    auto &[a, b, c, d, e, f, g, h, i, j, k] = Tano::RecordAccess::edit(r);
    return std::tie(a, b, c, d, e, f, g, h, i, j, k);
}
auto members(DialogInfo &r) {
    auto &[a, b, c, d] = Tano::RecordAccess::edit(r);
    return std::tie(a, b, c, d);
}
auto members(PackageInfo &r) {
    auto &[a, b, c, d, e, f, g, h, i, j, k, l, m, n, o, p, q, t, u] = Tano::RecordAccess::edit(r);
    return std::tie(a, b, c, d, e, f, g, h, i, j, k, l, m, n, o, p, q, t, u);
}

void change(std::string &text) {
    text += 'x';
}
void change(bool &flag) {
    flag = !flag;
}
void change(Tano::UniqueTexts &texts) {
    texts.append("x");
}
void change(Tano::TextMap &texts) {
    texts["x"] += 'x';
}
void change(Tano::ExtrasPointer &extras) {
    auto edited = std::make_shared<Tano::Extras>();
    edited->attributes = " x=\"\"";
    extras = edited;
}
template<typename Value>
void change(std::vector<Value> &list) {
    list.emplace_back();
}
void change(Tano::TextListMap &lists) {
    lists["x"].emplace_back();
}

// The index of the first member whose change `==` does not notice; the number of members for none.
template<std::size_t Index = 0, typename Record>
std::size_t firstIgnoredMember(const Record &record) {
    if constexpr (Index < std::tuple_size_v<decltype(members(std::declval<Record &>()))>) {
        Record changed = record;
        change(std::get<Index>(members(changed)));
        const bool isNoticed = changed != record && record != changed && changed == changed;
        return isNoticed ? firstIgnoredMember<Index + 1>(record) : Index;
    }
    return Index;
}

} // namespace

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

    void equalityNoticesEveryMember() {
        QCOMPARE(firstIgnoredMember(Tano::RobotRequirement()), std::size_t(5));
        QCOMPARE(firstIgnoredMember(Tano::BrioRequirement()), std::size_t(2));
        QCOMPARE(firstIgnoredMember(Tano::PackageService()), std::size_t(4));
        QCOMPARE(firstIgnoredMember(BehaviorInfo()), std::size_t(11));
        QCOMPARE(firstIgnoredMember(DialogInfo()), std::size_t(4));
        QCOMPARE(firstIgnoredMember(PackageInfo()), std::size_t(19));
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

    // Long lists are searched through an index.
    void languagesOccurOnce() {
        PackageInfo package;
        Strings codes;
        for (int i = 0; i < 100; ++i)
            codes.push_back("l" + std::to_string(i));
        for (const std::string &code : codes) {
            package.addSupportedLanguage(code);
            package.addSupportedLanguage(code);
            package.addSupportedLanguage(codes.front());
        }
        QCOMPARE(package.supportedLanguages(), codes);
        package.removeSupportedLanguage("none");
        for (const std::size_t removed : {std::size_t(98), std::size_t(50), std::size_t(0)}) {
            package.removeSupportedLanguage(package.supportedLanguages()[removed]);
            codes.erase(codes.begin() + std::ptrdiff_t(removed));
            QCOMPARE(package.supportedLanguages(), codes);
        }
        package.addSupportedLanguage("l50");
        codes.emplace_back("l50");
        QCOMPARE(package.supportedLanguages(), codes);
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
