#include "manifest_rules.h" // the private members
#include "xml_tree.h"

#include <tano/package_info.h>

#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

using Tano::BehaviorInfo;
using Tano::DialogInfo;
using Tano::PackageInfo;
using Strings = std::vector<std::string>;

namespace {

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

template<typename Record>
Record &editable(Record &record) {
    return record;
}
Tano::BehaviorData &editable(BehaviorInfo &behavior) {
    return Tano::RecordAccess::edit(behavior);
}
Tano::DialogData &editable(DialogInfo &dialog) {
    return Tano::RecordAccess::edit(dialog);
}
Tano::PackageData &editable(PackageInfo &package) {
    return Tano::RecordAccess::edit(package);
}

// A record in which every member has a value.
template<typename Record, typename Data>
Record full() {
    Record record;
    std::apply([&](auto... member) { (change(editable(record).*member), ...); },
               Tano::membersOf<Data>());
    return record;
}

// The number of members whose changes `==` must notice: those in tables and the extras.
template<typename Record, typename... Member>
int ignoredMembers(Member... member) {
    const auto isIgnored = [](auto wanted) {
        Record changed;
        change(editable(changed).*wanted);
        return !(changed != Record() && Record() != changed && changed == changed);
    };
    return (0 + ... + int(isIgnored(member)));
}
template<typename Record, typename Data, typename... Extras>
int ignoredMembers(Extras... extras) {
    return std::apply([&](auto... member) { return ignoredMembers<Record>(member..., extras...); },
                      Tano::membersOf<Data>());
}

QString qstring(std::string_view text) {
    return QString::fromUtf8(text.data(), int(text.size()));
}

constexpr Tano::ElementRules rules = Tano::makeRules();

// The names documented for an element, in order: those in the first column of its table, each
// followed by the names in its description.
QStringList documentedNames(const QString &document, const QString &element) {
    static const QRegularExpression name(QStringLiteral("`([^`]+)`"));
    static const QStringList values{QStringLiteral("1"), QStringLiteral("true"),
                                    QStringLiteral("false")};
    const auto start = document.indexOf(QStringLiteral("\n### `%1`").arg(element));
    QStringList names;
    for (const QString &line : document.mid(start + 1).split(QLatin1Char('\n')).mid(1)) {
        if (line.startsWith(QLatin1Char('#')))
            break;
        if (!line.startsWith(QLatin1Char('|')) && !line.startsWith(QLatin1String("Attributes:")))
            continue;
        for (auto match = name.globalMatch(line); match.hasNext();)
            names += match.next().captured(1);
    }
    names.erase(std::remove_if(names.begin(), names.end(),
                               [&](const QString &word) { return values.contains(word); }),
                names.end());
    return names;
}

// The names according to the rules. Records with child elements have a table of their own.
QStringList ruledNames(const Tano::ElementRule &rule) {
    QStringList names;
    for (const Tano::AttributeRule &attribute : rule.attributes)
        names += qstring(attribute.name);
    for (const Tano::Element element : rule.children) {
        const Tano::ElementRule &child = rules[std::size_t(element)];
        names += qstring(child.name);
        if (child.field.empty() || child.content != Tano::Content::Elements)
            names += ruledNames(child);
    }
    return names;
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
        QCOMPARE((ignoredMembers<Tano::RobotRequirement, Tano::RobotRequirement>()), 0);
        QCOMPARE((ignoredMembers<Tano::BrioRequirement, Tano::BrioRequirement>()), 0);
        QCOMPARE((ignoredMembers<Tano::PackageService, Tano::PackageService>()), 0);
        QCOMPARE((ignoredMembers<BehaviorInfo, Tano::BehaviorData>(&Tano::BehaviorData::extras)),
                 0);
        QCOMPARE((ignoredMembers<DialogInfo, Tano::DialogData>(&Tano::DialogData::extras)), 0);
        QCOMPARE((ignoredMembers<PackageInfo, Tano::PackageData>(&Tano::PackageData::extras)), 0);
    }

    void schemaDescribesTheFields() {
        PackageInfo package = full<PackageInfo, Tano::PackageData>();
        package.replaceBehavior(0, full<BehaviorInfo, Tano::BehaviorData>());
        package.replaceDialog(0, full<DialogInfo, Tano::DialogData>());
        package.replaceService(0, full<Tano::PackageService, Tano::PackageService>());
        package.clearRobotRequirements();
        package.addRobotRequirement(full<Tano::RobotRequirement, Tano::RobotRequirement>());
        package.clearBrioRequirements();
        package.addBrioRequirement(full<Tano::BrioRequirement, Tano::BrioRequirement>());
        QTemporaryDir dir;
        const QString path = dir.filePath(QStringLiteral("manifest.xml"));
        QVERIFY(package.saveToManifestFile(path.toStdString()));
        PackageInfo read;
        QVERIFY(read.loadFromManifestContent(package.saveToManifestContent()));
        QCOMPARE(read, package);
        const QString output = XmlTree::outputOfXmllint({path});
        QVERIFY2(output.endsWith(QLatin1String(" validates\n")), qPrintable(output));
    }

    void documentDescribesTheFields() {
        QFile file(QStringLiteral(ZEL_SOURCE_DIR "/docs/manifest-format.md"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QString document = QString::fromUtf8(file.readAll());
        for (const Tano::ElementRule &rule : rules) {
            const bool hasTable = rule.content == Tano::Content::Elements &&
                                  (!rule.field.empty() || rule.occurs == Tano::Occurs::Once);
            if (hasTable)
                QCOMPARE(documentedNames(document, qstring(rule.name)), ruledNames(rule));
        }
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
