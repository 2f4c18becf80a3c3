#include "manifest_parser.h"

#include "page_release.h"
#include "xml_escape.h"

#include <QByteArray>

#include <algorithm>
#include <iterator>
#include <utility>

namespace Tano {
namespace {

ManifestParser &parserAt(void *self) {
    return *static_cast<ManifestParser *>(self);
}

// Normalizes line ends like an XML processor, so that kept text has only one kind.
void normalizeLineEnds(std::string &text) {
    if (text.find('\r') == std::string::npos)
        return;
    std::string normalized;
    normalized.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\r')
            normalized += text[i];
        else if (i + 1 == text.size() || text[i + 1] != '\n')
            normalized += '\n';
    }
    text = std::move(normalized);
}

// expat detects UTF-16 regardless of the encoding that it is given.
bool looksLikeUtf16(std::string_view bytes) {
    using namespace std::string_view_literals;
    const std::string_view start = bytes.substr(0, 2);
    return start == "\xFF\xFE"sv || start == "\xFE\xFF"sv || start == "<\0"sv || start == "\0<"sv;
}

} // namespace

ManifestParser::ManifestParser(bool keepFieldPositions)
    : m_parser(XML_ParserCreate("UTF-8"), &XML_ParserFree)
    , m_keepsPositions(keepFieldPositions) {
    XML_Parser parser = m_parser.get();
    XML_SetUserData(parser, this);
    XML_SetElementHandler(parser, onStart, onEnd);
    XML_SetCharacterDataHandler(parser, onText);
    XML_SetCommentHandler(parser, onComment);
    XML_SetProcessingInstructionHandler(parser, onInstruction);
    XML_SetDefaultHandler(parser, onRaw);
    XML_SetStartDoctypeDeclHandler(parser, onDoctype);
    XML_SetXmlDeclHandler(parser, onDeclaration);
}

char *ManifestParser::room(std::size_t size) {
    if (!m_failure.message.empty())
        return nullptr;
    m_room = static_cast<char *>(XML_GetBuffer(m_parser.get(), int(size)));
    if (!m_room)
        m_failure = {"There is not enough memory for the manifest.", {}};
    return m_room;
}

bool ManifestParser::feed(std::size_t size, bool isLast) {
    if (m_fed == 0 && looksLikeUtf16({m_room, size})) {
        m_failure = {"The text is UTF-16; a manifest is UTF-8.", {1, 1}};
        return false;
    }
    m_isEmpty = m_isEmpty && size == 0;
    m_isLastPiece = isLast;
    const XML_Status status = XML_ParseBuffer(m_parser.get(), int(size), isLast);
    if (!m_failure.message.empty())
        return false;
    if (status == XML_STATUS_ERROR) {
        failFromExpat();
        return false;
    }
    if (m_keepsPositions && !isLast)
        countLines(eventOffset() + std::uint64_t(XML_GetCurrentByteCount(m_parser.get())));
    m_fed += size;
    const XML_Index parsed = XML_GetCurrentByteIndex(m_parser.get());
    if (!isLast && parsed >= 0 && m_fed - std::uint64_t(parsed) > hopelessLag) {
        fail(tagTooLong);
        return false;
    }
    return true;
}

void ManifestParser::onStart(void *self, const XML_Char *name, const XML_Char **attributes) {
    parserAt(self).start(name, attributes);
}

void ManifestParser::onEnd(void *self, const XML_Char *) {
    parserAt(self).end();
}

void ManifestParser::onText(void *self, const XML_Char *text, int size) {
    parserAt(self).text({text, std::size_t(size)});
}

void ManifestParser::onComment(void *self, const XML_Char *text) {
    auto &parser = parserAt(self);
    if (parser.m_unknownDepth > 0)
        XML_DefaultCurrent(parser.m_parser.get());
    else if (parser.checkTag())
        parser.keepRaw("<!--" + std::string(text) + "-->");
}

void ManifestParser::onInstruction(void *self, const XML_Char *target, const XML_Char *data) {
    auto &parser = parserAt(self);
    if (!parser.checkInstruction(target))
        return;
    if (parser.m_unknownDepth > 0)
        XML_DefaultCurrent(parser.m_parser.get());
    else if (parser.checkTag())
        parser.keepRaw("<?" + std::string(target) + (*data ? " " : "") + data + "?>");
}

void ManifestParser::onRaw(void *self, const XML_Char *raw, int size) {
    auto &parser = parserAt(self);
    if (parser.m_unknownDepth > 0)
        parser.m_raw.append(raw, std::size_t(size));
}

void ManifestParser::onDoctype(void *self, const XML_Char *, const XML_Char *, const XML_Char *,
                               int) {
    parserAt(self).fail(documentType);
}

