#include "text_groups.h"

#include "document/field_edits.h"

#include <algorithm>

namespace Editor {

using Tano::FieldPath;
using Zel::PackageModel::Count;
using Zel::PackageModel::TextState;
using Zel::PackageModel::TranslatableText;

namespace {

FieldPath ownerOf(const FieldPath &path) {
    if (fieldName(path) != QLatin1String("behaviors"))
        return {};
    FieldPath owner = path;
    while (owner.steps().size() > 1)
        owner = owner.parent();
    return owner;
}

// The field paths of behaviors.
std::vector<FieldPath> ownersOf(const std::vector<Tano::BehaviorInfo> &behaviors) {
    std::vector<FieldPath> owners;
    std::unordered_map<std::string, int> counts;
    owners.reserve(behaviors.size());
    for (const Tano::BehaviorInfo &behavior : behaviors)
        owners.push_back(
            FieldPath().field("behaviors").entry(behavior.path(), counts[behavior.path()]++));
    return owners;
}

int indexOf(const QVector<TranslatableText> &texts, const FieldPath &path) {
    const auto found = std::find_if(texts.begin(), texts.end(),
                                    [&](const auto &text) { return text.path == path; });
    return found == texts.end() ? -1 : int(found - texts.begin());
}

bool isSame(const TranslatableText &a, const TranslatableText &b) {
    return a.path == b.path && a.source == b.source && a.target == b.target;
}

} // namespace

FieldPath inLanguage(const FieldPath &path, const QString &code) {
    FieldPath translated;
    const auto &steps = path.steps();
    for (const auto &step : steps) {
        translated.field(step.field);
        for (const auto &selector : step.selectors) {
            const bool isLanguage = &step == &steps.back() && &selector == &step.selectors.front();
            translated.key(isLanguage ? Zel::toUtf8(code) : selector.text);
        }
    }
    return translated;
}

int TextGroup::present() const {
    return int(states.size()) - int(std::count(states.begin(), states.end(), TextState::Missing));
}

int TextGroup::find(const FieldPath &path) const {
    return indexOf(texts, path);
}

TextGroups::TextGroups(Document &document)
    : m_document(document) {
}

void TextGroups::start(const LanguagePair &languages) {
    m_languages = languages;
    m_saved = m_document.saved();
    m_savedIndexes.clear();
    m_document.package()->syncRecord();
    const auto &behaviors = m_document.package()->packageInfo().behaviors();
    const std::vector<FieldPath> owners = ownersOf(behaviors);
    m_groups.assign(behaviors.size() + 1, TextGroup());
    for (std::size_t i = 0; i < behaviors.size(); ++i) {
        m_groups[i + 1].owner = owners[i];
        m_groups[i + 1].record = behaviors[i];
    }
}

int TextGroups::find(const FieldPath &path) const {
    const FieldPath owner = ownerOf(path);
    const auto found = std::find_if(m_groups.begin(), m_groups.end(),
                                    [&](const TextGroup &group) { return group.owner == owner; });
    return found == m_groups.end() ? -1 : int(found - m_groups.begin());
}

QVector<TranslatableText> TextGroups::textsOf(int group) const {
    if (group == 0)
        return Zel::PackageModel::ownTexts(*m_document.package(), m_languages.language,
                                           m_languages.sourceLanguage);
    const auto behaviors = m_document.package()->behaviors();
    if (group > behaviors.size())
        return {}; // removed since the last update
    return Zel::PackageModel::textsOf(*behaviors.at(group - 1), at(group).owner,
                                      m_languages.language, m_languages.sourceLanguage);
}

std::optional<Tano::BehaviorInfo> TextGroups::savedRecordOf(int group) {
    const auto &behaviors = m_saved.behaviors();
    if (m_savedIndexes.empty()) {
        const std::vector<FieldPath> owners = ownersOf(behaviors);
        for (std::size_t i = 0; i < owners.size(); ++i)
            m_savedIndexes.emplace(owners[i].toString(), i);
    }
    const auto found = m_savedIndexes.find(at(group).owner.toString());
    if (found == m_savedIndexes.end())
        return std::nullopt;
    return behaviors[found->second];
}

// The texts when they were saved; empty if they have not changed.
QVector<TranslatableText> TextGroups::savedTextsOf(int group) {
    if (group == 0) {
        Tano::PackageInfo own = m_saved;
        own.clearBehaviors();
        own.clearDialogs();
        own.clearServices();
        return Zel::PackageModel::ownTexts(Zel::PackageInfoModel(own), m_languages.language,
                                           m_languages.sourceLanguage);
    }
    const auto &behaviors = m_saved.behaviors();
    const std::size_t index = std::size_t(group) - 1;
    if (index < behaviors.size() && behaviors[index] == at(group).record)
        return {};
    const auto record = savedRecordOf(group);
    if (!record)
        return {};
    return Zel::PackageModel::textsOf(Zel::BehaviorInfoModel(*record), at(group).owner,
                                      m_languages.language, m_languages.sourceLanguage);
}

Count TextGroups::total(int count) const {
    Count total;
    for (int i = 0; i < count; ++i)
        total.add({at(i).present(), int(at(i).texts.size())});
    return total;
}

void TextGroups::keepHeld(TextGroup &group, const Texts &before) const {
    const int place = indexOf(before, m_held);
    if (place < 0 || group.find(m_held) >= 0)
        return;
    group.texts.insert(std::min(place, int(group.texts.size())), {m_held, {}, {}, {}});
}

void TextGroups::read(int index) {
    TextGroup &group = m_groups[std::size_t(index)];
    const Texts before = group.texts;
    group.isRead = true;
    group.texts = textsOf(index);
    keepHeld(group, before);
    const Texts saved = savedTextsOf(index);
    group.states.clear();
    for (const TranslatableText &text : std::as_const(group.texts)) {
        const int place = indexOf(saved, text.path);
        group.states.push_back(
            Zel::PackageModel::textState(text, place < 0 ? nullptr : &saved.at(place)));
    }
}

bool TextGroups::hasSameBehaviors() const {
    const auto &behaviors = m_document.package()->packageInfo().behaviors();
    return behaviors.size() + 1 == m_groups.size() &&
           std::equal(behaviors.begin(), behaviors.end(), m_groups.begin() + 1,
                      [](const Tano::BehaviorInfo &behavior, const TextGroup &group) {
                          return behavior.path() == group.record.path();
                      });
}

bool TextGroups::followSave() {
    // Copies of records share their content, so the address identifies it.
    if (&m_saved.behaviors() == &m_document.saved().behaviors())
        return false;
    m_saved = m_document.saved();
    m_savedIndexes.clear();
    return true;
}

bool TextGroups::differsFromSaved(int group) const {
    const auto &states = at(group).states;
    const auto &behaviors = m_saved.behaviors();
    const std::size_t index = std::size_t(group) - 1;
    return std::count(states.begin(), states.end(), TextState::SourceChanged) > 0 ||
           index >= behaviors.size() || behaviors[index] != at(group).record;
}

std::vector<int> TextGroups::outdated() {
    const bool isSaved = followSave();
    const auto &behaviors = m_document.package()->packageInfo().behaviors();
    std::vector<int> groups{0};
    for (int i = 1; i < size(); ++i) {
        TextGroup &group = m_groups[std::size_t(i)];
        const Tano::BehaviorInfo &record = behaviors[std::size_t(i) - 1];
        const bool isOther = record != group.record;
        if (isOther)
            group.record = record;
        if (isOther || (isSaved && differsFromSaved(i)))
            groups.push_back(i);
    }
    return groups;
}

std::optional<std::vector<TextGroups::Change>> TextGroups::update() {
    constexpr std::size_t most = 100; // read at once
    m_document.package()->syncRecord();
    if (!hasSameBehaviors())
        return std::nullopt;
    const std::vector<int> groups = outdated();
    if (groups.size() > most)
        return std::nullopt;
    std::vector<Change> changes;
    for (const int i : groups) {
        const TextGroup before = at(i);
        if (!before.isRead)
            continue;
        read(i);
        const TextGroup &after = at(i);
        if (before.states != after.states ||
            !std::equal(before.texts.begin(), before.texts.end(), after.texts.begin(),
                        after.texts.end(), isSame))
            changes.push_back({i, before.texts});
    }
    return changes;
}

} // namespace Editor
