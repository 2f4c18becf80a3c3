#include "matches_model.h"

#include "widgets/plain_text.h"

#include <QStringBuilder>

namespace Editor {

using Zel::PackageModel::TextMatch;
using Zel::PackageModel::TextMatches;

namespace {

// A match with surrounding words on one line.
QString excerptOf(const TextMatch &match) {
    constexpr int before = 30;
    constexpr int after = 90;
    const QString ellipsis = QStringLiteral("…");
    const int begin = std::max(0, match.start - before);
    const int end = std::min(int(match.text.size()), match.start + match.length + after);
    const QString excerpt = match.text.mid(begin, end - begin).simplified();
    return QString((begin > 0 ? ellipsis : QString()) % excerpt %
                   (end < match.text.size() ? ellipsis : QString()));
}

} // namespace

int MatchesModel::rowCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : int(m_matches.size());
}

int MatchesModel::columnCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : 2;
}

QVariant MatchesModel::data(const QModelIndex &index, int role) const {
    if (!index.isValid() || !checkIndex(index))
        return {};
    const TextMatch &match = m_matches.at(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return index.column() == Field ? Zel::PackageModel::label(match.path) : excerptOf(match);
    case Qt::ToolTipRole:
        return toolTipOf(match.text);
    case PathRole:
        return Zel::fromUtf8(match.path.toString());
    default:
        return {};
    }
}

QVariant MatchesModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    return section == Field ? tr("Field") : tr("Text");
}

void MatchesModel::clear() {
    beginResetModel();
    m_matches.clear();
    endResetModel();
}

void MatchesModel::append(const TextMatches &matches) {
    if (matches.isEmpty())
        return;
    const int first = int(m_matches.size());
    beginInsertRows({}, first, first + int(matches.size()) - 1);
    m_matches += matches;
    endInsertRows();
}

} // namespace Editor
