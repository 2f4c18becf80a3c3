#include "patch_names.h"

#include "arguments/native_text.h"
#include "manifest/manifest_source.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <utility>
#include <vector>

namespace ZelPackage {
namespace {

namespace fs = std::filesystem;

bool isControl(char byte) {
    return (byte >= 0 && byte < ' ') || byte == '\x7f';
}

bool needsQuotes(const QString &name) {
    const std::string bytes = nativeBytes(name);
    return hasForeignBytes(name) || name.startsWith(u' ') || name.endsWith(u' ') ||
           std::any_of(bytes.begin(), bytes.end(),
                       [](char byte) { return isControl(byte) || byte == '"' || byte == '\\'; });
}

// Quotes with C escapes; bytes beyond ASCII become octal.
QString quoted(const QString &name) {
    constexpr std::array<std::pair<char, char>, 9> escapes{{{'\a', 'a'},
                                                            {'\b', 'b'},
                                                            {'\t', 't'},
                                                            {'\n', 'n'},
                                                            {'\v', 'v'},
                                                            {'\f', 'f'},
                                                            {'\r', 'r'},
                                                            {'"', '"'},
                                                            {'\\', '\\'}}};
    QString result = QStringLiteral("\"");
    for (const char byte : nativeBytes(name)) {
        const auto escape = std::find_if(escapes.begin(), escapes.end(),
                                         [&](const auto &pair) { return pair.first == byte; });
        if (escape != escapes.end())
            result += u'\\' % QLatin1Char(escape->second);
        else if (isControl(byte) || byte < 0)
            result += QStringLiteral("\\%1").arg(uint(uchar(byte)), 3, 8, QChar(u'0'));
        else
            result += QLatin1Char(byte);
    }
    return result % u'"';
}

QString headerName(const QString &name) {
    if (needsQuotes(name))
        return quoted(name);
    return name.contains(u' ') ? name % u'\t' : name;
}

bool isOutside(const fs::path &relative) {
    return relative.empty() || *relative.begin() == "..";
}

} // namespace

QStringList patchNames(const QStringList &files) {
    std::error_code error; // missing files are reported when they are read
    const fs::path here = fs::canonical(".", error);
    std::vector<fs::path> paths;
    bool areBelow = true;
    for (const QString &file : files) {
        paths.push_back(isStandardStream(file) ? here / "-"
                                               : fs::canonical(nativeBytes(file), error));
        areBelow = areBelow && !isOutside(paths.back().lexically_relative(here));
    }
    QStringList names;
    for (const fs::path &path : paths) {
        const fs::path name = areBelow ? path.lexically_relative(here) : path.relative_path();
        names += headerName(nativeText(QByteArray::fromStdString(name.string())));
    }
    return names;
}

} // namespace ZelPackage
