#pragma once

#include <tano/tano_package_export.h>
#include <tano/text_maps.h>

#include <memory>
#include <set>
#include <string>
#include <vector>

namespace Tano {

struct BehaviorData;

/// The kinds of lists of a behavior, kept by language code; conditions are kept by purpose.
enum class BehaviorList { Tags, TriggerSentences, LoadingResponses, Conditions };

/// The record of one behavior of a package. UTF-8 throughout; texts are keyed by language code,
/// conditions by purpose.
///
/// It is an implicitly shared value: copying counts a reference, and a change detaches. A default
/// record has an empty nature and is not user-requestable.
class TANO_PACKAGE_EXPORT BehaviorInfo {
public:
    /// The nature of a behavior that reacts to people: "interactive".
    static const std::string &natureInteractive();
    /// The nature of a behavior that the robot runs on its own: "solitary".
    static const std::string &natureSolitary();

    /// Where the behavior lies in the package; "." for the root behavior.
    const std::string &path() const;
    void setPath(const std::string &path);

    const std::string &nature() const;
    void setNature(const std::string &nature);

    /// Whether a user may ask for the behavior.
    bool isUserRequestable() const;
    void setUserRequestable(bool userRequestable);

    const TextMap &names() const;
    /// The name in a language; empty when there is none.
    const std::string &name(const std::string &code) const;
    void setName(const std::string &name, const std::string &code);
    /// Returns false if there is no name in that language.
    bool removeName(const std::string &code);

    const TextMap &descriptions() const;
    /// The description in a language; empty when there is none.
    const std::string &description(const std::string &code) const;
    void setDescription(const std::string &description, const std::string &code);
    /// Returns false if there is no description in that language.
    bool removeDescription(const std::string &code);

    const std::vector<std::string> &permissions() const;
    bool hasPermission(const std::string &permission) const;
    /// Returns false, and changes nothing, when the permission is there already.
    bool addPermission(const std::string &permission);
    /// The same before the permission at an index, which is clamped to the list.
    bool insertPermission(const std::string &permission, int index);
    /// Returns false when there is no such permission.
    bool removePermission(const std::string &permission);

    // Four kinds of lists with the same operations. A list may hold equal values; `occurrence`,
    // counted from 0, says which of them an update or a removal means. An insertion clamps its
    // index to the list. Update and remove return false, and change nothing, where the list has
    // no such value.

    const TextListMap &languagesToTags() const;
    void addTag(const std::string &tag, const std::string &code);
    void insertTag(const std::string &tag, const std::string &code, int index);
    bool updateTag(const std::string &oldTag, const std::string &newTag, const std::string &code,
                   int occurrence = 0);
    bool removeTag(const std::string &tag, const std::string &code, int occurrence = 0);

    /// What a user may say to start the behavior.
    const TextListMap &languagesToTriggerSentences() const;
    void addTriggerSentence(const std::string &sentence, const std::string &code);
    void insertTriggerSentence(const std::string &sentence, const std::string &code, int index);
    bool updateTriggerSentence(const std::string &oldSentence, const std::string &newSentence,
                               const std::string &code, int occurrence = 0);
    bool removeTriggerSentence(const std::string &sentence, const std::string &code,
                               int occurrence = 0);

    /// What the robot may say while the behavior is loading.
    const TextListMap &languagesToLoadingResponses() const;
    void addLoadingResponse(const std::string &response, const std::string &code);
    void insertLoadingResponse(const std::string &response, const std::string &code, int index);
    bool updateLoadingResponse(const std::string &oldResponse, const std::string &newResponse,
                               const std::string &code, int occurrence = 0);
    bool removeLoadingResponse(const std::string &response, const std::string &code,
                               int occurrence = 0);

    /// The conditions of every purpose.
    const TextListMap &purposesToConditions() const;
    /// The conditions of one purpose; empty when there are none.
    const std::vector<std::string> &conditions(const std::string &purpose) const;
    void addCondition(const std::string &condition, const std::string &purpose);
    void insertCondition(const std::string &condition, const std::string &purpose, int index);
    bool updateCondition(const std::string &oldCondition, const std::string &newCondition,
                         const std::string &purpose, int occurrence = 0);
    bool removeCondition(const std::string &condition, const std::string &purpose,
                         int occurrence = 0);

    // The same lists by their kind. Update and remove return false, and change nothing, for an
    // index outside the list.

    const TextListMap &lists(BehaviorList kind) const;
    bool updateAt(BehaviorList kind, const std::string &key, int index,
                  const std::string &newValue);
    bool removeAt(BehaviorList kind, const std::string &key, int index);

    /// Drops the names and descriptions in languages other than `descriptionCodes`, and the tags,
    /// trigger sentences and loading responses in languages other than `supportedCodes`.
    void trimExtraInfo(const std::vector<std::string> &descriptionCodes,
                       const std::vector<std::string> &supportedCodes);
    void trimExtraInfo(const std::set<std::string> &descriptionCodes,
                       const std::set<std::string> &supportedCodes);

    /// True when both have the same content, what a manifest holds beyond the fields included.
    friend TANO_PACKAGE_EXPORT bool operator==(const BehaviorInfo &a, const BehaviorInfo &b);
    friend bool operator!=(const BehaviorInfo &a, const BehaviorInfo &b) { return !(a == b); }

private:
    friend class RecordAccess;
    std::shared_ptr<BehaviorData> m_data; // null for a default record
};

} // namespace Tano
