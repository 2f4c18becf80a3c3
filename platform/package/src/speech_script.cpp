#include "speech_script.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>
#include <optional>

namespace Tano {

// What an element contributes to the plain text.
enum class Gives { Text, Nothing, FirstAlternative, Description };

// When the text before and after an element is separated by a space.
enum class Apart { Never, Always, WhenEmpty };

struct ScriptElement {
    std::string_view name;
    Gives gives;
    Apart apart;
};

namespace {

// SSML 1.1, section 3, and SRGS 1.0, sections 2.4 to 2.6.
constexpr std::array<ScriptElement, 23> elements{{
    {"speak", Gives::Text, Apart::Always},
    {"p", Gives::Text, Apart::Always},
    {"s", Gives::Text, Apart::Always},
    {"break", Gives::Nothing, Apart::Always},
    {"sub", Gives::Text, Apart::Never},
    {"phoneme", Gives::Text, Apart::Never},
    {"say-as", Gives::Text, Apart::Never},
    {"prosody", Gives::Text, Apart::Never},
    {"emphasis", Gives::Text, Apart::Never},
    {"voice", Gives::Text, Apart::Never},
    {"lang", Gives::Text, Apart::Never},
    {"lookup", Gives::Text, Apart::Never},
    {"token", Gives::Text, Apart::Never},
    {"w", Gives::Text, Apart::Never},
    {"audio", Gives::Description, Apart::WhenEmpty},
    {"desc", Gives::Text, Apart::Always},
    {"mark", Gives::Nothing, Apart::Never},
    {"meta", Gives::Nothing, Apart::Never},
    {"metadata", Gives::Nothing, Apart::Never},
    {"lexicon", Gives::Nothing, Apart::Never},
    {"tag", Gives::Nothing, Apart::Never},
    {"one-of", Gives::FirstAlternative, Apart::Always},
    {"item", Gives::Text, Apart::Always},
}};
constexpr ScriptElement foreignElement{{}, Gives::Text, Apart::WhenEmpty};

// A script need not have a root element, so it is wrapped in this one.
constexpr std::string_view enclosingTag = "<script>";

constexpr const char *endWithoutStart = "The end tag has no start tag.";

constexpr std::size_t chunkSize = std::size_t(1) << 20;

const ScriptElement &elementNamed(std::string_view name) {
    const auto *it = std::find_if(elements.begin(), elements.end(),
                                  [&](const auto &element) { return element.name == name; });
    return it == elements.end() ? foreignElement : *it;
}

bool startsWith(std::string_view text, std::string_view start) {
    return text.substr(0, start.size()) == start;
}

// Any byte of a non-ASCII character counts; the parser validates it later.
bool startsName(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' || c == ':' ||
           static_cast<unsigned char>(c) >= 0x80;
}

std::string_view nameAt(std::string_view text) {
    return text.substr(0, text.find_first_of(" \t\r\n/<>"));
}

// The XML declaration at the start, empty if there is none.
std::string_view declarationOf(std::string_view script) {
    constexpr std::string_view start = "<?xml";
    if (!startsWith(script, start) || !isWhiteSpace(script.substr(start.size(), 1)))
        return {};
    return script.substr(0, std::min(script.find("?>"), script.size() - 2) + 2);
}

// Consumes the number at the start of the text.
std::optional<std::uint64_t> takeNumber(std::string_view &text) {
    std::uint64_t number = 0;
    const auto [next, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc())
        return {};
    text.remove_prefix(std::size_t(next - text.data()));
    return number;
}

// The maximum of a repeat of the form "n", "m-n" or "m-" (SRGS 1.0, section 2.5); nullopt if it is
// malformed.
std::optional<std::uint64_t> mostOf(std::string_view repeat) {
    const auto least = takeNumber(repeat);
    auto most = least;
    if (least && startsWith(repeat, "-")) {
        repeat.remove_prefix(1);
        most = repeat.empty() ? std::numeric_limits<std::uint64_t>::max() : takeNumber(repeat);
    }
    return most && repeat.empty() && *least <= *most ? most : std::nullopt;
}

const char *valueOf(const XML_Char **attributes, std::string_view name) {
    for (; *attributes; attributes += 2) {
        if (attributes[0] == name)
            return attributes[1];
    }
    return nullptr;
}

SourcePosition positionAt(std::string_view text, std::size_t offset) {
    SourcePosition position{1, 1};
    for (std::size_t i = 0; i < offset; ++i) {
        const char c = text[i];
        const bool endsLine = c == '\n' || (c == '\r' && text.substr(i + 1, 1) != "\n");
        if (endsLine)
            position = {position.line + 1, 1};
        else if ((static_cast<unsigned char>(c) & 0xC0U) != 0x80U)
            ++position.column;
    }
    return position;
}

} // namespace

bool isSpeechScript(std::string_view text) {
    const std::size_t lastEnd = text.rfind('>');
    for (std::size_t i = text.find('<'); i != std::string_view::npos; i = text.find('<', i + 1)) {
        std::string_view rest = text.substr(i + 1);
        if (startsWith(rest, "!--") || startsWith(rest, "![CDATA[") || startsWith(rest, "!DOCTYPE"))
            return true;
        if (startsWith(rest, "/") || startsWith(rest, "?"))
            rest.remove_prefix(1);
        if (rest.empty() || !startsName(rest.front()))
            continue;
        const bool mayEnd = lastEnd != std::string_view::npos && lastEnd > i;
        if (mayEnd || &elementNamed(nameAt(rest)) != &foreignElement)
            return true;
    }
    return false;
}

SpeechScriptReader::SpeechScriptReader(std::string_view script)
    : m_script(script)
    , m_declarationSize(declarationOf(script).size())
    , m_parser(XML_ParserCreate("UTF-8"), &XML_ParserFree) {
    XML_SetUserData(m_parser.get(), this);
    XML_SetElementHandler(m_parser.get(), onStart, onEnd);
    XML_SetCharacterDataHandler(m_parser.get(), onText);
}

bool SpeechScriptReader::read() {
    bool isFine = feed(m_script.substr(0, m_declarationSize)) && feed(enclosingTag);
    for (std::size_t i = m_declarationSize; isFine && i < m_script.size(); i += chunkSize)
        isFine = feed(m_script.substr(i, chunkSize));
    return isFine && feed({}, true);
}

bool SpeechScriptReader::feed(std::string_view bytes, bool isLast) {
    m_fed += bytes.size();
    const XML_Status status =
        XML_Parse(m_parser.get(), bytes.data(), int(bytes.size()), isLast ? XML_TRUE : XML_FALSE);
    if (m_failure.empty() && status == XML_STATUS_ERROR)
        failFromExpat();
    const XML_Index parsed = XML_GetCurrentByteIndex(m_parser.get());
    if (!isLast && parsed >= 0 && m_fed - std::uint64_t(parsed) > hopelessLag)
        fail(tagTooLong);
    return m_failure.empty();
}

void SpeechScriptReader::onStart(void *self, const XML_Char *name, const XML_Char **attributes) {
    static_cast<SpeechScriptReader *>(self)->start(name, attributes);
}

void SpeechScriptReader::onEnd(void *self, const XML_Char *) {
    static_cast<SpeechScriptReader *>(self)->end();
}

void SpeechScriptReader::onText(void *self, const XML_Char *text, int size) {
    static_cast<SpeechScriptReader *>(self)->text({text, std::size_t(size)});
}

// Whether an element is skipped at this position.
bool SpeechScriptReader::isSilentHere(std::string_view name) const {
    if (m_open.empty())
        return false;
    const Frame &parent = m_open.back();
    const bool isDescription = parent.element->gives == Gives::Description && name == "desc";
    return parent.isSilent || (parent.isSettled && !isDescription);
}

void SpeechScriptReader::start(std::string_view name, const XML_Char **attributes) {
    if (!m_failure.empty())
        return;
    if (!std::exchange(m_isInside, true))
        return; // the wrapping element
    if (std::string sentence = exceededBound(m_parser.get(), name, int(m_open.size()) + 1);
        !sentence.empty())
        return fail(std::move(sentence));
    if (name == "speak" && !m_open.empty())
        return fail("The element <speak> is within another element; it can only be the root.");

    const ScriptElement &element = elementNamed(name);
    const bool isAmidSilence = isSilentHere(name);
    bool isSilent = isAmidSilence || element.gives == Gives::Nothing;
    if (const char *repeat = valueOf(attributes, "repeat"); repeat && name == "item") {
        const auto most = mostOf(repeat);
        if (!most)
            return fail("The repeat " + quoted(repeat) +
                        " is malformed; it is a number, or a range such as 0-1 or 1-.");
        isSilent = isSilent || *most == 0;
    }

    if (!isAmidSilence && name == "desc" && !m_open.empty() &&
        m_open.back().element->gives == Gives::Description &&
        !std::exchange(m_open.back().isSettled, true))
        m_text.rewind(m_open.back().start);
    if (!isAmidSilence && element.apart == Apart::Always)
        m_text.separate();
    m_open.push_back({&element, std::string(name), m_text.mark(), isAmidSilence, isSilent, false});
}

void SpeechScriptReader::end() {
    if (!m_failure.empty())
        return;
    if (m_open.empty())
        return fail(endWithoutStart);
    const Frame frame = std::move(m_open.back());
    m_open.pop_back();
    if (frame.isAmidSilence)
        return;
    const bool isEmpty = m_text.size() == frame.start.size;
    const Apart apart = frame.element->apart;
    if (apart == Apart::Always || (apart == Apart::WhenEmpty && isEmpty))
        m_text.separate();
    if (!m_open.empty() && m_open.back().element->gives == Gives::FirstAlternative && !isEmpty)
        m_open.back().isSettled = true;
}

void SpeechScriptReader::text(std::string_view text) {
    if (!m_failure.empty())
        return;
    if (m_open.empty()) {
        m_text.append(text);
        return;
    }
    const Frame &frame = m_open.back();
    if (frame.element->gives == Gives::FirstAlternative) {
        if (!isWhiteSpace(text))
            fail("There is text between the alternatives of <one-of>; each must be an <item>.");
    } else if (!frame.isSilent && !frame.isSettled) {
        m_text.append(text);
    }
}

// The parser's offset in the script, without the wrapping start tag.
std::size_t SpeechScriptReader::offset() const {
    const XML_Index index = XML_GetCurrentByteIndex(m_parser.get());
    const std::size_t read = index < 0 ? 0 : std::size_t(index);
    const std::size_t inserted =
        std::min(read - std::min(read, m_declarationSize), enclosingTag.size());
    return std::min(read - inserted, m_script.size());
}

void SpeechScriptReader::fail(std::string sentence) {
    if (!m_failure.empty())
        return;
    m_failure = std::move(sentence);
    m_failureOffset = offset();
    XML_StopParser(m_parser.get(), XML_FALSE);
}

void SpeechScriptReader::failFromExpat() {
    constexpr std::string_view doctype = "<!DOCTYPE";
    constexpr std::size_t doctypeLead = 2; // the parser reports the error after "<!"

    // The wrapping element is still open, so a complete script appears to lack its end.
    const XML_Error error = XML_GetErrorCode(m_parser.get());
    const bool isEnd = error == XML_ERROR_NO_ELEMENTS;
    if (isEnd && m_open.empty())
        return;
    m_failureOffset = offset();
    if (isEnd) {
        m_failure = "The script ends while " + tagged(m_open.back().name) + " is open.";
    } else if (m_failureOffset >= doctypeLead &&
               startsWith(m_script.substr(m_failureOffset - doctypeLead), doctype)) {
        m_failureOffset -= doctypeLead;
        m_failure = documentType;
    } else if (error == XML_ERROR_TAG_MISMATCH && m_open.empty()) {
        m_failure = endWithoutStart;
    } else {
        m_failure = describeXmlError(m_parser.get(), "script");
    }
}

std::string SpeechScriptReader::errorString() const {
    return withPosition(m_failure, positionAt(m_script, m_failureOffset));
}

} // namespace Tano