void ManifestParser::onDeclaration(void *self, const XML_Char *version, const XML_Char *encoding,
                                   int) {
    auto &parser = parserAt(self);
    if (version && std::string_view(version) != "1.0")
        parser.fail("XML version " + quoted(version) + " is not supported; a manifest is XML 1.0.");
    else if (encoding && qstricmp(encoding, "UTF-8") != 0)
        parser.fail("The encoding " + quoted(encoding) + " is not supported; a manifest is UTF-8.");
}

bool ManifestParser::checkTag() {
    if (!m_failure.message.empty())
        return false;
    const int length = XML_GetCurrentByteCount(m_parser.get());
    if (std::size_t(length) > ManifestReader::maxTagLength) {
        fail(tagTooLong);
        return false;
    }
    return true;
}

bool ManifestParser::checkInstruction(std::string_view target) {
    if (target.find(':') == std::string_view::npos)
        return m_failure.message.empty();
    fail("The name of a processing instruction, " + quoted(target) + ", cannot contain a colon.");
    return false;
}

bool ManifestParser::declareNamespaces(const XML_Char **attributes) {
    bool hasDeclarations = false;
    for (auto attribute = attributes; *attribute; attribute += 2)
        hasDeclarations = hasDeclarations || XmlNamespaces::isDeclaration(*attribute);
    if (!hasDeclarations)
        return true;
    std::string sentence = m_namespaces.declare(m_depth, attributes);
    if (!sentence.empty())
        fail(std::move(sentence));
    return m_failure.message.empty();
}

void ManifestParser::start(std::string_view name, const XML_Char **attributes) {
    if (!m_failure.message.empty())
        return;
    if (isBeyondBounds(m_parser.get(), ++m_depth))
        return fail(exceededBound(m_parser.get(), name, m_depth));
    if (*attributes && !declareNamespaces(attributes))
        return;

    if (m_unknownDepth > 0)
        return startUnknown(name, attributes);
    const bool isForeign = !m_namespaces.isEmpty() && !m_namespaces.defaultNamespace().empty();
    if (m_open == 0) {
        if (name != ruleOf(Element::Package).name)
            return fail("The root element is " + tagged(name) + " instead of <package>.");
        if (isForeign)
            return fail("The root element <package> is in the namespace " +
                        quoted(m_namespaces.defaultNamespace()) + "; a manifest has no namespace.");
        openFrame(Element::Package, attributes);
        return;
    }
    const Rows<Element> &children = top().rule->children;
    const std::size_t child =
        isForeign ? children.size() : childNamed(*top().rule, name, top().child);
    if (child < children.size()) {
        top().child = child;
        openFrame(children[child], attributes);
        return;
    }
    m_raw.clear();
    if (m_keepsPositions && !isForeign && name.find(':') == std::string_view::npos) {
        m_positions.addUnknown(top().node, UnknownNode::Kind::Element, std::string(name),
                               countLines(eventOffset()));
    }
    startUnknown(name, attributes);
}

// Starts an unknown element, or one within it, which is kept as raw text.
void ManifestParser::startUnknown(std::string_view name, const XML_Char **attributes) {
    const auto use = [this](const XmlNamespaces::Binding &binding) {
        if (m_open > 1)
            useNamespace(m_frames[1], binding);
    };
    std::string sentence = m_namespaces.checkElement(name, use);
    if (sentence.empty())
        sentence = m_namespaces.checkAttributes(attributes, use);
    if (!sentence.empty())
        return fail(std::move(sentence));
    ++m_unknownDepth;
    XML_DefaultCurrent(m_parser.get());
}

void ManifestParser::end() {
    if (!m_failure.message.empty())
        return;
    if (m_namespaces.hasDeclarationsAt(m_depth))
        m_namespaces.leave(m_depth);
    --m_depth;
    if (m_unknownDepth > 0) {
        XML_DefaultCurrent(m_parser.get());
        if (--m_unknownDepth == 0)
            keepRaw(std::move(m_raw));
        return;
    }

    Frame &frame = top();
    if (frame.rule->content == Content::Text)
        m_builder.text(frame.element, frame.key, m_text);
    else if (frame.rule->field.empty() && m_open > 1)
        m_builder.endTexts(frame.element);
    if (frame.extras)
        storeExtras(frame);
    if (--m_open == 0)
        m_rootDone = true;
    if (m_open == 1 && m_releasesBytes && m_isLastPiece)
        releaseBytes();
}

