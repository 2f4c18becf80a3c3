#include <packagemodel/text_exchange.h>

#include "../fields/field_words.h"
#include "text_places.h"

#include <packagemodel/text_conversion.h>

#include <QXmlStreamReader>

#include <algorithm>

namespace Zel::PackageModel {
namespace {

constexpr int maxSize = 256 << 20;
constexpr int maxTag =
    64 << 10; // QXmlStreamReader compares each attribute with all others, in quadratic time
constexpr int maxDepth = 64;
constexpr int maxAttributes = 64;

// The child elements that XLIFF allows, by parent.
constexpr const char *inXliff[]{"file"};
constexpr const char *inFile[]{"header", "body"};
constexpr const char *inBody[]{"group",         "trans-unit",  "bin-unit",  "note",
                               "context-group", "count-group", "prop-group"};
constexpr const char *inUnit[]{"source", "target",        "seg-source",  "alt-trans",
                               "note",   "context-group", "count-group", "prop-group"};
constexpr const char *inContexts[]{"context", "note"};
constexpr const char *inText[]{"g", "x", "bx", "ex", "ph", "bpt", "ept", "it", "mrk", "sub"};

template<typename Range>
bool contains(const Range &names, const QStringView &name) {
    return std::any_of(std::begin(names), std::end(names),
                       [&](const char *each) { return name == QLatin1String(each); });
}

QString sentence(const char *source) {
    return inWords(source);
}

// The length of the tag at `start`; the next one begins at `end` at the earliest.
int tagLength(const QByteArray &xliff, int start, int end) {
    char quote = '\0';
    int at = start + 1;
    for (; at < end && (quote != '\0' || xliff.at(at) != '>'); ++at) {
        const char c = xliff.at(at);
        if (c == quote)
            quote = '\0';
        else if (quote == '\0' && (c == '"' || c == '\''))
            quote = c;
    }
    return at - start;
}

// The offset of a tag that is too long, or -1.
int tooLongTag(const QByteArray &xliff) {
    for (int start = int(xliff.indexOf('<')); start >= 0;) {
        const int next = int(xliff.indexOf('<', start + 1));
        const int end = next < 0 ? int(xliff.size()) : next;
        const bool isTag = start + 1 < end && xliff.at(start + 1) != '!';
        if (isTag && end - start > maxTag && tagLength(xliff, start, end) > maxTag)
            return start;
        start = next;
    }
    return -1;
}

class XliffParser {
public:
    explicit XliffParser(const QByteArray &xliff)
        : m_xml(xliff) {}

    ParsedXliff parse();

private:
    using Token = QXmlStreamReader::TokenType;

    Token next();
    bool nextElement();
    template<typename Range>
    bool nextChild(const Range &names);
    bool isXliff() const;
    bool is(const char *name) const { return m_xml.name() == QLatin1String(name); }
    QString attribute(const char *name) const {
        return m_xml.attributes().value(QLatin1String(name)).toString();
    }
    void fail(const QString &reason) { m_xml.raiseError(reason); }
    void notAllowed();
    // The column of the last character read.
    qint64 column() const { return std::max<qint64>(m_xml.columnNumber(), 1); }

    void skip();
    void readRoot();
    void readFile();
    void readBody();
    void readUnit();
    void readLocation(QStringList &names);
    QString readText();
    QString placeholderText();
    void addUnit(TextUnit unit, const QStringList &names);

