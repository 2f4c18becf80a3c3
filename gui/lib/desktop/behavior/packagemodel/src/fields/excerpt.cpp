#include <packagemodel/change_words.h>

#include <QStringBuilder>

#include <algorithm>

namespace Zel::PackageModel {
namespace {

constexpr int longestExcerpt = 60;
constexpr int shownBefore = 20; // characters of the common prefix

// The last character boundary at or before an index.
int boundaryAt(const QString &text, int index) {
    const bool isWithin = index > 0 && index < text.size() && text.at(index).isLowSurrogate();
    return isWithin ? index - 1 : index;
}

QString excerptFrom(const QString &text, int wanted) {
    const int start = boundaryAt(text, wanted);
    const int end = boundaryAt(text, std::min(int(text.size()), start + longestExcerpt));
    const QString ellipsis = QStringLiteral("…");
    return u'"' % (start > 0 ? ellipsis : QString()) % text.mid(start, end - start) %
           (end < text.size() ? ellipsis : QString()) % u'"';
}

} // namespace

QString excerpt(const QString &text) {
    return excerptFrom(text, 0);
}

Excerpts excerpts(const QString &before, const QString &after) {
    const int shorter = int(std::min(before.size(), after.size()));
    int common = 0;
    while (common < shorter && before.at(common) == after.at(common))
        ++common;
    const bool isInView = common + shownBefore < longestExcerpt;
    const int start = isInView ? 0 : common - shownBefore;
    return {excerptFrom(before, start), excerptFrom(after, start)};
}

} // namespace Zel::PackageModel
