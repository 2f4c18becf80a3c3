#pragma once

#include "manifest_finding.h"

#include <tano/field_path.h>

#include <QHash>
#include <QString>

#include <string>
#include <vector>

namespace ZelPackage {

/// The comments of a manifest that disable rules:
///
/// ```
/// <!-- zel-package: ignore text-blank, nature-unknown -->
/// <behavior path="greet" nature="solo"/>
/// ```
///
/// A comment applies to the following element and its content; before the root element, to the
/// whole manifest; at the end of an element, to that element. Since a text block is not a field, a
/// comment before its first text applies to the block.
class IgnoreComments {
public:
    explicit IgnoreComments(const Tano::PackageInfo &record);

    /// Whether a comment disables the rule for the field. Marks the comment as used.
    bool ignores(const QString &rule, const QString &field);

    /// Reports unused comments and unknown rules. These findings have no position; their field is
    /// the one after the comment.
    std::vector<ManifestFinding> findings() const;

private:
    struct Ignored {
        QString rule;
        Tano::FieldPath element; // the field after the comment
        bool isBlock;            // applies to the texts in its language instead
        bool isUsed = false;
    };

    static bool covers(const Ignored &ignored, const Tano::FieldPath &field);

    std::vector<Ignored> m_ignored;                    // in document order
    QHash<QString, std::vector<std::size_t>> m_byRule; // indexes into m_ignored
};

} // namespace ZelPackage
