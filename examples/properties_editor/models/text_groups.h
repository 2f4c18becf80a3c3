#pragma once

#include "document/document.h"

#include <packagemodel/text_states.h>

#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace Editor {

/// The codes of the languages to translate from and into.
struct LanguagePair {
    QString language;
    QString sourceLanguage;
};

inline bool operator==(const LanguagePair &a, const LanguagePair &b) {
    return a.language == b.language && a.sourceLanguage == b.sourceLanguage;
}

/// The field of a text in another language.
Tano::FieldPath inLanguage(const Tano::FieldPath &path, const QString &code);

/// The texts of the package itself, or of one behavior, in two languages.
struct TextGroup {
    Tano::FieldPath owner;     ///< empty for the package
    Tano::BehaviorInfo record; ///< when the texts were read
    bool isRead = false;
    QVector<Zel::PackageModel::TranslatableText> texts;
    std::vector<Zel::PackageModel::TextState> states; ///< one per text

    /// The number of texts that are not missing.
    int present() const;
    /// The index of a text, or -1.
    int find(const Tano::FieldPath &path) const;
};

/// All texts of the document in two languages, read group by group since there may be very many.
class TextGroups {
public:
    /// A group that an edit has changed, with its previous texts.
    struct Change {
        int group;
        QVector<Zel::PackageModel::TranslatableText> before;
    };

    explicit TextGroups(Document &document);

    /// Starts with the current groups of the package, all of them unread.
    void start(const LanguagePair &languages);
    int size() const { return int(m_groups.size()); }
    const TextGroup &at(int group) const { return m_groups[std::size_t(group)]; }
    /// The group of a text or owner, or -1.
    int find(const Tano::FieldPath &path) const;
    void read(int group);
    /// Of the texts in either language in the first `count` groups, the number that exist in the
    /// target language.
    Zel::PackageModel::Count total(int count) const;

    /// Rereads groups that an edit or a save has changed, if they were read. Returns nullopt if the
    /// list of behaviors has changed, or after very many changes; then start again.
    std::optional<std::vector<Change>> update();
    /// Keeps a text in its group while it is edited, even if it is empty in both languages.
    void hold(const Tano::FieldPath &path) { m_held = path; }

private:
    using Texts = QVector<Zel::PackageModel::TranslatableText>;

    bool hasSameBehaviors() const;
    bool followSave();
    bool differsFromSaved(int group) const;
    std::vector<int> outdated();
    Texts textsOf(int group) const;
    Texts savedTextsOf(int group);
    std::optional<Tano::BehaviorInfo> savedRecordOf(int group);
    void keepHeld(TextGroup &group, const Texts &before) const;

    Document &m_document;
    LanguagePair m_languages;
    Tano::FieldPath m_held;
    std::vector<TextGroup> m_groups; // the package's first
    Tano::PackageInfo m_saved;
    std::unordered_map<std::string, std::size_t> m_savedIndexes; // by owner; built on demand
};

} // namespace Editor