// Called between the children of the root element. expat compares the name in its end tag with the
// bytes of its start tag, so those stay.
void ManifestParser::releaseBytes() {
    constexpr std::uint64_t step = std::uint64_t(64) << 10;
    const std::uint64_t parsed = eventOffset();
    const std::uint64_t from = std::max({m_released, m_fed, m_rootEnd});
    if (parsed < from + step)
        return;
    releasePages(m_room + (from - m_fed), m_room + (parsed - m_fed));
    m_released = parsed;
}

void ManifestParser::text(std::string_view text) {
    if (!m_failure.message.empty())
        return;
    if (m_unknownDepth > 0) {
        XML_DefaultCurrent(m_parser.get());
        return;
    }
    if (m_open == 0)
        return;
    if (top().rule->content == Content::Text)
        m_text += text;
    else if (!isWhiteSpace(text))
        fail("Text is not allowed in " + tagged(top().rule->name) + '.');
}

// Comments, processing instructions and unknown elements are pending until the next child. Those at
// the same position share an entry.
void ManifestParser::keepRaw(std::string xml) {
    normalizeLineEnds(xml);
    xml += '\0';
    const bool isOutside = m_open == 0;
    Position position;
    if (isOutside)
        position.element = m_rootDone ? Element::Epilog : Element::Prolog;
    else if (top().rule->content == Content::Text)
        position = {Element::InText, int(m_text.size()), {}};

    auto &kept = isOutside ? m_outside : top().ownExtras().kept;
    const std::size_t placed = isOutside ? 0 : top().unplaced;
    const bool isAtLast = kept.size() > placed && !(kept.back().before < position);
    if (isAtLast)
        kept.back().xml += xml;
    else
        kept.push_back({std::move(position), std::move(xml)});
}

void ManifestParser::openFrame(Element element, const XML_Char **attributes) {
    Frame &frame = m_frames[std::size_t(m_open)];
    frame.element = element;
    frame.rule = m_rules + std::size_t(element);
    frame.seen = 0;
    frame.child = 0;
    frame.unplaced = 0;
    frame.keys.clear();
    frame.extras.reset();
    if (std::string sentence = m_attributes.read(*frame.rule, attributes); !sentence.empty())
        return fail(std::move(sentence));
    frame.key = m_attributes.key(*frame.rule);
    if (m_attributes.hasUnknown() && !keepAttributes(frame, attributes))
        return;

    ++m_open;
    if (m_open > 1) {
        frame.index = m_builder.count(frame.element, frame.key);
        Frame &parent = parentOf(frame);
        if (!checkOccurrence(parent, frame))
            return;
        placeKept(parent, frame);
    }
    if (m_keepsPositions)
        notePositions(frame, attributes);
    if (frame.rule->content == Content::Text)
        m_text.clear();
    if (m_open > 1) {
        m_builder.start(frame.element, frame.key, m_attributes.values());
    } else {
        m_builder.startPackage(m_attributes.values());
        m_rootEnd = eventOffset() + std::uint64_t(XML_GetCurrentByteCount(m_parser.get()));
    }
}

bool ManifestParser::keepAttributes(Frame &frame, const XML_Char **attributes) {
    const bool isRoot = m_open == 0;
    std::string sentence =
        m_namespaces.checkAttributes(attributes, [&](const XmlNamespaces::Binding &binding) {
            if (!isRoot)
                useNamespace(m_open == 1 ? frame : m_frames[1], binding);
        });
    if (!sentence.empty()) {
        fail(std::move(sentence));
        return false;
    }
    Extras &extras = frame.ownExtras();
    if (isRoot)
        extras.namespaces = m_namespaces.declared();
    for (; *attributes; attributes += 2) {
        if (ManifestAttributes::isKnown(*frame.rule, attributes[0]))
            continue;
        ((extras.attributes += ' ') += attributes[0]) += "=\"";
        appendEscaped(extras.attributes, attributes[1], EscapeFor::Attribute);
        extras.attributes += '"';
    }
    return true;
}

// A behavior or dialog records the prefixes of the root element that it uses.
void ManifestParser::useNamespace(Frame &record, const XmlNamespaces::Binding &binding) {
    constexpr int rootDepth = 1;
    if (!record.rule->isRecord || binding.depth != rootDepth)
        return;
    auto &used = record.ownExtras().namespaces;
    if (std::find(used.begin(), used.end(), binding.declared) == used.end())
        used.push_back(binding.declared);
}

bool ManifestParser::checkOccurrence(Frame &parent, const Frame &child) {
    const ElementRule &rule = *child.rule;
    bool isNew = true;
    if (rule.occurs == Occurs::Once) {
        const std::uint32_t bit = 1U << parent.child;
        isNew = !(parent.seen & bit);
        parent.seen |= bit;
    } else if (rule.occurs == Occurs::OncePerKey) {
        isNew = parent.keys.add(child.element, child.key);
    }
    if (!isNew)
        fail("The element " + describe(child) + " occurs twice in " + describe(parent) + '.');
    return isNew;
}

