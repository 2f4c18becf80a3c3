// Compares the reader with the schema, which xmllint applies, on mutants of valid manifests.
// Documented exceptions are in isException().

#include "xml_tree.h"

#include <tano/manifest_reader.h>
#include <tano/package_info.h>

#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <random>

using namespace XmlTree;

namespace {

constexpr int mutantCount = 600;

class Mutator {
public:
    explicit Mutator(unsigned seed)
        : m_random(seed) {}

    void mutate(Element &root) {
        m_parents.clear();
        collect(root);
        Element &parent = *m_parents[below(m_parents.size())];
        if (parent.children.empty() || below(3) == 0)
            mutateTag(parent);
        else
            mutateChild(parent, below(parent.children.size()));
    }

private:
    std::size_t below(std::size_t count) { return m_random() % count; }

    void collect(Element &element) {
        m_parents.push_back(&element);
        for (Element &child : element.children) {
            if (!child.name.isEmpty())
                collect(child);
        }
    }

    void mutateChild(Element &parent, std::size_t index) {
        auto &children = parent.children;
        const auto at = children.begin() + std::ptrdiff_t(index);
        const Element child = *at;
        switch (below(4)) {
        case 0:
            children.erase(at);
            break;
        case 1:
            children.insert(children.begin() + std::ptrdiff_t(below(children.size())), child);
            break;
        case 2: // the order
            children.erase(at);
            children.insert(children.begin() + std::ptrdiff_t(below(children.size() + 1)), child);
            break;
        default: { // another parent, except a descendant of the child
            Element &other = *m_parents[below(std::size_t(m_parents.size()))];
            other.children.push_back(child);
            break;
        }
        }
    }

    void mutateTag(Element &element) {
        static const QStringList names{
            QStringLiteral("author"),  QStringLiteral("texts"),    QStringLiteral("name"),
            QStringLiteral("topic"),   QStringLiteral("behavior"), QStringLiteral("x:author"),
            QStringLiteral("x:texts"), QStringLiteral("y:z"),      QStringLiteral("odd")};
        static const QStringList attributeNames{
            QStringLiteral("language"),   QStringLiteral("path"),
            QStringLiteral("code"),       QStringLiteral("autoRun"),
            QStringLiteral("x:language"), QStringLiteral("x:y"),
            QStringLiteral("xml:lang"),   QStringLiteral("odd"),
            QStringLiteral("xmlns"),      QStringLiteral("model"),
            QStringLiteral("xmlns:x"),    QStringLiteral("xmlns:y"),
            QStringLiteral("xml:space"),  QStringLiteral("y:z"),
            QStringLiteral("xmlns:xml"),  QStringLiteral("version"),
            QStringLiteral("name"),       QStringLiteral("userRequestable"),
            QStringLiteral("format")};
        static const QStringList values{
            QStringLiteral(""),          QStringLiteral("true"),
            QStringLiteral("en_US"),     QStringLiteral("urn:x"),
            QStringLiteral("urn:other"), QStringLiteral("1"),
            QStringLiteral(" 1"),        QStringLiteral("False"),
            QStringLiteral("2"),         QStringLiteral("http://www.w3.org/XML/1998/namespace")};
        auto &attributes = element.attributes;
        const int chosen = attributes.isEmpty() ? -1 : int(below(std::size_t(attributes.size())));
        const QString &value = values[int(below(std::size_t(values.size())))];
        switch (below(6)) {
        case 0:
            element.name = names[int(below(std::size_t(names.size())))];
            break;
        case 1:
            element.children.push_back(
                {{}, {}, below(2) ? QStringLiteral(" ") : QStringLiteral("text"), {}});
            break;
        case 2:
            setAttribute(element, attributeNames[int(below(std::size_t(attributeNames.size())))],
                         value);
            break;
        case 3:
            if (chosen >= 0)
                attributes.remove(chosen);
            break;
        case 4:
            if (chosen >= 0)
                setAttribute(element, attributes[chosen].first, value);
            break;
        default:
            if (chosen >= 0) {
                const auto moved = attributes.takeAt(chosen);
                Element &other = *m_parents[below(m_parents.size())];
                setAttribute(other, moved.first, moved.second);
            }
        }
    }

