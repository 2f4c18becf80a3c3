#include "problem_order.h"

#include "field_edits.h"

#include <packagemodel/package_info_model.h>
#include <packagemodel/text_conversion.h>

#include <QHash>

#include <algorithm>
#include <numeric>
#include <tuple>
#include <unordered_map>
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

// The rows of entries that are selected by key.
class EntryRows {
public:
    explicit EntryRows(const PackageInfoModel &package) {
        add("behaviors", package.behaviors(), &Zel::BehaviorInfoModel::path);
        add("dialogs", package.dialogs(), &Zel::DialogInfoModel::topicName);
        add("services", package.services(), &Zel::ServiceInfoModel::name);
    }
    // Of other lists, the index in the path.
    int of(const FieldPath &path) const {
        if (path.isEmpty() || path.steps().front().selectors.empty())
            return 0;
        const auto &[field, selectors] = path.steps().front();
        FieldPath entry;
        entry.field(field).entry(selectors[0].text,
                                 selectors.size() > 1 ? selectors[1].toIndex().value_or(0) : 0);
        const auto found = m_rows.find(entry);
        return found == m_rows.end() ? selectors[0].toIndex().value_or(0) : found->second;
    }

private:
    template<typename Entry>
    void add(const char *list, const QVector<Entry *> &entries, QString (Entry::*key)() const) {
        QHash<QString, int> counts;
        for (int row = 0; row < entries.size(); ++row) {
            const QString name = (entries.at(row)->*key)();
            m_rows.emplace(FieldPath().field(list).entry(Zel::toUtf8(name), counts[name]++), row);
        }
    }

    std::unordered_map<FieldPath, int> m_rows;
};

} // namespace

QVector<int> problemOrder(const PackageInfoModel &package, const QVector<Issue> &issues) {
    const EntryRows rows(package);
    std::vector<std::tuple<int, int, int, int>> places;
    for (const Issue &issue : issues) {
        const auto path = FieldPath::parse(Zel::toUtf8(issue.path)).value_or(FieldPath());
        places.emplace_back(-int(issue.severity), rankOf(path, 0), rows.of(path), rankOf(path, 1));
    }
    QVector<int> order(issues.size());
    std::iota(order.begin(), order.end(), 0);
    std::stable_sort(order.begin(), order.end(),
                     [&](int a, int b) { return places[std::size_t(a)] < places[std::size_t(b)]; });
    return order;
}

} // namespace Editor
