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

/// A position in a manifest.
struct SourcePosition {
    std::uint64_t line = 0;   ///< counted from 1; 0 means no position
    std::uint64_t column = 0; ///< in characters, counted from 1
};

/// An element or attribute without a namespace that the format does not define: misspelled, or from
/// a newer version.
struct UnknownNode {
    /// Whether the node is an element or an attribute.
    enum class Kind : std::uint8_t { Element, Attribute };

    Kind kind = Kind::Element; ///< element or attribute
    std::string name;          ///< as written
    std::string parent;        ///< the name of the known element around it
    FieldPath parentPath;      ///< the field of that element
    SourcePosition position;   ///< of the element, or of the tag with the attribute
    int index = 0;             ///< among the nodes with the same name and parent
};

/// Reads manifests and reports the exact position of an error and, on request, of each field.
///
/// The format is XML 1.0 (Fifth Edition) in UTF-8 and is described in docs/manifest-format.md.
/// Reading is strict and bounded: no document type declaration, no NUL, nothing after the root
/// element, and limits on depth, attributes, tags, keys and files. Folders and devices are refused.
/// Time and memory are linear in the size of the input.
///
/// ```cpp
/// Tano::ManifestReader reader(Tano::ManifestReader::Positions::Keep);
/// if (reader.readContent(manifest, record))
///     out << reader.position("names[en_US]").line;
/// else
///     out << QString::fromStdString(reader.errorString()); // "Line 3, column 7: ..."
/// ```
class TANO_PACKAGE_EXPORT ManifestReader {
public:
    static constexpr int maxDepth = 64;      ///< of nested elements
    static constexpr int maxAttributes = 64; ///< on one element
    /// The length of a tag, a comment or a processing instruction, in bytes.
    static constexpr std::size_t maxTagLength = std::size_t(1) << 20;
    /// The size of a file, in bytes.
    static constexpr std::int64_t maxFileSize = std::int64_t(1) << 30;
    /// The length of a key, in bytes: a language code, a purpose, a behavior's path, a topic name,
    /// or the name of a service or property.
    static constexpr std::size_t maxKeyLength = std::size_t(4) << 10;

    /// Whether to keep the data for position() and unknownNodes(), which takes memory.
    enum class Positions { Discard, Keep };

    /// A reader for any number of manifests, one after the other.
    explicit ManifestReader(Positions positions = Positions::Discard);
    ~ManifestReader();
    ManifestReader(const ManifestReader &) = delete;
    ManifestReader &operator=(const ManifestReader &) = delete;

    /// Reads `content` into `package`, which is left unchanged if this returns false.
    [[nodiscard]] bool readContent(const std::string &content, PackageInfo &package);
    /// Reads `file`, from its current position if it is open.
    [[nodiscard]] bool readFile(QFile &file, PackageInfo &package);

    /// The error as a sentence without its position; empty on success.
    const std::string &errorMessage() const;
    /// The position of the error; none if the file itself could not be read.
    SourcePosition errorPosition() const;
    /// Position and message of the error: "Line 3, column 7: ...".
    std::string errorString() const;

    /// The position of the field at `path`; for a missing field, that of the nearest element around
    /// it, such as its language's block of texts. The empty path is the root element. No position
    /// without Positions::Keep.
    SourcePosition position(const FieldPath &path) const;
    /// The same for a path as text. A malformed path has the position of the root element.
    SourcePosition position(const std::string &path) const;

    /// The unknown elements and attributes without a namespace, in the order of the file, without
    /// those inside other unknown elements. Empty without Positions::Keep.
    std::vector<UnknownNode> unknownNodes() const;

private:
    struct State;
    std::unique_ptr<State> m_state;
};

} // namespace Tano
