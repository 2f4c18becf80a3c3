#include <packagemodel/near_words.h>

#include <algorithm>
#include <numeric>
#include <utility>
#include <vector>

namespace Zel {
namespace {

// The number of single characters to insert, delete, replace or swap with a neighbor.
int editDistance(const QString &a, const QString &b) {
    const int columns = int(b.size()) + 1;
    std::vector<int> beforeLast(std::size_t(columns), 0);
    std::vector<int> last(static_cast<std::size_t>(columns), 0);
    std::iota(last.begin(), last.end(), 0);
    std::vector<int> current = last;
    for (int i = 1; i <= a.size(); ++i) {
        current[0] = i;
        for (int j = 1; j < columns; ++j) {
            const auto at = std::size_t(j);
            const int replaced = last[at - 1] + (a.at(i - 1) == b.at(j - 1) ? 0 : 1);
            current[at] = std::min({replaced, last[at] + 1, current[at - 1] + 1});
            if (i > 1 && j > 1 && a.at(i - 1) == b.at(j - 2) && a.at(i - 2) == b.at(j - 1))
                current[at] = std::min(current[at], beforeLast[at - 2] + 1);
        }
        beforeLast.swap(last);
        last.swap(current);
    }
    return last.back();
}

// The largest distance at which a word counts as misspelled.
int mostSlips(const QString &given) {
    return std::max(1, int(given.size()) / 3);
}

// Whether `given` is `word` with characters left out.
bool isShortened(const QString &given, const QString &word) {
    auto next = given.begin();
    for (const QChar character : word) {
        if (next != given.end() && character == next->toLower())
            ++next;
    }
    return given.size() > 2 && next == given.end();
}

} // namespace

QStringList nearWords(const QString &given, const QStringList &words) {
    std::vector<std::pair<int, QString>> near;
    for (const QString &word : words) {
        const int distance = editDistance(given.toLower(), word.toLower());
        if (distance <= mostSlips(given) || isShortened(given, word))
            near.emplace_back(distance, word);
    }
    std::stable_sort(near.begin(), near.end(),
                     [](const auto &a, const auto &b) { return a.first < b.first; });
    QStringList result;
    for (const auto &[distance, word] : near)
        result += word;
    return result;
}

QString nearestWord(const QString &given, const QStringList &words) {
    QString nearest;
    int smallest = 1 + mostSlips(given);
    for (const QString &word : words) {
        const int distance = editDistance(given.toLower(), word.toLower());
        if (distance < smallest) {
            smallest = distance;
            nearest = word;
        }
    }
    if (!nearest.isEmpty() || given.size() < 2)
        return nearest;
    const auto begun = std::find_if(words.begin(), words.end(), [&](const QString &word) {
        return word.startsWith(given, Qt::CaseInsensitive);
    });
    return begun == words.end() ? QString() : *begun;
}

} // namespace Zel
