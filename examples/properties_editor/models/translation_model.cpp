#include "translation_model.h"

#include <QElapsedTimer>

#include <algorithm>
#include <utility>

namespace Editor {

using Tano::FieldPath;
using Zel::PackageModel::TextState;
using Zel::PackageModel::TranslatableText;

namespace {

constexpr int stepDuration = 15; // milliseconds
constexpr int heading = -1;
constexpr int gone = -2;

} // namespace

TranslationModel::TranslationModel(Document &document, QObject *parent)
    : QAbstractTableModel(parent)
    , m_document(document)
    , m_groups(document) {
    connect(&m_timer, &QTimer::timeout, this, &TranslationModel::advance);
    connect(&document, &Document::packageReplaced, this, [this] {
        // The previous package's texts no longer exist, even if the page is hidden.
        m_timer.stop();
        beginResetModel();
        m_rows.clear();
        m_languages = {};
        endResetModel();
    });
    connect(&document, &Document::edited, this, &TranslationModel::followDocument);
    connect(&document, &Document::fileNameChanged, this, &TranslationModel::followDocument);
}

int TranslationModel::rowCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : int(m_rows.size());
}

int TranslationModel::columnCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : textColumnCount;
}

QVariant TranslationModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    return section < textColumnCount ? columnTitle(TextColumn(section), m_languages) : QVariant();
}

TranslationModel::Row TranslationModel::rowAt(const QModelIndex &index) const {
    if (!index.isValid() || index.row() >= rowCount())
        return {0, gone};
    const Row row = m_rows[std::size_t(index.row())];
    return row.text < groupOf(row).texts.size() ? row : Row{row.group, gone};
}

TranslatableText TranslationModel::text(const QModelIndex &index) const {
    const Row row = rowAt(index);
    return row.text < 0 ? TranslatableText() : groupOf(row).texts.value(row.text);
}

Qt::ItemFlags TranslationModel::flags(const QModelIndex &index) const {
    if (rowAt(index).text < 0)
        return Qt::NoItemFlags;
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    return TextColumn(index.column()) == TextColumn::Target ? flags | Qt::ItemIsEditable : flags;
}

QVariant TranslationModel::data(const QModelIndex &index, int role) const {
    const Row row = rowAt(index);
    if (row.text == gone)
        return {};
    const TextGroup &group = groupOf(row);
    const auto column = TextColumn(index.column());
    if (row.text == heading)
        return headingCell(group, column, role);
    return textCell(group.texts.at(row.text), group.states[std::size_t(row.text)], column, role);
}

void TranslationModel::setLanguages(const LanguagePair &languages) {
    if (languages == m_languages)
        return;
    m_languages = languages;
    restart(true);
    Q_EMIT headerDataChanged(Qt::Horizontal, int(TextColumn::Source), int(TextColumn::Target));
}

void TranslationModel::setFilter(const TextFilter &filter) {
    if (filter == m_filter)
        return;
    m_filter = filter;
    m_current = {};
    restart(false);
}

void TranslationModel::setActive(bool isActive) {
    m_isActive = isActive;
    followDocument();
    if (!m_timer.isActive() || !isActive)
        goOn();
}

void TranslationModel::restart(bool isAnew) {
    beginResetModel();
    if (isAnew)
        m_groups.start(m_languages);
    m_rows.clear();
    m_touched.clear();
    m_next = 0;
    endResetModel();
    goOn();
    Q_EMIT updated();
}

// Shows the first rows at once, to avoid flicker for small packages.
void TranslationModel::goOn() {
    m_timer.stop();
    if (!m_isActive || m_languages.language.isEmpty() || m_next >= m_groups.size())
        return;
    m_timer.start(0);
    advance();
}

// Reads the next groups, for a short time.
void TranslationModel::advance() {
    QElapsedTimer time;
    time.start();
    advanceWhile([&] { return !time.hasExpired(stepDuration); });
}

void TranslationModel::advanceWhile(const std::function<bool()> &goesOn) {
    std::vector<Row> rows;
    while (m_next < m_groups.size() && goesOn()) {
        const int group = m_next++;
        if (!m_groups.at(group).isRead)
            m_groups.read(group);
        const std::vector<int> texts = passing(group);
        if (!texts.empty())
            rows.push_back({group, heading});
        for (const int text : texts)
            rows.push_back({group, text});
    }
    if (m_next >= m_groups.size())
        m_timer.stop();
    if (!rows.empty()) {
        const int first = int(m_rows.size());
        beginInsertRows({}, first, first + int(rows.size()) - 1);
        m_rows.insert(m_rows.end(), rows.begin(), rows.end());
        endInsertRows();
    }
    Q_EMIT updated();
}

