#pragma once

#include "console/console.h"

#include <tano/manifest_reader.h>

#include <QString>

#include <string_view>

namespace ZelPackage {

/// Shows positions in a manifest on a terminal: the line, with a caret below the column.
///
/// ```
///   18 |   <brioRequirement minVersion="2.5" maxVersion="2.4"/>
///      |   ^
/// ```
class SourceExcerpt {
public:
    /// `content` is UTF-8 and must outlive this object.
    explicit SourceExcerpt(std::string_view content)
        : m_content(content) {}

    /// The two lines for a position, cut to the width of the console around the column. Fastest for
    /// ascending positions. Empty for a position beyond the content.
    QString at(Tano::SourcePosition position, Style caretStyle, const Console &console);

private:
    bool moveTo(Tano::SourcePosition position);
    bool advance();

    std::string_view m_content;
    // The position up to which lines and characters have been counted.
    std::size_t m_lineStart = 0;
    std::size_t m_offset = 0;
    Tano::SourcePosition m_position{1, 1};
};

} // namespace ZelPackage