    QXmlStreamReader m_xml;
    int m_depth = 0;
    QString m_sourceLanguage;
    QVector<TextUnit> m_units;
};

XliffParser::Token XliffParser::next() {
    const Token token = m_xml.readNext();
    if (token == Token::StartElement) {
        if (++m_depth > maxDepth)
            fail(sentence(
                     QT_TRANSLATE_NOOP("Zel::PackageModel", "More than %1 elements are nested."))
                     .arg(maxDepth));
        else if (m_xml.attributes().size() > maxAttributes)
            fail(sentence(QT_TRANSLATE_NOOP("Zel::PackageModel",
                                            "The element <%1> has more than %2 attributes."))
                     .arg(m_xml.qualifiedName().toString())
                     .arg(maxAttributes));
    } else if (token == Token::EndElement) {
        --m_depth;
    } else if (token == Token::DTD) {
        fail(sentence(
            QT_TRANSLATE_NOOP("Zel::PackageModel", "A document type declaration is not allowed.")));
    }
    return m_xml.hasError() ? Token::Invalid : token;
}

// Advances to the next child of the current element; returns false at its end.
bool XliffParser::nextElement() {
    for (Token token = next(); token != Token::Invalid; token = next()) {
        if (token == Token::StartElement)
            return true;
        if (token == Token::EndElement || token == Token::EndDocument)
            return false;
        if (token == Token::Characters && !m_xml.isWhitespace())
            fail(sentence(QT_TRANSLATE_NOOP("Zel::PackageModel", "Text is not allowed here.")));
    }
    return false;
}

// Like nextElement(), but skips other namespaces and rejects all names but these.
template<typename Range>
bool XliffParser::nextChild(const Range &names) {
    while (nextElement()) {
        if (!isXliff()) {
            skip();
            continue;
        }
        if (contains(names, m_xml.name()))
            return true;
        notAllowed();
    }
    return false;
}

bool XliffParser::isXliff() const {
    return m_xml.namespaceUri() == QLatin1String("urn:oasis:names:tc:xliff:document:1.2") ||
           m_xml.namespaceUri() == QLatin1String("urn:oasis:names:tc:xliff:document:1.1");
}

void XliffParser::notAllowed() {
    fail(sentence(QT_TRANSLATE_NOOP("Zel::PackageModel", "The element <%1> is not allowed here."))
             .arg(m_xml.qualifiedName().toString()));
}

void XliffParser::skip() {
    const int outer = m_depth - 1;
    while (m_depth > outer && next() != Token::Invalid) {
    }
}

void XliffParser::readRoot() {
    if (!nextElement())
        return;
    if (!is("xliff")) {
        fail(sentence(QT_TRANSLATE_NOOP("Zel::PackageModel",
                                        "The root element is <%1> instead of <xliff>."))
                 .arg(m_xml.qualifiedName().toString()));
        return;
    }
    if (!isXliff()) {
        fail(sentence(QT_TRANSLATE_NOOP("Zel::PackageModel",
                                        "This is XLIFF \"%1\" in the namespace \"%2\" rather than "
                                        "XLIFF 1.2."))
                 .arg(attribute("version"), m_xml.namespaceUri().toString()));
        return;
    }
    while (nextChild(inXliff))
        readFile();
    while (next() != Token::Invalid && !m_xml.atEnd()) {
    }
}

void XliffParser::readFile() {
    m_sourceLanguage = attribute("source-language");
    if (m_sourceLanguage.isEmpty())
        fail(sentence(QT_TRANSLATE_NOOP("Zel::PackageModel",
                                        "The element <file> lacks the attribute "
                                        "\"source-language\".")));
    while (nextChild(inFile))
        is("body") ? readBody() : skip();
}

void XliffParser::readBody() {
    while (nextChild(inBody)) {
        if (is("group"))
            readBody();
        else if (is("trans-unit") &&
                 attribute("restype") != QLatin1String("x-gettext-domain-header"))
            readUnit();
        else
            skip();
    }
}

void XliffParser::readUnit() {
    TextUnit unit;
    unit.sourceLanguage = m_sourceLanguage;
    unit.line = m_xml.lineNumber();
    unit.column = column();
    QStringList names{attribute("resname"), attribute("id")};
    bool hasSource = false;
    while (nextChild(inUnit)) {
        if (is("source")) {
            hasSource = true;
            unit.source = readText();
        } else if (is("target")) {
            const QString state = attribute("state");
            unit.isUntranslated =
                state == QLatin1String("new") || state == QLatin1String("needs-translation");
            unit.target = readText();
        } else if (is("context-group")) {
            readLocation(names);
        } else {
            skip();
        }
    }
    if (m_xml.hasError())
        return;
    if (!hasSource)
        fail(sentence(
                 QT_TRANSLATE_NOOP("Zel::PackageModel", "The unit \"%1\" has no element <source>."))
                 .arg(names.at(1)));
    else
        addUnit(unit, names);
}

// A PO file stores the path as the text's source file, where ":" precedes a line number.
void XliffParser::readLocation(QStringList &names) {
    QString location;
    while (nextChild(inContexts)) {
        const QString type = attribute("context-type");
        if (!is("context"))
            skip();
        else if (type == QLatin1String("sourcefile"))
            location = readText();
        else if (type == QLatin1String("linenumber"))
            location += u':' % readText();
        else
            skip();
    }
    names += location;
}

QString XliffParser::readText() {
    const int outer = m_depth - 1;
    QString text;
    while (m_depth > outer) {
        const Token token = next();
        if (token == Token::Invalid)
            break;
        if (token == Token::Characters)
            text += m_xml.text();
        else if (token == Token::EntityReference)
            fail(sentence(
                     QT_TRANSLATE_NOOP("Zel::PackageModel", "The entity \"%1\" is not declared."))
                     .arg(m_xml.name().toString()));
        else if (token == Token::StartElement && !isXliff())
            skip();
        else if (token == Token::StartElement && !contains(inText, m_xml.name()))
            notAllowed();
        else if (token == Token::StartElement)
            text += placeholderText();
    }
    return text;
}

// The text of an empty inline element.
QString XliffParser::placeholderText() {
    if (!is("x") && !is("bx") && !is("ex"))
        return {};
    if (!m_xml.attributes().hasAttribute(QLatin1String("equiv-text")))
        fail(sentence(QT_TRANSLATE_NOOP("Zel::PackageModel",
                                        "The placeholder <%1> lacks the attribute \"equiv-text\", "
                                        "without which its text is unknown."))
                 .arg(m_xml.name().toString()));
    return attribute("equiv-text");
}

void XliffParser::addUnit(TextUnit unit, const QStringList &names) {
    for (const QString &name : names) {
        const auto path = Tano::FieldPath::parse(toUtf8(name));
        if (path && textPlace(*path)) {
            unit.path = *path;
            m_units.append(unit);
            return;
        }
    }
    fail(sentence(QT_TRANSLATE_NOOP("Zel::PackageModel",
                                    "The unit \"%1\" has no path of a text in a package."))
             .arg(names.at(1)));
}

ParsedXliff XliffParser::parse() {
    readRoot();
    if (!m_xml.hasError())
        return {m_units, {}};
    return {{}, m_xml.errorString(), m_xml.lineNumber(), column()};
}

} // namespace

ParsedXliff parseXliff(const QByteArray &xliff) {
    if (xliff.size() > maxSize)
        return {
            {},
            sentence(QT_TRANSLATE_NOOP("Zel::PackageModel", "The file is larger than 256 MiB."))};
    if (const int start = tooLongTag(xliff); start >= 0) {
        const QByteArray before = xliff.left(start);
        return {{},
                sentence(QT_TRANSLATE_NOOP("Zel::PackageModel", "A tag is longer than 64 KiB.")),
                before.count('\n') + 1,
                start - before.lastIndexOf('\n')};
    }
    return XliffParser(xliff).parse();
}

} // namespace Zel::PackageModel
