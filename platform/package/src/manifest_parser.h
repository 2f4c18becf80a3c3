#pragma once

#include "field_positions.h"
#include "line_counter.h"
#include "manifest_attributes.h"
#include "record_builder.h"
#include "seen_keys.h"
#include "xml_namespaces.h"
#include "xml_reading.h"

#include <array>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace Tano {

/// Why and where a manifest was rejected; the message is empty on success.
struct ManifestFailure {
    std::string message;
    SourcePosition position;
};

/// Builds a package's record from the bytes of its manifest, passed in one or more pieces.
///
/// Open elements are kept on an explicit stack of frames, so neither the parser nor the C++ stack
/// grows with the input. Content unknown to the format is captured as raw text.
class ManifestParser {
public:
    explicit ManifestParser(bool keepFieldPositions);
    ManifestParser(const ManifestParser &) = delete;
    ManifestParser &operator=(const ManifestParser &) = delete;

    /// A buffer for the next bytes, at most maxPiece of them; null after a rejection.
    ///
    /// A manifest in one piece is read a sixth faster: expat counts the lines of every piece but
    /// the last.
    char *room(std::size_t size);
    /// Parses the bytes written to the buffer; returns false after a rejection.
    bool feed(std::size_t size, bool isLast);

    static constexpr std::size_t maxPiece = std::size_t(64) << 20;

    const ManifestFailure &failure() const { return m_failure; }
    /// The record, once all bytes were fed successfully.
    [[nodiscard]] std::shared_ptr<PackageData> takePackage();
    FieldPositions takeFieldPositions() { return std::move(m_positions); }

private:
    // An open element known to the format.
    struct Frame {
        Element element = Element::Package;
        const ElementRule *rule = nullptr; // of the element
        std::string key;                   // the value of its key attribute
        int index = 0;                     // among the siblings of its kind (and key)
        static_assert(mostChildren <= 32);
        std::uint32_t seen = 0;   // a bit for each child that has occurred
        std::size_t child = 0;    // the last child, as an index in the rule
        std::size_t unplaced = 0; // the first entry of extras->kept that waits for the next child
        SeenKeys keys;            // of the children that may not repeat
        std::shared_ptr<Extras> extras;
        FieldPositions::NodeId node = 0; // if positions are kept

        Extras &ownExtras() {
            if (!extras)
                extras = std::make_shared<Extras>();
            return *extras;
        }
    };

    // expat's handlers
    static void onStart(void *self, const XML_Char *name, const XML_Char **attributes);
    static void onEnd(void *self, const XML_Char *name);
    static void onText(void *self, const XML_Char *text, int size);
    static void onComment(void *self, const XML_Char *text);
    static void onInstruction(void *self, const XML_Char *target, const XML_Char *data);
    static void onRaw(void *self, const XML_Char *raw, int size);
    static void onDoctype(void *self, const XML_Char *name, const XML_Char *systemId,
                          const XML_Char *publicId, int hasInternalSubset);
    static void onDeclaration(void *self, const XML_Char *version, const XML_Char *encoding,
                              int standalone);

    void start(std::string_view name, const XML_Char **attributes);
    void end();
    void text(std::string_view text);
    void startUnknown(std::string_view name, const XML_Char **attributes);
    void keepRaw(std::string xml);

    bool checkTag();
    bool checkInstruction(std::string_view target);
    bool declareNamespaces(const XML_Char **attributes);
    void openFrame(Element element, const XML_Char **attributes);
    bool keepAttributes(Frame &frame, const XML_Char **attributes);
    void useNamespace(Frame &record, const XmlNamespaces::Binding &binding);
    bool checkOccurrence(Frame &parent, const Frame &child);
    void placeKept(Frame &parent, const Frame &child);
    void storeExtras(Frame &frame);
    void notePositions(Frame &frame, const XML_Char **attributes);

    Frame &top() { return m_frames[std::size_t(m_open - 1)]; }
    Frame &parentOf(const Frame &frame) {
        return m_frames[std::size_t(&frame - m_frames.data()) - 1];
    }
    static Position positionOf(const Frame &frame);
    static std::string describe(const Frame &frame);
    SourcePosition here() const;
    SourcePosition countLines(std::uint64_t offset);
    std::uint64_t eventOffset() const;

    void fail(std::string message);
    void failFromExpat();

    ExpatHandle m_parser;
    ManifestFailure m_failure;
    char *m_room = nullptr;
    std::uint64_t m_fed = 0; // the bytes before m_room
    bool m_isEmpty = true;
    const ElementRule *m_rules = &ruleOf(Element::Prolog); // of all elements, by number
    bool m_keepsPositions;
    FieldPositions m_positions;
    LineCounter m_lines; // used if positions are kept
    std::uint64_t m_linesCounted = 0;
    XmlNamespaces m_namespaces;

    std::array<Frame, deepestKnown> m_frames;
    int m_open = 0;
    int m_depth = 0;        // of all open elements
    int m_unknownDepth = 0; // of the open elements that are captured as raw text
    bool m_rootDone = false;
    std::string m_raw;
    std::string m_text;              // of the open text element
    ManifestAttributes m_attributes; // of the element that starts

    RecordBuilder m_builder;
    std::shared_ptr<Extras> m_packageExtras;
    std::vector<Extras::Kept> m_outside; // content outside the root element
};

} // namespace Tano
