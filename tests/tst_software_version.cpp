#include "table_file.h"

#include <zel/software_version.h>

using Zel::SoftwareVersion;
namespace Utils = Zel::SoftwareVersionUtils;

class TestSoftwareVersion : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void parse_data() { addRowsOf("base/versions.json"); }

    void parse() {
        QFETCH(const QString, text);
        QFETCH(const QString, printed);
        bool ok = printed.isEmpty();
        const SoftwareVersion version = Utils::fromString(text, &ok);
        QCOMPARE(ok, !printed.isEmpty());
        QCOMPARE(Utils::toString(version), printed);
        QCOMPARE(version.fieldsCount(), printed.isEmpty() ? 0 : int(printed.count(u'.')) + 1);
        QVERIFY(Utils::fromString(text) == version);
    }

    void compare() {
        const std::vector<SoftwareVersion> ascending{
            {},        {0},    {1, 0}, {1, 0, 0}, {1, 2, 3},     {1, 2, 4},
            {1, 9, 9}, {2, 0}, {2, 9}, {2, 10},   {2147483647U}, {2147483648U},
        };
        for (std::size_t i = 0; i < ascending.size(); ++i) {
            for (std::size_t j = 0; j < ascending.size(); ++j) {
                const SoftwareVersion other(ascending[j].fields());
                QCOMPARE(ascending[i] < other, i < j);
                QCOMPARE(ascending[i] == other, i == j);
                QCOMPARE(ascending[i] != other, i != j);
            }
        }
    }

    void setFieldsCount_data() { addRowsOf("base/field-counts.json"); }

    void setFieldsCount() {
        QFETCH(const QString, version);
        QFETCH(const int, count);
        QFETCH(const QString, expected);
        SoftwareVersion changed = Utils::fromString(version);
        changed.setFieldsCount(unsigned(count));
        QCOMPARE(changed.fieldsCount(), count);
        QCOMPARE(Utils::toString(changed), expected);
        QVERIFY(changed == Utils::fromString(expected));
    }

    void copiesAreIndependent() {
        const SoftwareVersion original{2, 5, 7};
        SoftwareVersion copy = original;
        copy.setFieldsCount(2);
        QCOMPARE(Utils::toString(copy), QStringLiteral("2.5"));
        QCOMPARE(Utils::toString(original), QStringLiteral("2.5.7"));

        QCOMPARE(original.versionField(0), 2U);
        QCOMPARE(original.versionField(2), 7U);
        QCOMPARE(original.versionField(3), 0U);
        QCOMPARE(original.versionField(-1), 0U);
        QCOMPARE(SoftwareVersion().versionField(0), 0U);
    }
};

QTEST_GUILESS_MAIN(TestSoftwareVersion)
#include "tst_software_version.moc"
