#include "golden.h"
#include "table_file.h"
#include "text.h"

#include <packagemodel/package_info_model.h>
#include <packagemodel/package_json.h>

#include <limits>

using namespace Zel;
using namespace Zel::PackageModel;

class TestPackageJson : public QObject {
    Q_OBJECT

private:
    PackageInfoModel m_package;

private Q_SLOTS:
    void initTestCase() {
        QVERIFY(m_package.loadFromManifestContent(testData(text("fields/package.xml"))));
    }

    void packages() {
        QByteArray json;
        writeJson(&m_package, [&](const QByteArray &piece) { json += piece; });
        COMPARE_WITH_GOLDEN(text(ZEL_TEST_DATA "/fields/package.json"), json);
        PackageInfoModel empty;
        json.clear();
        writeJson(&empty, [&](const QByteArray &piece) { json += piece; });
        writeJson(nullptr, [&](const QByteArray &piece) { json += piece; });
        COMPARE_WITH_GOLDEN(text(ZEL_TEST_DATA "/fields/empty.json"), json);
    }

    // Sets and removes each field, copies the entries of each list, and moves each entry.
    void editsComeBack() {
        Edits edits;
        for (const Field &field : fields(&m_package)) {
            edits.append({Edit::Action::Set, field.path, field.value});
            edits.append({Edit::Action::Remove, field.path});
            for (auto path = field.path.parent(); !path.isEmpty(); path = path.parent()) {
                const auto values = entries(&m_package, path);
                for (int i = 0; i < values.size(); ++i)
                    edits.append({Edit::Action::Insert, path, values.at(i), i});
                if (value(&m_package, path))
                    edits.append({Edit::Action::Move, path, {}, 2});
            }
        }
        QVERIFY(edits.size() > 100);
        edits.append({Edit::Action::Set, *Tano::FieldPath::parse("author"),
                      QChar(QChar::ByteOrderMark) + text("x")});
        // Beyond the list, as editors append; an index before it is that of the first entry.
        const auto list = *Tano::FieldPath::parse("supportedLanguages");
        for (const int index : {std::numeric_limits<int>::max(), -1})
            edits.append({Edit::Action::Insert, list, text("eo"), index});
        const ParsedEdits parsed = editsFromJson(toJson(edits));
        QCOMPARE(parsed.error, QString());
        edits.last().index = 0;
        QVERIFY(parsed.edits == edits);
    }

    void editsAreExplained() {
        const auto parsed = editsFromJson(testData(text("fields/edits.json")));
        QCOMPARE(parsed.error, QString());
        QCOMPARE(apply(&m_package, parsed.edits).error, QString());
        COMPARE_WITH_GOLDEN(text(ZEL_TEST_DATA "/fields/edited.xml"),
                            m_package.saveToManifestContent());
    }

    void malformed_data() { addRowsOf("fields/malformed-edits.json"); }
    void malformed() {
        QFETCH(QString, json);
        const ParsedEdits parsed = editsFromJson(json.toUtf8());
        QTEST(parsed.error, "error");
        QVERIFY(parsed.edits.isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestPackageJson)
#include "tst_package_json.moc"