void ManifestParser::placeKept(Frame &parent, const Frame &child) {
    if (!parent.extras)
        return;
    auto &kept = parent.extras->kept;
    if (parent.unplaced == kept.size())
        return;
    kept.back().before = positionOf(child);
    parent.unplaced = kept.size();
}

void ManifestParser::storeExtras(Frame &frame) {
    auto &children = frame.extras->children;
    std::sort(children.begin(), children.end(),
              [](const auto &a, const auto &b) { return a.position < b.position; });
    if (frame.rule->content == Content::Elements)
        rememberLists(*frame.extras,
                      [&](const auto &id) { return m_builder.listKeys(frame.element, id); });
    if (frame.element == Element::Package)
        m_packageExtras = std::move(frame.extras);
    else if (frame.rule->isRecord)
        m_builder.setExtras(frame.element, std::move(frame.extras));
    else
        parentOf(frame).ownExtras().children.push_back(
            {positionOf(frame), std::move(frame.extras)});
}

std::shared_ptr<PackageData> ManifestParser::takePackage() {
    if (!m_outside.empty()) {
        if (!m_packageExtras)
            m_packageExtras = std::make_shared<Extras>();
        std::move(m_outside.begin(), m_outside.end(), std::back_inserter(m_packageExtras->kept));
    }
    m_builder.setExtras(Element::Package, std::move(m_packageExtras));
    return m_builder.take();
}

Position ManifestParser::positionOf(const Frame &frame) {
    Position position{frame.element, frame.index, {}};
    if (frame.rule->sortedByKey && !frame.key.empty())
        position.key = std::make_shared<const std::string>(frame.key);
    return position;
}

void ManifestParser::notePositions(Frame &frame, const XML_Char **attributes) {
    const SourcePosition place = countLines(eventOffset());
    const FieldPositions::NodeId parent = m_open > 1 ? parentOf(frame).node : 0;
    frame.node = m_positions.add(parent, frame.element, frame.key, place);
    if (!m_attributes.hasUnknown())
        return;
    for (; *attributes; attributes += 2) {
        const std::string_view name = attributes[0];
        const bool isPlain = name != "xmlns" && name.find(':') == std::string_view::npos;
        if (isPlain && !ManifestAttributes::isKnown(*frame.rule, name))
            m_positions.addUnknown(frame.node, UnknownNode::Kind::Attribute, std::string(name),
                                   place);
    }
}

// Counts lines up to an offset. The bytes that the parser has not consumed yet end at the buffer
// for the next ones.
SourcePosition ManifestParser::countLines(std::uint64_t offset) {
    if (offset > m_linesCounted) {
        const char *end = m_room + (std::int64_t(offset) - std::int64_t(m_fed));
        const auto size = std::size_t(offset - m_linesCounted);
        m_lines.advance({end - size, size});
        m_linesCounted = offset;
    }
    return m_lines.position();
}

std::uint64_t ManifestParser::eventOffset() const {
    return std::uint64_t(std::max(XML_GetCurrentByteIndex(m_parser.get()), XML_Index(0)));
}

std::string ManifestParser::describe(const Frame &frame) {
    const ElementRule &rule = *frame.rule;
    std::string text(rule.name);
    if (rule.keyAttribute >= 0) {
        const auto &key = rule.attributes[std::size_t(rule.keyAttribute)].name;
        text += ' ' + std::string(key) + '=' + quoted(frame.key);
    }
    return tagged(text);
}

SourcePosition ManifestParser::here() const {
    return {XML_GetCurrentLineNumber(m_parser.get()),
            XML_GetCurrentColumnNumber(m_parser.get()) + 1};
}

void ManifestParser::fail(std::string message) {
    if (!m_failure.message.empty())
        return;
    m_failure = {shortened(std::move(message)), here()};
    XML_StopParser(m_parser.get(), XML_FALSE);
}

void ManifestParser::failFromExpat() {
    std::string sentence;
    if (XML_GetErrorCode(m_parser.get()) != XML_ERROR_NO_ELEMENTS)
        sentence = describeXmlError(m_parser.get(), "manifest");
    else if (m_open > 0)
        sentence = "The manifest ends while " + describe(top()) + " is open.";
    else
        sentence =
            m_isEmpty ? "The manifest is empty." : "The manifest ends before its root element.";
    m_failure = {shortened(std::move(sentence)), here()};
}

} // namespace Tano
