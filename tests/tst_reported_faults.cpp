// Compares the reader with the schema, which xmllint applies. A manifest with one fault that the
// schema rejects must be rejected by the reader or have one more finding than without the fault.
// The reader accepts what the schema accepts, and saves it in a form that the schema accepts.
// Exceptions are listed in a table below.

#include "text.h"
#include "xml_tree.h"

#include <packagemodel/package_info_model.h>
#include <packagemodel/package_issues.h>

#include <tano/kept_content.h>

#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <functional>
#include <map>

using namespace XmlTree;

namespace {

using Visit = std::function<void(const QString &fault, const Element &root)>;

QStringList misspellings(const QString &name) {
    return {name.chopped(1),
            QString(name % name.back()),
            QString(name.mid(1, 1) % name.left(1) % name.mid(2)),
            QString(name.left(1).toUpper() % name.mid(1)),
            name.toLower(),
            QString(text("x") % name)};
}

// Visits all variants of a tree with a single fault.
class Faults {
public:
    Faults(const Element &root, Visit visit)
        : m_root(root)
        , m_visit(std::move(visit)) {}

    void visitAll() {
        change(m_root);
        visitChildren(m_root);
    }

private:
    void visitChildren(Element &parent) {
        for (std::size_t i = 0; i < parent.children.size(); ++i) {
            if (parent.children[i].name.isEmpty())
                continue;
            replaceChild(parent, i, {}, "removed");
            replaceChild(parent, i, {parent.children[i], parent.children[i]}, "duplicated");
            move(parent, i);
            change(parent.children[i]);
            visitChildren(parent.children[i]);
        }
    }

    void replaceChild(Element &parent, std::size_t index, const std::vector<Element> &others,
                      const char *fault) {
        const auto before = parent.children;
        const auto at = parent.children.erase(parent.children.begin() + std::ptrdiff_t(index));
        parent.children.insert(at, others.begin(), others.end());
        m_visit(before[index].name % u' ' % text(fault), m_root);
        parent.children = before;
    }

    // Moves a child behind the next one, and into it.
    void move(Element &parent, std::size_t index) {
        const auto before = parent.children;
        if (index + 1 == before.size())
            return;
        std::swap(parent.children[index], parent.children[index + 1]);
        m_visit(before[index].name % text(" moved"), m_root);
        if (!parent.children[index].name.isEmpty()) {
            parent.children[index].children.push_back(before[index]);
            parent.children.erase(parent.children.begin() + std::ptrdiff_t(index + 1));
            m_visit(before[index].name % text(" misplaced"), m_root);
        }
        parent.children = before;
    }

    void change(Element &element) {
        const Element before = element;
        const auto visit = [&](const QString &fault) {
            m_visit(before.name % u' ' % fault, m_root);
            element = before;
        };
        for (const QString &name : misspellings(before.name)) {
            element.name = name;
            visit(text("misspelled ") % name);
        }
        element.children.clear();
        visit(text("emptied"));
        for (const char *content : {"text", " ", "<odd/>", "<!--a comment-->"}) {
            element.children = {{{}, {}, text(content), {}}};
            visit(text("replaced by ") % text(content));
            element.children.push_front({{}, {}, text(content), {}});
            visit(text("begun with ") % text(content));
        }
        for (int i = 0; i < before.attributes.size(); ++i)
            changeAttribute(element, i, visit);
        const QString xml = text("http://www.w3.org/XML/1998/namespace");
        for (const auto &[name, value] : {std::pair("odd", text("1")),
                                          {"language", text("1")},
                                          {"x:language", text("1")},
                                          {"xml:space", text("1")},
                                          {"xmlns", text("urn:x")},
                                          {"xmlns:x", text("urn:x")},
                                          {"xmlns:x", xml},
                                          {"xmlns:xml", xml}}) {
            element.attributes.append({text(name), value});
            visit(text(name) % text(" added"));
        }
    }

    static void changeAttribute(Element &element, int index,
                                const std::function<void(const QString &fault)> &visit) {
        const auto attribute = element.attributes[index];
        for (const QString &name : misspellings(attribute.first)) {
            element.attributes[index].first = name;
            visit(text("misspelled ") % name);
        }
        for (const QString &value : QStringList{
                 QString(), text(" "), text("TRUE"), text("0"), text("x"), QString(4097, u'x'),
                 attribute.second.toUpper(), QString(u' ' % attribute.second)}) {
            element.attributes[index].second = value;
            visit(attribute.first % text(" changed to ") % value.left(10));
        }
        element.attributes.append(attribute);
        visit(attribute.first % text(" duplicated"));
        element.attributes.remove(index);
        visit(attribute.first % text(" removed"));
    }

    Element m_root;
    Visit m_visit;
};

std::map<QString, int> countsOfIssues(const Tano::PackageInfo &record) {
    const Zel::PackageInfoModel package(record);
    Zel::PackageModel::IssueOptions options{{}, &record};
    options.withFixes = false;
    std::map<QString, int> counts;
    for (const auto &issue : Zel::PackageModel::issues(&package, options))
        ++counts[issue.id];
    return counts;
}

bool hasMore(const std::map<QString, int> &counts, std::map<QString, int> before) {
    return std::any_of(counts.begin(), counts.end(),
                       [&](const auto &each) { return each.second > before[each.first]; });
}

struct Mutant {
    QString fault;
    QString path;
    const std::map<QString, int> *before; // the findings without the fault
    QByteArray content{};
    Tano::PackageInfo record{};
    bool isAccepted = false;

