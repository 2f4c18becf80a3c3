#pragma once

#include "document/document.h"

#include <packagemodel/text_states.h>

#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace Editor {

/// The languages of texts that are translated, as codes.
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
    Tano::BehaviorInfo record; ///< as it was when the texts were read
    bool isRead = false;
    QVector<Zel::PackageModel::TranslatableText> texts;
    std::vector<Zel::PackageModel::TextState> states; ///< one for each text

    /// How many texts are not missing.
    int present() const;
    /// The index of a text; -1 for none.
    int find(const Tano::FieldPath &path) const;
};

/// All texts of the document in two languages, read group by group since there may be very many.
class TextGroups {
public:
    /// What an edit has changed: a group, and the texts that it had before.
    struct Change {
        int group;
        QVector<Zel::PackageModel::TranslatableText> before;
    };

    explicit TextGroups(Document &document);

    /// Starts with the groups of the package as it is now, none of which is read.
    void start(const LanguagePair &languages);
    int size() const { return int(m_groups.size()); }
    const TextGroup &at(int group) const { return m_groups[std::size_t(group)]; }
    /// The group of a text or an owner; -1 for none.
    int find(const Tano::FieldPath &path) const;
    void read(int group);
    /// How many texts there are in the target language, of those that either language has, in the
    /// first `count` groups.
    Zel::PackageModel::Count total(int count) const;

    /// Reads the groups again that an edit or a save has changed, if they have been read. Nothing
    /// if there are other behaviors now, or very many changes: then start anew.
    std::optional<std::vector<Change>> update();
    /// Keeps a text among those of its group even if it is empty in both languages, while it is
    /// being edited.
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
    QVector<Zel::BehaviorInfoModel *> m_behaviors; // as of the last start or update
    std::vector<TextGroup> m_groups;               // the package's first
    Tano::PackageInfo m_saved;
    std::unordered_map<std::string, std::size_t> m_savedIndexes; // by owner; made when needed
};

} // namespace Editor
