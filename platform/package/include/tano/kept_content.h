#pragma once

#include <tano/manifest_reader.h>
#include <tano/package_info.h>

#include <optional>
#include <string>
#include <utility>
#include <vector>

// What a manifest holds beyond the fields of its records: comments, and elements and attributes
// that the format does not know. Records keep such content where it was, and save it again. The
// functions below list it and change it. UTF-8 throughout.
//
// ```
// for (const Tano::KeptComment &comment : Tano::comments(package))
//     std::cout << comment.before << ':' << comment.text << '\n'; // behaviors[greet]: the first
//     one
//
// for (const Tano::UnknownNode &node : Tano::unknownNodes(package)) {
//     if (node.name == "behaviour")
//         package = Tano::withRenamedNode(package, node, "behavior").value_or(package);
// }
// ```
//
// Each function takes time proportional to the size of the manifest. Those that return a package
// return what its changed manifest reads as, and never change the package that they are given.

namespace Tano {

/// A comment of a manifest. Comments within unknown elements belong to those, and are not listed.
struct KeptComment {
    std::string text; ///< between `<!--` and `-->`, white space included
    /// The element that the comment is in: `author` for one within that text, `behaviors[greet]`.
    /// Empty for the root element, and outside it. Since a block of texts is no field, a comment in
    /// it has the package or behavior as its parent.
    FieldPath parent;
    /// The field whose element comes next when the manifest is written, for example
    /// `robotRequirements[1]` or `behaviors[greet].tags[en_US][0]`; the parent for a comment that
    /// no field follows in its element or block of texts. Of a comment before a block, the first
    /// text in the block: `names[fr_FR]`.
    FieldPath before;
    int index = 0; ///< among the comments with the same text, parent and `before`
};

/// The comments of a package in the order of writing.
[[nodiscard]] TANO_PACKAGE_EXPORT std::vector<KeptComment> comments(const PackageInfo &package);

/// Whether any comment has such a part; quicker than comments().
[[nodiscard]] TANO_PACKAGE_EXPORT bool hasComment(const PackageInfo &package,
                                                  const std::string &part);

/// The package without that comment; the same package if it has no such comment, or cannot be
/// saved.
[[nodiscard]] TANO_PACKAGE_EXPORT PackageInfo withoutComment(const PackageInfo &package,
                                                             const KeptComment &comment);

/// The same for several comments at once; those that the package does not have are left out.
[[nodiscard]] TANO_PACKAGE_EXPORT PackageInfo
withoutComments(const PackageInfo &package, const std::vector<KeptComment> &removed);

/// The package with a comment directly before the element of a field.
///
/// Of a list, or a map of texts, that is the first entry. Where the field has no element, selectors
/// and steps of its path are left out until there is one: an absent entry has its comment before
/// the first entry of its list, an attribute or another absent field before the element around it,
/// which for a field of the package itself is the root element.
///
/// XML allows neither `--` nor a final `-` in a comment: a space goes between, and behind. Returns
/// the same package if the result could not be read: if the comment exceeds
/// ManifestReader::maxTagLength or holds characters outside XML, or the package cannot be saved.
[[nodiscard]] TANO_PACKAGE_EXPORT PackageInfo withComment(const PackageInfo &package,
                                                          const FieldPath &before,
                                                          const std::string &text);
/// The same for several comments at once, of which only `text` and `before` count; all or none.
/// Those before the same element keep their order.
[[nodiscard]] TANO_PACKAGE_EXPORT PackageInfo withComments(const PackageInfo &package,
                                                           const std::vector<KeptComment> &added);

/// The unknown elements and attributes without a namespace that a package holds, in the order of
/// writing and without positions; of an element within an unknown one, only the outer.
/// ManifestReader::unknownNodes() returns those of a file.
[[nodiscard]] TANO_PACKAGE_EXPORT std::vector<UnknownNode> unknownNodes(const PackageInfo &package);

/// An element or attribute beyond the format, of any namespace, as it is written.
struct KeptNode {
    UnknownNode::Kind kind;
    std::string name;     ///< with its prefix; `xmlns:x` for the declaration of one
    std::string xml;      ///< the whole element, or ` name="value"`
    std::string parent;   ///< the name of the element around it
    FieldPath parentPath; ///< of that element; of a block of texts, the package or behavior
    std::string language; ///< of the block of texts; empty for another parent
};

/// All of them in the order of writing; of an element within one, only the outer.
[[nodiscard]] TANO_PACKAGE_EXPORT std::vector<KeptNode> keptNodes(const PackageInfo &package);

/// A package with other nodes, and those that could not be added.
struct ChangedNodes {
    PackageInfo package;
    std::vector<KeptNode> left;
};

/// Removes nodes and adds others, elements at the start of their parent. Nodes are left whose
/// parent is absent; all of them, and nothing is removed, if the result could not be read.
[[nodiscard]] TANO_PACKAGE_EXPORT ChangedNodes withKeptNodes(const PackageInfo &package,
                                                             const std::vector<KeptNode> &removed,
                                                             const std::vector<KeptNode> &added);

/// The names that the format knows where a node is: of attributes for an attribute, of elements for
/// an element. Empty if no manifest has such a parent.
[[nodiscard]] TANO_PACKAGE_EXPORT std::vector<std::string> knownNames(const UnknownNode &node);

/// The package as if an unknown node had one of its known names: `<behaviour path="x"/>` becomes a
/// behavior, `minversion="2.1"` a bound of a requirement. Comments and other unknown content stay,
/// those within a renamed element included.
///
/// Returns nothing if the package has no such node or cannot be saved, or if the result would be no
/// valid manifest, for example because the field is there already.
[[nodiscard]] TANO_PACKAGE_EXPORT std::optional<PackageInfo>
withRenamedNode(const PackageInfo &package, const UnknownNode &node, const std::string &name);
/// The same for several nodes at once; all or none.
[[nodiscard]] TANO_PACKAGE_EXPORT std::optional<PackageInfo>
withRenamedNodes(const PackageInfo &package,
                 const std::vector<std::pair<UnknownNode, std::string>> &renamed);

} // namespace Tano
