#pragma once

#include <tano/tano_package_export.h>

#include <cstdint>
#include <memory>
#include <string>

class QFile;

namespace Tano {

class PackageInfo;

/// A place in a manifest, counted from 1; the column counts characters. Line 0 means no place.
struct SourcePosition {
    std::uint64_t line = 0;
    std::uint64_t column = 0;
};

/// Reads manifests, tells exactly where one is malformed and, where asked to, where each field
/// stands.
///
/// The format is XML 1.0 (Fifth Edition) in UTF-8 and is described in docs/manifest-format.md.
/// Reading is strict and bounded: no document type declaration, no NUL, nothing after the root
/// element, at most maxDepth elements within each other, maxAttributes attributes on an element
/// and maxTagLength bytes in a tag. Files are refused beyond maxFileSize bytes, and if they are
/// folders or devices.
class TANO_PACKAGE_EXPORT ManifestReader {
public:
    static constexpr int maxDepth = 64;
    static constexpr int maxAttributes = 64;
    static constexpr std::size_t maxTagLength = std::size_t(1) << 20;
    static constexpr std::int64_t maxFileSize = std::int64_t(1) << 30;

    /// Whether to remember where the fields stand, which position() then answers.
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
    [[nodiscard]] const std::string &errorMessage() const;
    /// Where it was wrong; no place where the file itself could not be read.
    [[nodiscard]] SourcePosition errorPosition() const;
    /// The place and the sentence in one: "Line 3, column 7: ...".
    [[nodiscard]] std::string errorString() const;

    /// Where the field at `path` stands, for example "names[fr_FR]" or
    /// "behaviors[greet].triggerSentences[ja_JP]"; where the field is missing, where the nearest
    /// element around it stands. The empty path is the root element.
    [[nodiscard]] SourcePosition position(const std::string &path) const;

private:
    struct State;
    std::unique_ptr<State> m_state;
};

} // namespace Tano
