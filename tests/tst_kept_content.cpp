#include "golden.h"
#include "table_file.h"

#include <tano/kept_content.h>

#include <QDirIterator>
#include <QFile>
#include <QTest>

#include <algorithm>

using Tano::FieldPath;
using Tano::KeptComment;
using Tano::ManifestReader;
using Tano::PackageInfo;
using Tano::UnknownNode;

Q_DECLARE_METATYPE(std::string)

namespace {

QString dataPath(const char *name) {
    return QStringLiteral(ZEL_TEST_DATA "/") + QLatin1String(name);
}

PackageInfo loaded(const QString &path) {
    QFile file(path);
    PackageInfo package;
    if (!package.loadFromManifestFile(file))
        qFatal("%s", package.errorString().c_str());
    return package;
}

PackageInfo read(const std::string &manifest) {
    PackageInfo package;
    if (!package.loadFromManifestContent(manifest))
        qFatal("%s: %s", manifest.c_str(), package.errorString().c_str());
    return package;
}

PackageInfo readPackage(const std::string &rest) {
    return read("<package format=\"1\" uid=\"u\" version=\"1\"" + rest);
}

// Adds a row for each valid manifest.
void addManifests() {
    QTest::addColumn<QString>("path");
    QDirIterator files(dataPath("manifest/valid"), {QStringLiteral("*.xml")}, QDir::Files,
                       QDirIterator::Subdirectories);
    QStringList paths{dataPath("kept-content/comments.xml"), dataPath("fields/package.xml"),
                      dataPath("manifest/unknown.xml")};
    while (files.hasNext())
        paths += files.next();
    for (const QString &path : paths)
        QTest::newRow(qPrintable(path.mid(dataPath("").size()))) << path;
}

std::string described(const KeptComment &comment) {
    return '[' + comment.parent.toString() + "] before [" + comment.before.toString() + "] #" +
           std::to_string(comment.index) + ": " + comment.text + '\n';
}

std::string described(const UnknownNode &node) {
    std::string line = (node.kind == UnknownNode::Kind::Element ? "<" : "@") + node.name + " #" +
                       std::to_string(node.index) + " in " + node.parent + ' ' +
                       node.parentPath.toString() + ':';
    for (const std::string &name : Tano::knownNames(node))
        line += ' ' + name;
    return line + '\n';
}

template<typename Items>
std::string describedAll(const Items &items) {
    std::string lines;
    for (const auto &item : items)
        lines += described(item);
    return lines;
}

QStringList sorted(const std::vector<UnknownNode> &nodes) {
    QStringList lines;
    for (const UnknownNode &node : nodes)
        lines += QString::fromStdString(described(node));
    lines.sort();
    return lines;
}

} // namespace

