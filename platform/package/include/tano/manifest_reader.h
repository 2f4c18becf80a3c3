#pragma once

#include <tano/field_path.h>
#include <tano/tano_package_export.h>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

class QFile;

namespace Tano {

class PackageInfo;

/// A place in a manifest, counted from 1; the column counts characters. Line 0 means no place.
struct SourcePosition {
    std::uint64_t line = 0;
    std::uint64_t column = 0;
};

/// An element or attribute without a namespace that the format does not know: one of a newer
/// version, or a misspelled one.
struct UnknownNode {
    enum class Kind : std::uint8_t { Element, Attribute };

    Kind kind = Kind::Element;
    std::string name;
    std::string parent;      ///< the name of the known element around it
    FieldPath parentPath;    ///< the field of that element
    SourcePosition position; ///< of the element, or of the tag with the attribute
    int index = 0;           ///< among those of its list with the same name and parent
};

/// Reads manifests and reports the exact position of an error and, if asked, of each field.
///
/// The format is XML 1.0 (Fifth Edition) in UTF-8 and is described in docs/manifest-format.md.
/// Reading is strict and bounded: no document type declaration, no NUL, nothing after the root
/// element, at most maxDepth elements within each other, maxAttributes attributes on an element,
/// maxTagLength bytes in a tag and maxKeyLength bytes in a key (a language code, a purpose, a
/// behavior's path, a topic name, the name of a service or property). Files are refused
/// beyond maxFileSize bytes, and if they are folders or devices. Time and memory are linear in the
/// size of the input.
class TANO_PACKAGE_EXPORT ManifestReader {
public:
    static constexpr int maxDepth = 64;
    static constexpr int maxAttributes = 64;
    static constexpr std::size_t maxTagLength = std::size_t(1) << 20;
    static constexpr std::int64_t maxFileSize = std::int64_t(1) << 30;
    static constexpr std::size_t maxKeyLength = std::size_t(4) << 10;

    /// Whether to keep what position() and unknownNodes() return.
    enum class Positions { Discard, Keep };

    explicit ManifestReader(Positions positions = Positions::Discard);
    ~ManifestReader();
    ManifestReader(const ManifestReader &) = delete;
    ManifestReader &operator=(const ManifestReader &) = delete;

    /// Reads `content` into `package`, which stays as it was when this returns false.
    [[nodiscard]] bool readContent(const std::string &content, PackageInfo &package);
    /// Reads `file`: from its current position when it is open, else by opening it.
    [[nodiscard]] bool readFile(QFile &file, PackageInfo &package);

    /// What was wrong, as a sentence without its place; empty after a success.
    const std::string &errorMessage() const;
    /// Where it was wrong; no place where the file itself could not be read.
    SourcePosition errorPosition() const;
    /// The place and the sentence in one: "Line 3, column 7: ...".
    std::string errorString() const;

    /// The position of the field at `path`; for a missing field, that of the nearest element around
    /// it, such as its language's block of texts. The empty path is the root element. No position
    /// without Positions::Keep.
    SourcePosition position(const FieldPath &path) const;
    /// The same for a path as text; the root element's for a malformed path.
    SourcePosition position(const std::string &path) const;

    /// The unknown elements and attributes without a namespace, in the order of the file; of an
    /// element within an unknown one, only the outer. Empty without Positions::Keep.
    std::vector<UnknownNode> unknownNodes() const;

private:
    struct State;
    std::unique_ptr<State> m_state;
};

} // namespace Tano
