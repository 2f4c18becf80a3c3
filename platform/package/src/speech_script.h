#pragma once

#include "folded_text.h"
#include "xml_reading.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace Tano {

/// Whether a text holds a tag, a comment or another piece of markup. Where nothing follows that
/// could end it, a "<" only begins a tag when the name of one of the known elements follows.
bool isSpeechScript(std::string_view text);

struct ScriptElement;

/// Makes the plain text of one script.
class SpeechScriptReader {
public:
    /// `script` has to live as long as the reader.
    explicit SpeechScriptReader(std::string_view script);
    SpeechScriptReader(const SpeechScriptReader &) = delete;
    SpeechScriptReader &operator=(const SpeechScriptReader &) = delete;

    /// Returns false, and sets errorString(), for a script that is malformed.
    [[nodiscard]] bool read();
    std::string errorString() const;
    std::string takePlainText() { return m_text.take(); }

private:
    // An open element.
    struct Frame {
        const ScriptElement *element;
        std::string name;
        FoldedText::Mark start;
        bool isAmidSilence; // whether nothing that stands here is read
        bool isSilent;      // whether nothing in it is read
        bool isSettled;     // a desc, or an alternative, stands for the rest
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
    bool m_isInside = false; // the enclosing element has started
    std::vector<Frame> m_open;
    FoldedText m_text;
    std::string m_failure;
    std::size_t m_failureOffset = 0;
};

} // namespace Tano
