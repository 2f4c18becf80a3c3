#pragma once

#include "folded_text.h"
#include "xml_reading.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace Tano {

/// Whether a text contains a tag, a comment or other markup. An unterminated "<" only counts as a
/// tag if the name of a known element follows.
bool isSpeechScript(std::string_view text);

struct ScriptElement;

/// Extracts the plain text of one script.
class SpeechScriptReader {
public:
    /// `script` must outlive the reader.
    explicit SpeechScriptReader(std::string_view script);
    SpeechScriptReader(const SpeechScriptReader &) = delete;
    SpeechScriptReader &operator=(const SpeechScriptReader &) = delete;

    /// On a malformed script, returns false and sets errorString().
    [[nodiscard]] bool read();
    std::string errorString() const;
    std::string takePlainText() { return m_text.take(); }

private:
    // An open element.
    struct Frame {
        const ScriptElement *element;
        std::string name;
        FoldedText::Mark start;
        bool isAmidSilence; // whether the content at this position is skipped
        bool isSilent;      // whether all of its content is skipped
        bool isSettled;     // a desc or an alternative has replaced the rest
    };

    static void onStart(void *self, const XML_Char *name, const XML_Char **attributes);
    static void onEnd(void *self, const XML_Char *name);
    static void onText(void *self, const XML_Char *text, int size);

    void start(std::string_view name, const XML_Char **attributes);
    void end();
    void text(std::string_view text);

    bool feed(std::string_view bytes, bool isLast = false);
    bool isSilentHere(std::string_view name) const;
    void fail(std::string sentence);
    void failFromExpat();
    std::size_t offset() const;

    std::string_view m_script;
    std::size_t m_declarationSize;
    ExpatHandle m_parser;
    std::uint64_t m_fed = 0;
    bool m_isInside = false; // the wrapping element has started
    std::vector<Frame> m_open;
    FoldedText m_text;
    std::string m_failure;
    std::size_t m_failureOffset = 0;
};

} // namespace Tano
