#include "problem_order.h"

#include "field_edits.h"

#include <packagemodel/package_info_model.h>
#include <packagemodel/text_conversion.h>

#include <QHash>

#include <algorithm>
#include <map>
#include <numeric>
#include <sstream>
#include <string>
#include <tuple>
#include <vector>

namespace Editor {
namespace {

using Tano::FieldPath;
using Zel::PackageInfoModel;
using Zel::PackageModel::Issue;

// Fields as the pages show them. Those of entries are compared only with fields of the same entry.
constexpr const char *fieldOrder =
    "topicName name uid version typeVersion path installer author organization date channel "
    "nature userRequestable supportedLanguages descriptionLanguages names descriptions "
    "triggerSentences loadingResponses tags conditions permissions topics execStart autoRun "
    "properties model minHeadVersion maxHeadVersion minBodyVersion maxBodyVersion minVersion "
    "maxVersion robotRequirements brioRequirements behaviors dialogs services";

std::map<std::string, int> rankTable() {
    std::map<std::string, int> ranks;
    std::istringstream names(fieldOrder);
    for (std::string name; names >> name;)
        ranks.emplace(name, int(ranks.size()));
    return ranks;
}

// The path of a whole package or entry precedes its fields.
int rankOf(const FieldPath &path, std::size_t step) {
    static const auto all = rankTable();
    const auto found = step < path.steps().size() ? all.find(path.steps()[step].field) : all.end();
    return found == all.end() ? -1 : found->second;
}

using Key = QPair<QString, QString>; // of an entry: its list and its key there

struct Place {
    FieldPath path;
    Key key;
};

// The rows of the entries that have issues.
class EntryRows {
public:
    EntryRows(const PackageInfoModel &package, const std::vector<Place> &places) {
        for (const Place &place : places)
            m_rows.insert(place.key, {});
        find(QStringLiteral("behaviors"), package.behaviors(), &Zel::BehaviorInfoModel::path);
        find(QStringLiteral("dialogs"), package.dialogs(), &Zel::DialogInfoModel::topicName);
        find(QStringLiteral("services"), package.services(), &Zel::ServiceInfoModel::name);
    }
    // Of other lists, the index in the path.
    int of(const Place &place) const {
        const FieldPath &path = place.path;
        if (path.isEmpty() || path.steps().front().selectors.empty())
            return 0;
        const auto &selectors = path.steps().front().selectors;
        const int occurrence = selectors.size() > 1 ? selectors[1].toIndex().value_or(0) : 0;
        return m_rows.value(place.key).value(occurrence, selectors.front().toIndex().value_or(0));
    }

private:
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
    std::vector<Place> places;
    for (const Issue &issue : issues) {
        const auto path = FieldPath::parse(Zel::toUtf8(issue.path)).value_or(FieldPath());
        places.push_back({path, {fieldName(path), fieldKey(path)}});
    }
    const EntryRows rows(package, places);
    std::vector<std::tuple<int, int, int, int>> ranks;
    for (std::size_t i = 0; i < places.size(); ++i) {
        const FieldPath &path = places[i].path;
        ranks.emplace_back(-int(issues.at(int(i)).severity), rankOf(path, 0), rows.of(places[i]),
                           rankOf(path, 1));
    }
    QVector<int> order(issues.size());
    std::iota(order.begin(), order.end(), 0);
    std::stable_sort(order.begin(), order.end(),
                     [&](int a, int b) { return ranks[std::size_t(a)] < ranks[std::size_t(b)]; });
    return order;
}

} // namespace Editor
