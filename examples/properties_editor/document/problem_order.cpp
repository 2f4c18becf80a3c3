#include "problem_order.h"

#include "field_edits.h"

#include <packagemodel/package_info_model.h>
#include <packagemodel/text_conversion.h>

#include <QHash>

#include <algorithm>
#include <numeric>
#include <tuple>
#include <vector>

namespace Editor {
namespace {

using Tano::FieldPath;
using Zel::PackageInfoModel;
using Zel::PackageModel::Issue;

// Fields as the pages show them. Those of entries are compared only with fields of the same entry.
constexpr char fieldOrder[] =
    "topicName name uid version typeVersion path installer author organization date channel "
    "nature userRequestable supportedLanguages descriptionLanguages names descriptions "
    "triggerSentences loadingResponses tags conditions permissions topics execStart autoRun "
    "properties model minHeadVersion maxHeadVersion minBodyVersion maxBodyVersion minVersion "
    "maxVersion robotRequirements brioRequirements behaviors dialogs services";

int rankOf(const FieldPath &path, std::size_t step) {
    static const QStringList order = QString::fromLatin1(fieldOrder).split(u' ');
    // The path of a whole package or entry precedes its fields.
    return step < path.steps().size() ? 1 + int(order.indexOf(fieldName(path, step))) : 0;
}

// The rows of the entries that have issues.
class EntryRows {
public:
    EntryRows(const PackageInfoModel &package, const std::vector<FieldPath> &paths) {
        for (const FieldPath &path : paths)
            m_rows.insert(keyOf(path), {});
        find(QStringLiteral("behaviors"), package.behaviors(), &Zel::BehaviorInfoModel::path);
        find(QStringLiteral("dialogs"), package.dialogs(), &Zel::DialogInfoModel::topicName);
        find(QStringLiteral("services"), package.services(), &Zel::ServiceInfoModel::name);
    }
    // Of other lists, the index in the path.
    int of(const FieldPath &path) const {
        if (path.isEmpty() || path.steps().front().selectors.empty())
            return 0;
        const auto &selectors = path.steps().front().selectors;
        const int occurrence = selectors.size() > 1 ? selectors[1].toIndex().value_or(0) : 0;
        return m_rows.value(keyOf(path)).value(occurrence, selectors.front().toIndex().value_or(0));
    }

private:
    using Key = QPair<QString, QString>; // list and key

    static Key keyOf(const FieldPath &path) { return {fieldName(path), fieldKey(path)}; }

    template<typename Entry>
    void find(const QString &list, const QVector<Entry *> &entries, QString (Entry::*key)() const) {
        for (int row = 0; row < entries.size(); ++row) {
            const auto rows = m_rows.find({list, (entries.at(row)->*key)()});
            if (rows != m_rows.end())
                rows->append(row);
        }
    }

    QHash<Key, QVector<int>> m_rows;
};

} // namespace

QVector<int> problemOrder(const PackageInfoModel &package, const QVector<Issue> &issues) {
    std::vector<FieldPath> paths;
    for (const Issue &issue : issues)
        paths.push_back(FieldPath::parse(Zel::toUtf8(issue.path)).value_or(FieldPath()));
    const EntryRows rows(package, paths);
    std::vector<std::tuple<int, int, int, int>> places;
    for (std::size_t i = 0; i < paths.size(); ++i)
        places.emplace_back(-int(issues.at(int(i)).severity), rankOf(paths[i], 0),
                            rows.of(paths[i]), rankOf(paths[i], 1));
    QVector<int> order(issues.size());
    std::iota(order.begin(), order.end(), 0);
    std::stable_sort(order.begin(), order.end(),
                     [&](int a, int b) { return places[std::size_t(a)] < places[std::size_t(b)]; });
    return order;
}

} // namespace Editor
