#pragma once

#include "manifest_finding.h"

#include <tano/field_path.h>

#include <QHash>
#include <QString>

#include <string>
#include <vector>

namespace ZelPackage {

/// The comments of a manifest that turn off rules:
///
/// ```
/// <!-- zel-package: ignore text-blank, nature-unknown -->
/// <behavior path="greet" nature="solo"/>
/// ```
///
/// Such a comment applies to the element that follows it and to the content of that element; before
/// the root element, to the whole manifest. One that no element follows applies to the element
/// around it. Since a block of texts is no field, one before its first text applies to the block.
class IgnoreComments {
public:
    explicit IgnoreComments(const Tano::PackageInfo &record);

    /// Whether a comment turns off the rule for the field, which counts as a use of it.
    bool ignores(const QString &rule, const QString &field);

    /// The rules of comments that were not used and the ones that do not exist. They have no
    /// position; their field is the one that follows the comment.
    std::vector<ManifestFinding> findings() const;

private:
    struct Ignored {
        QString rule;
        Tano::FieldPath element; // the field that follows the comment
        bool isBlock;            // the texts in its language, instead
        bool isUsed = false;
    };

    static bool covers(const Ignored &ignored, const Tano::FieldPath &field);

    std::vector<Ignored> m_ignored;                    // in the order of the comments
    QHash<QString, std::vector<std::size_t>> m_byRule; // indexes
};

} // namespace ZelPackage