    // Replaces an existing attribute, since parsers reject duplicates. For xmllint, unlike the
    // reader, a namespace is a URI.
    static void setAttribute(Element &element, const QString &name, const QString &given) {
        const QString value = name.startsWith(QLatin1String("xmlns")) ? given.trimmed() : given;
        for (auto &attribute : element.attributes) {
            if (attribute.first == name) {
                attribute.second = value;
                return;
            }
        }
        element.attributes.append({name, value});
    }

    std::mt19937 m_random;
    std::vector<Element *> m_parents;
};

// A manifest, the reader's result, and the canonical form if it was accepted.
struct Judged {
    QString path;
    QString canonicalPath;
    bool isAccepted = false;
    bool hasUnknownNodes = false;
    QString error;
};

Judged judgedByReader(const QString &path, const QByteArray &content) {
    write(path, content);
    Judged judged{path, path + QStringLiteral(".canonical"), false, false, {}};
    Tano::ManifestReader reader(Tano::ManifestReader::Positions::Keep);
    Tano::PackageInfo package;
    judged.isAccepted = reader.readContent(content.toStdString(), package);
    judged.hasUnknownNodes = !reader.unknownNodes().empty();
    judged.error = QString::fromStdString(reader.errorString());
    if (judged.isAccepted)
        write(judged.canonicalPath, QByteArray::fromStdString(package.saveToManifestContent()));
    return judged;
}

// The schema rejects content of newer versions, and any order but the canonical one.
bool isException(const Judged &judged, bool isCanonicalValid) {
    return judged.isAccepted && (judged.hasUnknownNodes || isCanonicalValid);
}

} // namespace

class TestSchemaMutants : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void readerAndSchemaAgree() {
        const QDir data(QStringLiteral(ZEL_TEST_DATA "/manifest/valid"));
        std::vector<Element> seeds;
        for (const QFileInfo &file :
             data.entryInfoList({QStringLiteral("*.xml")}, QDir::Files, QDir::Name)) {
            // Content of newer schemas, and the limits, which a schema cannot express.
            static const QRegularExpression others(QStringLiteral("^(newer|most|deepest)"));
            if (!others.match(file.fileName()).hasMatch())
                seeds.push_back(treeOf(file.filePath()));
        }
        QTemporaryDir dir;
        Mutator mutator(20261121);
        std::vector<Judged> all;
        for (int i = 0; i < mutantCount; ++i) {
            Element mutant = seeds[std::size_t(i) % seeds.size()];
            for (int count = 0; count <= i % 3; ++count)
                mutator.mutate(mutant);
            all.push_back(
                judgedByReader(dir.filePath(QString::number(i)), written(mutant).toUtf8()));
        }

        const QSet<QString> valid = acceptedBySchema(QDir(dir.path()));
        int accepted = 0;
        QStringList disagreements;
        for (const Judged &judged : all) {
            const bool isValid = valid.contains(judged.path);
            const bool isCanonicalValid = valid.contains(judged.canonicalPath);
            accepted += isValid;
            const bool isCanonicalBad =
                judged.isAccepted && !judged.hasUnknownNodes && !isCanonicalValid;
            if (isCanonicalBad ||
                (judged.isAccepted != isValid && !isException(judged, isCanonicalValid))) {
                QFile file(judged.path);
                QVERIFY(file.open(QIODevice::ReadOnly));
                disagreements += (isValid ? QStringLiteral("valid, but: ") + judged.error
                                          : QStringLiteral("invalid, but accepted:")) +
                                 QLatin1Char('\n') + QString::fromUtf8(file.readAll());
            }
        }
        QVERIFY2(disagreements.isEmpty(), qPrintable(disagreements.join(QLatin1Char('\n'))));
        QVERIFY(accepted > mutantCount / 10 && accepted < mutantCount * 9 / 10);
    }
};

QTEST_GUILESS_MAIN(TestSchemaMutants)
#include "tst_schema_mutants.moc"