    QString canonicalPath() const { return path % text(".canonical"); }

    // Writes the manifest and, if the reader accepts it, its canonical form.
    void writeFiles(const Element &root) {
        content = written(root).toUtf8();
        write(path, content);
        isAccepted = record.loadFromManifestContent(content.toStdString());
        if (isAccepted)
            write(canonicalPath(), QByteArray::fromStdString(record.saveToManifestContent()));
    }
};

// A change that the schema rejects although it is valid.
struct Exception {
    const char *reason;
    const char *fault; // a regular expression
};

constexpr Exception exceptions[]{
    {"The name of a namespace is any text for the reader, and a URI for xmllint.",
     " xmlns(:[a-z]+)? changed to  "},
};

bool isException(const Mutant &mutant) {
    return std::any_of(std::begin(exceptions), std::end(exceptions), [&](const Exception &each) {
        return mutant.fault.contains(QRegularExpression(text(each.fault)));
    });
}

// How reader, checks and schema disagree about a mutant, if they do.
QString disagreement(const Mutant &mutant, const QSet<QString> &valid) {
    const bool isValid = valid.contains(mutant.path);
    const bool isCanonicalValid = valid.contains(mutant.canonicalPath());
    if (!mutant.isAccepted)
        return isValid ? text("refused: ") % Zel::fromUtf8(mutant.record.errorString()) : QString();
    if (isException(mutant))
        return {};
    if (!isCanonicalValid && Tano::unknownNodes(mutant.record).empty())
        return text("saved in an invalid form");
    const bool isOnlyMoved = isCanonicalValid && mutant.fault.endsWith(text(" moved"));
    const bool isReported = hasMore(countsOfIssues(mutant.record), *mutant.before);
    return isValid || isOnlyMoved || isReported ? QString() : text("unnoticed");
}

} // namespace

class TestReportedFaults : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        QDir(m_dir.path()).mkdir(text("seeds"));
        int number = 0;
        for (const char *folder :
             {ZEL_TEST_DATA "/manifest/valid", ZEL_TEST_DATA "/manifest/valid/noncanonical",
              ZEL_SOURCE_DIR "/examples/packages/small",
              ZEL_SOURCE_DIR "/examples/packages/unfinished",
              ZEL_SOURCE_DIR "/examples/packages/ten-languages"}) {
            static const QRegularExpression limits(text("^(most|deepest)"));
            const auto files = QDir(text(folder)).entryInfoList({text("*.xml")}, QDir::Files);
            for (const QFileInfo &file : files) {
                if (!limits.match(file.fileName()).hasMatch())
                    write(m_dir.filePath(text("seeds/%1").arg(number++)),
                          written(treeOf(file.filePath())).toUtf8());
            }
        }
        const QSet<QString> valid = acceptedBySchema(QDir(m_dir.filePath(text("seeds"))));
        for (const QString &path : valid)
            m_seeds.append(path);
        m_seeds.sort();
        QVERIFY(m_seeds.size() > 20);
    }

    void oneFault() {
        // Tests one of so many; 1 tests all, which takes minutes.
        const int wanted = qEnvironmentVariableIntValue("ZEL_FAULT_STEP");
        const int step = wanted > 0 ? wanted : 37;
        const QDir dir(m_dir.filePath(text("mutants")));
        dir.mkpath(text("."));
        std::map<QString, std::map<QString, int>> before;
        std::vector<Mutant> mutants;
        int number = 0;
        for (const QString &seed : std::as_const(m_seeds)) {
            Mutant none{{}, seed, nullptr};
            none.writeFiles(treeOf(seed));
            const auto &counts = before[seed] = countsOfIssues(none.record);
            Faults(treeOf(seed), [&](const QString &fault, const Element &root) {
                if (number++ % step != 0)
                    return;
                mutants.push_back({fault, dir.filePath(QString::number(number)), &counts});
                mutants.back().writeFiles(root);
            }).visitAll();
        }

        const QSet<QString> valid = acceptedBySchema(dir);
        int accepted = 0;
        QStringList disagreements;
        for (const Mutant &mutant : mutants) {
            accepted += mutant.isAccepted ? 1 : 0;
            const QString found = disagreement(mutant, valid);
            if (!found.isEmpty())
                disagreements += mutant.fault % text(": ") % found % u'\n' %
                                 QString::fromUtf8(mutant.content).left(500);
        }
        qInfo("%d mutants, %d accepted", int(mutants.size()), accepted);
        QVERIFY2(disagreements.isEmpty(), qPrintable(disagreements.join(u'\n')));
        QVERIFY(accepted > int(mutants.size()) / 10 && accepted < int(mutants.size()) * 9 / 10);
    }

private:
    QTemporaryDir m_dir;
    QStringList m_seeds;
};

QTEST_GUILESS_MAIN(TestReportedFaults)
#include "tst_reported_faults.moc"
