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

/// The record of one behavior of a package. All texts are UTF-8; they are keyed by language code,
/// conditions by purpose.
///
/// An implicitly shared value: a copy increments a reference count, a change detaches. A default
/// record has an empty nature and is not user-requestable.
///
/// ```cpp
/// Tano::BehaviorInfo greet;
/// greet.setPath("greet");
/// greet.setNature(Tano::BehaviorInfo::natureInteractive());
/// greet.addTriggerSentence("Hello", "en_US");
/// package.addBehavior(greet);
/// ```
class TANO_PACKAGE_EXPORT BehaviorInfo {
public:
    /// The nature of a behavior that reacts to people: "interactive".
    static const std::string &natureInteractive();
    /// The nature of a behavior that the robot runs by itself: "solitary".
    static const std::string &natureSolitary();

    /// @{
    /// The path of the behavior in the package; "." for the root behavior.
    const std::string &path() const;
    void setPath(const std::string &path);
    /// @}

    /// @{
    /// The nature: "interactive", "solitary" or empty.
    const std::string &nature() const;
    void setNature(const std::string &nature);
    /// @}

    /// @{
    /// Whether users may request the behavior.
    bool isUserRequestable() const;
    void setUserRequestable(bool userRequestable);
    /// @}

    /// The names by language code.
    const TextMap &names() const;
    /// The name in a language; empty if there is none.
    const std::string &name(const std::string &code) const;
    /// Sets the name in a language; an empty one is kept as such.
    void setName(const std::string &name, const std::string &code);
    /// Removes the name in a language; returns false if there is none.
    bool removeName(const std::string &code);

    /// The descriptions by language code.
    const TextMap &descriptions() const;
    /// The description in a language; empty if there is none.
    const std::string &description(const std::string &code) const;
    /// Sets the description in a language; an empty one is kept as such.
    void setDescription(const std::string &description, const std::string &code);
    /// Removes the description in a language; returns false if there is none.
    bool removeDescription(const std::string &code);

    /// The permissions that the behavior needs, in the author's order.
    const std::vector<std::string> &permissions() const;
    /// Whether the behavior has this permission.
    bool hasPermission(const std::string &permission) const;
    /// Appends a permission; returns false and changes nothing if the behavior has it already.
    bool addPermission(const std::string &permission);
    /// Like addPermission(), but before the permission at `index`, which is clamped to the list.
    bool insertPermission(const std::string &permission, int index);
    /// Removes a permission; returns false if the behavior does not have it.
    bool removePermission(const std::string &permission);

    /// The tags by language code.
    const TextListMap &languagesToTags() const;
    /// @{
    /// Edits one of the four kinds of lists. `insert` clamps its index to the list. A list may hold
    /// equal values: `occurrence`, counted from 0, selects the one to update or remove. `update`
    /// and `remove` return false and change nothing if the list does not have the value.
    void addTag(const std::string &tag, const std::string &code);
    void insertTag(const std::string &tag, const std::string &code, int index);
    bool updateTag(const std::string &oldTag, const std::string &newTag, const std::string &code,
                   int occurrence = 0);
    bool removeTag(const std::string &tag, const std::string &code, int occurrence = 0);
    /// @}

    /// The sentences with which users start the behavior, by language code.
    const TextListMap &languagesToTriggerSentences() const;
    /// @{
    /// Edits the trigger sentences, as for tags.
    void addTriggerSentence(const std::string &sentence, const std::string &code);
    void insertTriggerSentence(const std::string &sentence, const std::string &code, int index);
    bool updateTriggerSentence(const std::string &oldSentence, const std::string &newSentence,
                               const std::string &code, int occurrence = 0);
    bool removeTriggerSentence(const std::string &sentence, const std::string &code,
                               int occurrence = 0);
    /// @}

    /// The sentences that the robot may say while the behavior is loading, by language code.
    const TextListMap &languagesToLoadingResponses() const;
    /// @{
    /// Edits the loading responses, as for tags.
    void addLoadingResponse(const std::string &response, const std::string &code);
    void insertLoadingResponse(const std::string &response, const std::string &code, int index);
    bool updateLoadingResponse(const std::string &oldResponse, const std::string &newResponse,
                               const std::string &code, int occurrence = 0);
    bool removeLoadingResponse(const std::string &response, const std::string &code,
                               int occurrence = 0);
    /// @}

    /// The conditions by purpose.
    const TextListMap &purposesToConditions() const;
    /// The conditions of one purpose; empty if there are none.
    const std::vector<std::string> &conditions(const std::string &purpose) const;
    /// @{
    /// Edits the conditions of a purpose, as for tags.
    void addCondition(const std::string &condition, const std::string &purpose);
    void insertCondition(const std::string &condition, const std::string &purpose, int index);
    bool updateCondition(const std::string &oldCondition, const std::string &newCondition,
                         const std::string &purpose, int occurrence = 0);
    bool removeCondition(const std::string &condition, const std::string &purpose,
                         int occurrence = 0);
    /// @}

    /// The lists of a kind, by language code or purpose.
    const TextListMap &lists(BehaviorList kind) const;
    /// @{
    /// Updates or removes an item by its index; returns false and changes nothing if the index is
    /// out of range.
    bool updateAt(BehaviorList kind, const std::string &key, int index,
                  const std::string &newValue);
    bool removeAt(BehaviorList kind, const std::string &key, int index);
    /// @}

    /// @{
    /// Drops the names and descriptions in languages other than `descriptionCodes`, and the tags,
    /// trigger sentences and loading responses in languages other than `supportedCodes`.
    void trimExtraInfo(const std::vector<std::string> &descriptionCodes,
                       const std::vector<std::string> &supportedCodes);
    void trimExtraInfo(const std::set<std::string> &descriptionCodes,
                       const std::set<std::string> &supportedCodes);
    /// @}

    /// @{
    /// Compares the content, including comments and unknown elements and attributes.
    friend TANO_PACKAGE_EXPORT bool operator==(const BehaviorInfo &a, const BehaviorInfo &b);
    friend bool operator!=(const BehaviorInfo &a, const BehaviorInfo &b) { return !(a == b); }
    /// @}

private:
    friend class RecordAccess;
    std::shared_ptr<BehaviorData> m_data; // null for a default record
};

} // namespace Tano