class TestKeptContent : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void listed() {
        std::string lines;
        for (const char *name :
             {"kept-content/comments.xml", "manifest/valid/comments.xml", "fields/package.xml",
              "manifest/unknown.xml", "manifest/valid/newer-elements.xml"}) {
            const PackageInfo package = loaded(dataPath(name));
            ((lines += "== ") += name) += '\n';
            lines += describedAll(Tano::comments(package));
            lines += describedAll(Tano::unknownNodes(package));
        }
        COMPARE_WITH_GOLDEN(dataPath("kept-content/listed.txt"), QByteArray::fromStdString(lines));
    }

    void followsEdits() {
        PackageInfo package = loaded(dataPath("kept-content/comments.xml"));
        package.moveRobotRequirement(1, 0);
        package.removeBehavior(0);
        package.setDescription("", "en_US");
        package.setAuthor("\x01");
        COMPARE_WITH_GOLDEN(dataPath("kept-content/edited.txt"),
                            QByteArray::fromStdString(describedAll(Tano::comments(package)) +
                                                      describedAll(Tano::unknownNodes(package))));
    }

    void unknownNodesAreThoseOfTheReader_data() { addManifests(); }

    void unknownNodesAreThoseOfTheReader() {
        QFETCH(QString, path);
        QFile file(path);
        ManifestReader reader(ManifestReader::Positions::Keep);
        PackageInfo package;
        QVERIFY(reader.readFile(file, package));
        QCOMPARE(sorted(Tano::unknownNodes(package)), sorted(reader.unknownNodes()));
    }

    void removalRemovesOneComment_data() { addManifests(); }

    void removalRemovesOneComment() {
        QFETCH(QString, path);
        const PackageInfo package = loaded(path);
        const std::string saved = package.saveToManifestContent();
        std::size_t offset = 0;
        for (const KeptComment &comment : Tano::comments(package)) {
            const std::string xml = "<!--" + comment.text + "-->";
            offset = saved.find(xml, offset);
            QVERIFY2(offset != std::string::npos, described(comment).c_str());
            const PackageInfo changed = Tano::withoutComment(package, comment);
            const std::string expected = std::string(saved).erase(offset, xml.size());
            QCOMPARE(QByteArray::fromStdString(changed.saveToManifestContent()),
                     QByteArray::fromStdString(read(expected).saveToManifestContent()));
            offset += xml.size();
        }
        KeptComment absent;
        absent.text = "absent";
        QCOMPARE(Tano::withoutComment(package, absent), package);
    }

    // Adds comments for all fields, including absent ones.
    void commentsAreAdded() {
        const PackageInfo package = loaded(dataPath("fields/package.xml"));
        QFile fields(dataPath("fields/package.txt"));
        QVERIFY(fields.open(QFile::ReadOnly));
        std::vector<FieldPath> paths;
        for (const QByteArray &line : fields.readAll().trimmed().split('\n'))
            paths.push_back(*FieldPath::parse(
                line.left(int(FieldPath::find(line.toStdString(), '='))).toStdString()));
        for (const char *absent :
             {"", "behaviors", "behaviors[greet].tags[en_US]", "behaviors[greet].tags[en_US][9]",
              "behaviors[greet][7]", "names", "names[fr_FR]", "dialogs[other].topics[en_US]",
              "nothing[x].y"})
            paths.push_back(*FieldPath::parse(absent));

        std::string lines;
        std::vector<KeptComment> all;
        for (const FieldPath &path : paths) {
            const PackageInfo changed = Tano::withComment(package, path, " here ");
            const auto comments = Tano::comments(changed);
            QCOMPARE(comments.size(), Tano::comments(package).size() + 1);
            const auto here =
                std::find_if(comments.begin(), comments.end(),
                             [](const auto &comment) { return comment.text == " here "; });
            QVERIFY(here != comments.end());
            lines += path.toString() + " -> " + described(*here);
            QCOMPARE(Tano::withoutComment(changed, *here), package);
            all.push_back({path.toString(), {}, path, 0});
        }
        COMPARE_WITH_GOLDEN(dataPath("kept-content/added.txt"), QByteArray::fromStdString(lines));
        COMPARE_WITH_GOLDEN(
            dataPath("kept-content/added.xml"),
            QByteArray::fromStdString(Tano::withComments(package, all).saveToManifestContent()));
    }

    void whatCommentsCannotHold_data() {
        QTest::addColumn<std::string>("text");
        QTest::addColumn<std::string>("xml");
        const auto row = [](const char *name, const std::string &text, const std::string &xml) {
            QTest::newRow(name) << text << xml;
        };
        row("two hyphens", "a--b", "<!--a- -b-->");
        row("hyphens at the ends", "---", "<!--- - - -->");
        row("the end of a comment", "--><b/><!--", "<!--- -><b/><!- - -->");
        row("markup", " <a b='&c;'> ", "<!-- <a b='&c;'> -->");
        row("a control character", "\x01", "");
        row("no UTF-8", "\xFF", "");
        row("too much", std::string(ManifestReader::maxTagLength, 'x'), "");
    }

    void whatCommentsCannotHold() {
        QFETCH(std::string, text);
        QFETCH(std::string, xml);
        const PackageInfo package = readPackage("><author>A</author></package>");
        const PackageInfo changed = Tano::withComment(package, *FieldPath::parse("author"), text);
        QCOMPARE(changed, readPackage('>' + xml + "<author>A</author></package>"));
    }

    void renamed_data() { addRowsOf("kept-content/renames.json"); }

    void renamed() {
        QFETCH(QString, manifest);
        QFETCH(int, node);
        QFETCH(QString, newName);
        QFETCH(QString, result);
        const PackageInfo package = readPackage(manifest.toStdString());
        const auto nodes = Tano::unknownNodes(package);
        const auto renamed =
            Tano::withRenamedNode(package, nodes.at(std::size_t(node)), newName.toStdString());
        QCOMPARE(renamed.has_value(), !result.isEmpty());
        if (renamed)
            QCOMPARE(renamed->saveToManifestContent(),
                     readPackage(result.toStdString()).saveToManifestContent());
    }

    void absentNodesAreNotRenamed() {
        const PackageInfo package = readPackage("><autor/></package>");
        UnknownNode node = Tano::unknownNodes(package).at(0);
        QVERIFY(Tano::withRenamedNode(package, node, "author"));
        node.index = 1;
        QVERIFY(!Tano::withRenamedNode(package, node, "author"));
        node.parentPath.field("behaviors").entry("b");
        QVERIFY(Tano::knownNames(node).empty());
    }
};

QTEST_APPLESS_MAIN(TestKeptContent)
#include "tst_kept_content.moc"
