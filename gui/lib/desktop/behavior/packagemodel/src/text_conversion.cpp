#include <packagemodel/text_conversion.h>

#include <string_view>

namespace Zel {
namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

// Appends a surrogate as if UTF-8 could encode it.
void appendSurrogate(std::string &bytes, char16_t surrogate) {
    bytes += static_cast<char>(0xE0 | (surrogate >> 12));
    bytes += static_cast<char>(0x80 | ((surrogate >> 6) & 0x3F));
    bytes += static_cast<char>(0x80 | (surrogate & 0x3F));
}

// QString::toUtf8() replaces lone surrogates by question marks.
std::string encodeWithSurrogates(const QString &text) {
    std::string bytes;
    int done = 0;
    for (int i = 0; i < text.size(); ++i) {
        if (!text.at(i).isSurrogate())
            continue;
        if (text.at(i).isHighSurrogate() && i + 1 < text.size() &&
            text.at(i + 1).isLowSurrogate()) {
            ++i;
            continue;
        }
        bytes += text.mid(done, i - done).toUtf8().constData();
        appendSurrogate(bytes, text.at(i).unicode());
        done = i + 1;
    }
    return bytes += text.mid(done).toUtf8().constData();
}

} // namespace

QString fromUtf8(const std::string &text) {
    // Qt drops one leading byte order mark; add another one for it to drop.
    if (text.rfind(byteOrderMark, 0) == 0)
        return QString::fromUtf8(std::string(byteOrderMark).append(text).c_str());
    return QString::fromUtf8(text.c_str());
}

std::string toUtf8(const QString &text) {
    if (text.isValidUtf16())
        return text.toUtf8().constData();
    return encodeWithSurrogates(text.left(text.indexOf(QChar::Null)));
}

QString removeSuffix(const QString &code) {
    return code.left(code.size() - PackageModel::k_sa.text().size());
}

} // namespace Zel
