#include "edit_script.h"
#include "golden.h"
#include "random_edits.h"
#include "text.h"

#include <packagemodel/package_difference.h>
#include <packagemodel/package_merge.h>

#include <tano/kept_content.h>

#include <QRegularExpression>
#include <QTest>

using namespace Zel;
using namespace Zel::PackageModel;
using namespace EditScript;

namespace {

Tano::PackageInfo recordOf(const QString &file) {
    Tano::PackageInfo record;
    if (!record.loadFromManifestContent(testData(file).toStdString()))
        qFatal("%s: %s", qPrintable(file), record.errorString().c_str());
    return record;
}

// The record after saving and loading, which turns empty texts into absent ones.
Tano::PackageInfo reloaded(const Tano::PackageInfo &record) {
    Tano::PackageInfo read;
    if (!read.loadFromManifestContent(record.saveToManifestContent()))
        qFatal("%s", read.errorString().c_str());
    return read;
}

// The changes that the merge makes to ours, with conflicts and new comments.
QString story(const QString &oursEdits, const QString &theirsEdits) {
    const PackageInfoModel base(recordOf(text("fields/package.xml")));
    PackageInfoModel ours(base);
    PackageInfoModel theirs(base);
    QString lines =
        apply(&ours, editsOf(oursEdits)).error % apply(&theirs, editsOf(theirsEdits)).error;
    const Merged merged = merge(base.packageInfo(), ours.packageInfo(), theirs.packageInfo());
    const PackageInfoModel package(merged.record);
    lines +=
        script(edits(&ours, &package)).replace(QRegularExpression(text("(?m)^(?=.)")), text("= "));
    for (const MergeConflict &conflict : merged.conflicts)
        lines += text("! ") % fromUtf8(conflict.path.toString()) % text(": ") % conflict.base %
                 text(" | ") % conflict.ours % text(" | ") % conflict.theirs % u'\n';
    for (const Tano::KeptComment &comment : Tano::comments(merged.record)) {
        if (comment.text.find("zel-package") != std::string::npos)
            lines += text("# ") % fromUtf8(comment.before.toString()) % text(" #") %
                     fromUtf8(comment.text) % u'\n';
    }
    return lines;
}

// A part of the package that can be edited on one side without affecting the other side's edits: a
// field of the package or, if lists of entries keep their entries, of an entry.
std::string regionOf(const Tano::FieldPath &path, bool isOfEntries) {
    const auto &steps = path.steps();
    const std::string &first = steps.front().field;
    if (first == "supportedLanguages" || first == "descriptionLanguages" || first == "dialogs")
        return "languages"; // related to each other
    if (first != "behaviors" && first != "services")
        return first;
    if (!isOfEntries)
        return first;
    if (steps.size() < 2 || steps[1].field == "path" || steps[1].field == "name")
        return {};
    Tano::FieldPath entry = path;
    while (entry.steps().size() > 1)
        entry = entry.parent();
    return entry.field(steps[1].field).toString();
}

} // namespace

class TestPackageMerge : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cases();
    void keptContent();
    void sameSides();
    void differentFields_data();
    void differentFields();
    void anyFields_data() { differentFields_data(); }
    void anyFields();
    void refused();

private:
    Tano::PackageInfo m_base;
};

void TestPackageMerge::initTestCase() {
    PackageInfoModel package(recordOf(text("fields/package.xml")));
    // Differences contain a repeated permission only once.
    QCOMPARE(apply(&package, editsOf(text("remove behaviors[greet][1].permissions[0]"))).error,
             QString());
    m_base = package.packageInfo();
}

// A case consists of lines "ours EDIT" and "theirs EDIT", followed by its outcome.
void TestPackageMerge::cases() {
    const QString file = text(ZEL_TEST_DATA "/merge/cases.txt");
    QString all;
    const QStringList stories =
        QString::fromUtf8(testData(text("merge/cases.txt"))).split(text("\n\n"));
    for (const QString &each : stories) {
        QString ours, theirs;
        QString given;
        for (const QString &line : each.split(u'\n', Qt::SkipEmptyParts)) {
            const bool isOurs = line.startsWith(text("ours "));
            if (isOurs || line.startsWith(text("theirs ")))
                (isOurs ? ours : theirs) += line.section(u' ', 1) % u'\n';
            else if (!line.startsWith(text("# ")) || !given.isEmpty())
                continue;
            given += line % u'\n';
        }
        all += (all.isEmpty() ? QString() : text("\n")) % given % story(ours, theirs);
    }
    COMPARE_WITH_GOLDEN(file, all.toUtf8());
}

