#pragma once

#include <tano/tano_package_export.h>
#include <tano/text_maps.h>

#include <memory>
#include <string>

namespace Tano {

struct DialogData;

/// The record of one dialog topic of a package: its name, its type version and one topic file per
/// language. All texts are UTF-8.
///
/// An implicitly shared value: a copy increments a reference count, a change detaches.
///
/// ```cpp
/// Tano::DialogInfo talk;
/// talk.setTopicName("talk");
/// talk.setTopic("fr_FR", "dialogs/talk_frf.top");
/// package.addDialog(talk);
/// ```
class TANO_PACKAGE_EXPORT DialogInfo {
public:
    /// @{
    /// The topic name, which identifies the dialog within its package.
    const std::string &topicName() const;
    void setTopicName(const std::string &name);
    /// @}

    /// @{
    /// The version of the dialog's format.
    const std::string &typeVersion() const;
    void setTypeVersion(const std::string &version);
    /// @}

    /// The paths of the topic files by language code.
    const TextMap &topics() const;
    /// The path of the topic file of a language; empty if there is none.
    const std::string &topic(const std::string &code) const;
    /// Sets the path of the topic file of a language.
    void setTopic(const std::string &code, const std::string &path);
    /// Removes the topic file of a language; returns false if there is none.
    bool removeTopic(const std::string &code);

    /// @{
    /// Compares the content, including comments and unknown elements and attributes.
    friend TANO_PACKAGE_EXPORT bool operator==(const DialogInfo &a, const DialogInfo &b);
    friend bool operator!=(const DialogInfo &a, const DialogInfo &b) { return !(a == b); }
    /// @}

private:
    friend class RecordAccess;
    std::shared_ptr<DialogData> m_data; // null for a default record
};

} // namespace Tano
