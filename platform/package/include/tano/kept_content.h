#pragma once

#include <tano/manifest_reader.h>
#include <tano/package_info.h>

#include <optional>
#include <string>
#include <utility>
#include <vector>

/// @file
/// Lists and changes the content of a manifest beyond the fields of its records: comments, and
/// elements and attributes that the format does not define. Records keep such content in its place
/// and save it again. All texts are UTF-8.
///
/// ```cpp
/// for (const Tano::KeptComment &comment : Tano::comments(record))
///     out << QString::fromStdString(comment.before.toString() + ": " + comment.text);
///
/// for (const Tano::UnknownNode &node : Tano::unknownNodes(record)) {
///     if (node.name == "behaviour")
///         record = Tano::withRenamedNode(record, node, "behavior").value_or(record);
/// }
/// ```
///
/// Each function takes time proportional to the size of the manifest. Functions that return a
/// package never change their argument.

namespace Tano {

/// A comment of a manifest. Comments inside unknown elements are part of these, and not listed.
struct KeptComment {
    std::string text; ///< between `<!--` and `-->`, white space included
    /// The element around the comment: `author` for one inside that text, or `behaviors[greet]`.
    /// Empty for the root element and outside it. A comment in a block of texts, which is not a
    /// field, has the package or behavior as its parent.
    FieldPath parent;
    /// The field whose element follows in the written manifest, for example `robotRequirements[1]`
    /// or `behaviors[greet].tags[en_US][0]`; the parent if no field follows in its element or block
    /// of texts. For a comment before a block, the first text in the block: `names[fr_FR]`.
    FieldPath before;
    int index = 0; ///< among comments with the same text, parent and `before`
};

/// The comments of a package in the order of the written manifest.
TANO_PACKAGE_EXPORT std::vector<KeptComment> comments(const PackageInfo &package);

/// Whether any comment contains `part`; faster than comments().
TANO_PACKAGE_EXPORT bool hasComment(const PackageInfo &package, const std::string &part);

/// Removes a comment; returns the package unchanged if it has no such comment or cannot be saved.
[[nodiscard]] TANO_PACKAGE_EXPORT PackageInfo withoutComment(const PackageInfo &package,
                                                             const KeptComment &comment);

/// Removes several comments at once; those that the package does not have are ignored.
[[nodiscard]] TANO_PACKAGE_EXPORT PackageInfo
withoutComments(const PackageInfo &package, const std::vector<KeptComment> &removed);

/// Adds a comment directly before the element of a field: for a list or a map of texts, before its
/// first entry. If the field has no element, selectors and steps are dropped from its path until
/// there is one: the comment of an absent entry goes before the first entry of its list, that of an
/// attribute or another absent field before the element around it.
///
/// Since XML allows neither `--` nor a final `-` in a comment, spaces are added there. Returns the
/// package unchanged if the comment exceeds ManifestReader::maxTagLength or contains characters
/// that XML cannot represent, or if the package cannot be saved.
[[nodiscard]] TANO_PACKAGE_EXPORT PackageInfo withComment(const PackageInfo &package,
                                                          const FieldPath &before,
                                                          const std::string &text);
/// Adds all comments or none; only their `text` and `before` count. Comments before the same
/// element keep their order.
[[nodiscard]] TANO_PACKAGE_EXPORT PackageInfo withComments(const PackageInfo &package,
                                                           const std::vector<KeptComment> &added);

/// The unknown elements and attributes without a namespace, in the order of the written manifest
/// and without those inside other unknown elements. They have no positions; see
/// ManifestReader::unknownNodes() for those of a file.
TANO_PACKAGE_EXPORT std::vector<UnknownNode> unknownNodes(const PackageInfo &package);

/// An element or attribute beyond the format, in any namespace, as it is written.
struct KeptNode {
    UnknownNode::Kind kind; ///< element or attribute
    std::string name;       ///< with its prefix; `xmlns:x` declares one
    std::string xml;        ///< the whole element, or ` name="value"`
    std::string parent;     ///< the name of the element around it
    FieldPath parentPath;   ///< of that element; for a block of texts, the package or behavior
    std::string language;   ///< of the block of texts; empty for other parents
};

/// All elements and attributes beyond the format, in the order of the written manifest and without
/// those inside others.
TANO_PACKAGE_EXPORT std::vector<KeptNode> keptNodes(const PackageInfo &package);

/// Whether there are any; faster than keptNodes().
TANO_PACKAGE_EXPORT bool hasKeptNodes(const PackageInfo &package);

/// The outcome of withKeptNodes().
struct ChangedNodes {
    PackageInfo package;        ///< with the changes
    std::vector<KeptNode> left; ///< nodes that could not be added
};

/// Removes nodes and adds others; elements are added at the start of their parent. Nodes whose
/// parent is absent are not added. If the result would not be a valid manifest, nothing is changed.
[[nodiscard]] TANO_PACKAGE_EXPORT ChangedNodes withKeptNodes(const PackageInfo &package,
                                                             const std::vector<KeptNode> &removed,
                                                             const std::vector<KeptNode> &added);

/// The names of elements or attributes, depending on the kind of the node, that the format defines
/// for its parent. Empty if the format has no such parent.
TANO_PACKAGE_EXPORT std::vector<std::string> knownNames(const UnknownNode &node);

/// Gives an unknown node one of its known names: `<behaviour path="x"/>` becomes a behavior,
/// `minversion="2.1"` a bound of a requirement. Comments and other unknown content are kept, also
/// inside a renamed element.
///
/// Returns nullopt if the package has no such node or cannot be saved, or if the result would not
/// be a valid manifest, for example because the field is present already.
[[nodiscard]] TANO_PACKAGE_EXPORT std::optional<PackageInfo>
withRenamedNode(const PackageInfo &package, const UnknownNode &node, const std::string &name);
/// Renames all of several nodes or none.
[[nodiscard]] TANO_PACKAGE_EXPORT std::optional<PackageInfo>
withRenamedNodes(const PackageInfo &package,
                 const std::vector<std::pair<UnknownNode, std::string>> &renamed);

} // namespace Tano