void TranslationModel::followDocument() {
    if (!m_isActive || m_languages.language.isEmpty())
        return;
    const auto changes = m_groups.update();
    if (!changes) {
        restart(true);
        return;
    }
    for (const auto &[group, before] : *changes) {
        if (group >= m_next)
            continue;
        m_touched.push_back(group);
        refreshRows(group, before, true);
    }
    if (!changes->empty())
        Q_EMIT updated();
}

std::vector<int> TranslationModel::passing(int group) const {
    std::vector<int> texts;
    for (int text = 0; text < m_groups.at(group).texts.size(); ++text) {
        if (m_filter.passes(m_groups.at(group), text) ||
            m_groups.at(group).texts.at(text).path == m_current)
            texts.push_back(text);
    }
    return texts;
}

TranslationModel::Range TranslationModel::rowsOf(int group) const {
    const auto range =
        std::equal_range(m_rows.begin(), m_rows.end(), Row{group, 0},
                         [](const Row &a, const Row &b) { return a.group < b.group; });
    return {int(range.first - m_rows.begin()), int(range.second - m_rows.begin())};
}

void TranslationModel::removeRow(int row) {
    beginRemoveRows({}, row, row);
    m_rows.erase(m_rows.begin() + row);
    endRemoveRows();
}

void TranslationModel::insertRow(int row, Row content) {
    beginInsertRows({}, row, row);
    m_rows.insert(m_rows.begin() + row, content);
    endInsertRows();
}

// Updates the rows of a group, which had the texts `before`.
void TranslationModel::refreshRows(int group, const QVector<TranslatableText> &before,
                                   bool keepsRows) {
    const TextGroup &texts = m_groups.at(group);
    Range range = rowsOf(group);
    const std::vector<int> candidates = passing(group);
    std::vector<int> kept; // in ascending order
    int last = -1;
    for (int row = range.begin; row < range.end; ++row) {
        int &text = m_rows[std::size_t(row)].text;
        if (text == heading)
            continue;
        text = texts.find(before.at(text).path);
        const bool stays =
            keepsRows || std::binary_search(candidates.begin(), candidates.end(), text);
        if (text <= last || !stays) {
            text = gone;
            continue;
        }
        last = text;
        kept.push_back(text);
    }
    std::vector<int> wanted;
    std::set_union(kept.begin(), kept.end(), candidates.begin(), candidates.end(),
                   std::back_inserter(wanted));
    for (int row = range.end - 1; row >= range.begin; --row) {
        const int text = m_rows[std::size_t(row)].text;
        if (text == gone || (text == heading && wanted.empty()))
            removeRow(row);
    }
    if (wanted.empty())
        return;
    range = rowsOf(group);
    if (range.begin == range.end)
        insertRow(range.begin, {group, heading});
    for (std::size_t i = 0; i < wanted.size(); ++i) {
        const int row = range.begin + 1 + int(i);
        if (row >= rowsOf(group).end || m_rows[std::size_t(row)].text != wanted[i])
            insertRow(row, {group, wanted[i]});
    }
    Q_EMIT dataChanged(index(range.begin, 0), index(rowsOf(group).end - 1, textColumnCount - 1));
}

void TranslationModel::setCurrent(const FieldPath &path) {
    if (path == m_current && m_touched.empty())
        return;
    m_current = path;
    m_groups.hold(path);
    const std::vector<int> touched = std::exchange(m_touched, {});
    for (const int group : touched) {
        const auto before = m_groups.at(group).texts;
        m_groups.read(group);
        refreshRows(group, before, false);
    }
}

QModelIndex TranslationModel::reveal(const FieldPath &path) {
    if (!m_isActive || m_languages.language.isEmpty())
        return {}; // the groups do not follow the package
    const int group = m_groups.find(path);
    if (group >= m_next)
        advanceWhile([&] { return group >= m_next; });
    if (group >= 0 && !indexOf(path).isValid())
        m_touched.push_back(group);
    setCurrent(path);
    return indexOf(path);
}

QModelIndex TranslationModel::indexOf(const FieldPath &path) const {
    const int group = m_groups.find(path);
    const int text = group < 0 ? -1 : m_groups.at(group).find(path);
    const Range range = rowsOf(group);
    for (int row = range.begin; text >= 0 && row < range.end; ++row) {
        if (m_rows[std::size_t(row)].text == text)
            return cellAt(row);
    }
    return {};
}

QModelIndex TranslationModel::nextMissing(const QModelIndex &from, int distance) const {
    const int count = rowCount();
    const int start = from.isValid() ? from.row() : distance > 0 ? -1 : count;
    for (int i = 1; i <= count; ++i) {
        const int place = ((start + i * distance) % count + count) % count;
        const Row &row = m_rows[std::size_t(place)];
        if (row.text >= 0 && place != from.row() &&
            groupOf(row).states[std::size_t(row.text)] == TextState::Missing)
            return cellAt(place);
    }
    return {};
}

} // namespace Editor
