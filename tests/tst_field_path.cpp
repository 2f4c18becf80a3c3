#include "table_file.h"

#include <tano/field_path.h>

#include <limits>

using Tano::FieldPath;

namespace {

// The parts of a path, one per line: "field", "[key]", and "[+]" for the end of a list.
QString partsOf(const FieldPath &path) {
    QString parts;
    for (const auto &step : path.steps()) {
        parts += QString::fromStdString(step.field) + QLatin1Char('\n');
        for (const auto &selector : step.selectors)
            parts += QLatin1Char(selector.appends ? '>' : '=') +
                     QString::fromStdString(selector.text) + QLatin1Char('\n');
    }
    return parts;
}

FieldPath parsed(const char *text) {
    const auto path = FieldPath::parse(text);
    if (!path)
        qFatal("%s is not a path", text);
    return *path;
}

} // namespace

class TestFieldPath : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void roundTrips_data() { addRowsOf("base/paths.json"); }
    void roundTrips() {
        QFETCH(QString, text);
        QFETCH(QString, parts);
        const auto path = FieldPath::parse(text.toStdString());
        QVERIFY(path);
        QCOMPARE(partsOf(*path), parts);
        QCOMPARE(QString::fromStdString(path->toString()), text);
    }

    void errors_data() { addRowsOf("base/malformed-paths.json"); }
    void errors() {
        QFETCH(QString, text);
        FieldPath::Error error;
        QVERIFY(!FieldPath::parse(text.toStdString(), &error));
        QTEST(QString::fromStdString(error.message), "message");
        QTEST(int(error.position), "position");
        QVERIFY(!FieldPath::parse(text.toStdString()));
    }

    void builds() {
        FieldPath path;
        path.index(1); // a selector without a field is ignored
        path.field("behaviors").entry("a]").field("tags").key("en_US").index(2);
        QCOMPARE(path.toString(), std::string("behaviors[a\\]].tags[en_US][2]"));
        QCOMPARE(path.parent().toString(), std::string("behaviors[a\\]].tags[en_US]"));
        QCOMPARE(path.parent().parent().parent().toString(), std::string("behaviors[a\\]]"));
        QCOMPARE(FieldPath().parent(), FieldPath());
        QCOMPARE(FieldPath().field("behaviors").entry("a", 3), parsed("behaviors[a][3]"));
        QCOMPARE(FieldPath().field("behaviors").end(), parsed("behaviors[+]"));
        QCOMPARE(FieldPath().field("behaviors").key("+"), parsed("behaviors[\\+]"));
        QVERIFY(parsed("behaviors[+]") != parsed("behaviors[\\+]"));
    }

    void orders() {
        const std::vector<FieldPath> ascending{
            parsed(""),          parsed("author"),      parsed("names"),
            parsed("names[aa]"), parsed("names[aa].x"), parsed("names[aa][0]"),
            parsed("names[ab]"), parsed("path")};
        for (std::size_t i = 0; i < ascending.size(); ++i) {
            for (std::size_t j = 0; j < ascending.size(); ++j) {
                QCOMPARE(ascending[i] < ascending[j], i < j);
                QCOMPARE(ascending[i] == ascending[j], i == j);
            }
        }
    }

    void indexes_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("index"); // -1 if absent
        QTest::newRow("0") << "0" << 0;
        QTest::newRow("greatest") << "2147483647" << std::numeric_limits<int>::max();
        for (const char *text : {"", "00", "01", "-1", "+1", " 1", "1 ", "2147483648", "x", "+"})
            QTest::newRow(text) << text << -1;
    }

    void indexes() {
        QFETCH(QString, text);
        const FieldPath::Selector selector{text.toStdString(), false};
        QTEST(selector.toIndex().value_or(-1), "index");
    }

    void findsOutsideSelectors() {
        QCOMPARE(FieldPath::find("a[=\\]=].b=c=d", '='), std::size_t(9));
        QCOMPARE(FieldPath::find("a[=", '='), std::string::npos);
        QCOMPARE(FieldPath::find("a[[].b=", '='), std::size_t(6));
        QCOMPARE(FieldPath::find("", '='), std::string::npos);
    }
};

QTEST_GUILESS_MAIN(TestFieldPath)
#include "tst_field_path.moc"