void TestPackageMerge::keptContent() {
    const auto side = [](const char *name) {
        return recordOf(text("merge/") % text(name) % text(".xml"));
    };
    const Merged merged = merge(side("base"), side("ours"), side("theirs"));
    COMPARE_WITH_GOLDEN(text(ZEL_TEST_DATA "/merge/merged.xml"),
                        QByteArray::fromStdString(merged.record.saveToManifestContent()));
}

void TestPackageMerge::sameSides() {
    const Tano::PackageInfo other = recordOf(text("fields/edited.xml"));
    for (const Merged &merged : {merge(m_base, other, m_base), merge(m_base, m_base, other),
                                 merge(m_base, other, other)}) {
        QCOMPARE(merged.record, other);
        QVERIFY(merged.conflicts.isEmpty());
    }
}

void TestPackageMerge::differentFields_data() {
    addSeeds(60);
}

void TestPackageMerge::differentFields() {
    QFETCH(unsigned, seed);
    RandomEdits random(seed);
    PackageInfoModel ours(m_base);
    PackageInfoModel theirs(m_base);
    PackageInfoModel both(m_base);
    for (int step = 0; step < 60; ++step) {
        PackageInfoModel &side = step % 2 == 0 ? ours : theirs;
        const Edit edit = random.next(side);
        const std::string region = edit.path.isEmpty() ? "" : regionOf(edit.path, seed % 2 == 0);
        if (region.empty() ||
            (std::hash<std::string>()(region) + seed / 2) % 2 != unsigned(step % 2))
            continue;
        if (apply(&side, edit).error.isEmpty())
            QCOMPARE(apply(&both, edit).error, QString());
    }
    for (const auto &[a, b] : {std::pair(&ours, &theirs), {&theirs, &ours}}) {
        const Merged merged = merge(m_base, a->packageInfo(), b->packageInfo());
        QCOMPARE(merged.error, QString());
        QCOMPARE(merged.conflicts.size(), 0);
        QCOMPARE(orderedListing(PackageInfoModel(reloaded(merged.record))),
                 orderedListing(PackageInfoModel(reloaded(both.packageInfo()))));
    }
}

void TestPackageMerge::anyFields() {
    QFETCH(unsigned, seed);
    RandomEdits random(seed);
    PackageInfoModel ours(m_base);
    PackageInfoModel theirs(m_base);
    for (int step = 0; step < 16; ++step) {
        for (PackageInfoModel *side : {&ours, &theirs})
            apply(side, random.next(*side));
    }
    const Merged merged = merge(m_base, ours.packageInfo(), theirs.packageInfo());
    QCOMPARE(merged.error, QString());
    const PackageInfoModel package(merged.record);
    // Sides that were saved have no empty texts; comments may move.
    const Merged ofSaved =
        merge(m_base, reloaded(ours.packageInfo()), reloaded(theirs.packageInfo()));
    QCOMPARE(reloaded(ofSaved.record), ofSaved.record);
    QCOMPARE(listing(PackageInfoModel(reloaded(merged.record))),
             listing(PackageInfoModel(ofSaved.record)));

    int comments = 0;
    for (const Tano::KeptComment &comment : Tano::comments(merged.record))
        comments += comment.text.find(" zel-package: conflict in ") == 0 ? 1 : 0;
    QCOMPARE(comments, int(merged.conflicts.size()));
    for (const MergeConflict &conflict : merged.conflicts)
        QVERIFY2(formOf(conflict.path) &&
                     (conflict.ours.isEmpty() || value(&package, conflict.path)),
                 conflict.path.toString().c_str());

    // Untouched fields are unchanged. Indexes shift with insertions, as do those of equal paths.
    static const QRegularExpression index(text("\\[[0-9]+\\]|\\[greet\\]"));
    const PackageInfoModel base(m_base);
    for (const Field &field : fields(&base)) {
        const auto isSame = [&](const PackageInfoModel &side) {
            return value(&side, field.path) == field.value;
        };
        if (!fromUtf8(field.path.toString()).contains(index) && isSame(ours) && isSame(theirs))
            QVERIFY2(isSame(package), field.path.toString().c_str());
    }
}

// A record may contain a text that a manifest cannot hold.
void TestPackageMerge::refused() {
    Tano::PackageInfo ours = m_base;
    ours.setAuthor("B");
    Tano::PackageInfo theirs = m_base;
    theirs.setName("a\x01", "en_US");
    const Merged merged = merge(m_base, ours, theirs);
    QCOMPARE(merged.error,
             text("names[en_US]: The text contains the character U+0001, which a manifest cannot "
                  "represent."));
    QCOMPARE(merged.record, ours);
}

QTEST_GUILESS_MAIN(TestPackageMerge)
#include "tst_package_merge.moc"
