#include <zel/software_version.h>

#include <QTest>

using Zel::SoftwareVersion;
namespace Utils = Zel::SoftwareVersionUtils;

class TestSoftwareVersion : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void parse_data();
    void parse();
    void compare_data();
    void compare();
    void setFieldsCount_data();
    void setFieldsCount();
    void copiesAreIndependent();
};

void TestSoftwareVersion::parse_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<SoftwareVersion>("expected");
    QTest::addColumn<QString>("printed");
    const auto good = [](const char *text, const SoftwareVersion &version, const char *printed) {
        QTest::newRow(text) << QString::fromUtf8(text) << version << QString::fromLatin1(printed);
    };
    good("7", {7}, "7");
    good("2.5.0", {2, 5, 0}, "2.5.0");
    good("1.2.3.4.5.6.7", {1, 2, 3, 4, 5, 6, 7}, "1.2.3.4.5.6.7");
    good("0", {0}, "0");
    good("01.002", {1, 2}, "1.2");
    good("4294967295.1", {4294967295U, 1}, "4294967295.1");
    good(" \t2.5\n", {2, 5}, "2.5");
    good("\u00A02.5\u2003", {2, 5}, "2.5");
    for (const char *text :
         {"", " ", ".", "1.", ".1", "1..2", "1. 2", "1.2 3", "1,2", "1.2b", "v1", "-1", "+1", "0x1",
          "1e2", "\u0661.\u0662", "4294967296", "1.99999999999999999999"})
        QTest::newRow(text) << QString::fromUtf8(text) << SoftwareVersion() << QString();
    QTest::newRow("NUL inside") << QString(QLatin1String("1.2") % QChar() % QLatin1Char('3'))
                                << SoftwareVersion() << QString();
}

void TestSoftwareVersion::parse() {
    QFETCH(const QString, text);
    QFETCH(const SoftwareVersion, expected);
    QFETCH(const QString, printed);

    bool ok = printed.isEmpty();
    const SoftwareVersion version = Utils::fromString(text, &ok);
    QCOMPARE(ok, !printed.isEmpty());
    QCOMPARE(version.fields(), expected.fields());
    QCOMPARE(Utils::toString(version), printed);
    QVERIFY(Utils::fromString(text) == expected);
}

void TestSoftwareVersion::compare_data() {
    QTest::addColumn<SoftwareVersion>("less");
    QTest::addColumn<SoftwareVersion>("more");
    using V = SoftwareVersion;
    QTest::newRow("last field") << V{1, 2, 3} << V{1, 2, 4};
    QTest::newRow("first field decides") << V{1, 9, 9} << V{2, 0};
    QTest::newRow("by number, not by digit") << V{2, 9} << V{2, 10};
    QTest::newRow("prefix") << V{1, 0} << V{1, 0, 0};
    QTest::newRow("empty") << V() << V{0};
    QTest::newRow("unsigned") << V{2147483647U} << V{2147483648U};
}

void TestSoftwareVersion::compare() {
    QFETCH(const SoftwareVersion, less);
    QFETCH(const SoftwareVersion, more);
    QVERIFY(less < more);
    QVERIFY(!(more < less));
    QVERIFY(!(less < less));
    QVERIFY(less != more);
    QVERIFY(!(less == more));
    QVERIFY(less == SoftwareVersion(less.fields()));
}

void TestSoftwareVersion::setFieldsCount_data() {
    QTest::addColumn<SoftwareVersion>("version");
    QTest::addColumn<unsigned>("count");
    QTest::addColumn<QString>("expected");
    using V = SoftwareVersion;
    QTest::newRow("pad") << V{2, 5} << 4U << QStringLiteral("2.5.0.0");
    QTest::newRow("pad empty") << V() << 2U << QStringLiteral("0.0");
    QTest::newRow("truncate") << V{2, 5, 7} << 1U << QStringLiteral("2");
    QTest::newRow("same") << V{2, 5} << 2U << QStringLiteral("2.5");
    QTest::newRow("none") << V{2, 5} << 0U << QString();
}

void TestSoftwareVersion::setFieldsCount() {
    QFETCH(SoftwareVersion, version);
    QFETCH(const unsigned, count);
    QFETCH(const QString, expected);
    version.setFieldsCount(count);
    QCOMPARE(version.fieldsCount(), static_cast<int>(count));
    QCOMPARE(Utils::toString(version), expected);
    QVERIFY(version == Utils::fromString(expected));
}

void TestSoftwareVersion::copiesAreIndependent() {
    const SoftwareVersion original{2, 5, 7};
    SoftwareVersion copy = original;
    copy.setFieldsCount(2);
    QCOMPARE(Utils::toString(original), QStringLiteral("2.5.7"));

    QCOMPARE(original.versionField(2), 7U);
    QCOMPARE(original.versionField(3), 0U);
    QCOMPARE(original.versionField(-1), 0U);
    QCOMPARE(SoftwareVersion().versionField(0), 0U);
    const SoftwareVersion moved = std::move(copy);
    QVERIFY((moved == SoftwareVersion{2, 5}));
}

QTEST_GUILESS_MAIN(TestSoftwareVersion)
#include "tst_software_version.moc"
