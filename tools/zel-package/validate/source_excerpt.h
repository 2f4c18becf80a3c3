#pragma once

#include "console/console.h"

#include <tano/manifest_reader.h>

#include <QString>

#include <string_view>

namespace ZelPackage {

/// Shows places of a manifest on a terminal: the line, and a caret below the column.
///
/// ```
///   18 |   <brioRequirement minVersion="2.5" maxVersion="2.4"/>
///      |   ^
/// ```
class SourceExcerpt {
public:
    /// `content`, in UTF-8, must outlive the excerpts.
    explicit SourceExcerpt(std::string_view content)
        : m_content(content) {}

    /// The two lines for a place, of at most the width of the console: of a long line, the part
    /// around the column. Fastest for ascending positions. Empty for a place beyond the content.
    QString at(Tano::SourcePosition position, Style caretStyle, const Console &console);

private:
    bool moveTo(Tano::SourcePosition position);
    bool advance();

    std::string_view m_content;
    // The place up to which lines and characters are counted.
    std::size_t m_lineStart = 0;
    std::size_t m_offset = 0;
    Tano::SourcePosition m_position{1, 1};
};

} // namespace ZelPackage
