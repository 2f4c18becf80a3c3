#pragma once

#include <tano/tano_package_export.h>
#include <tano/text_maps.h>

#include <memory>
#include <string>

namespace Tano {

struct DialogData;

/// The record of one dialog topic of a package: its name, its type version and one topic file per
/// language. UTF-8 throughout.
///
/// It is an implicitly shared value: copying counts a reference, and a change detaches.
class TANO_PACKAGE_EXPORT DialogInfo {
public:
    const std::string &topicName() const;
    void setTopicName(const std::string &name);

    const std::string &typeVersion() const;
    void setTypeVersion(const std::string &version);

    /// The path of the topic file of each language.
    const TextMap &topics() const;
    /// The path of the topic file of a language; empty when there is none.
    const std::string &topic(const std::string &code) const;
    void setTopic(const std::string &code, const std::string &path);
    /// Returns whether there was a topic file to remove.
    bool removeTopic(const std::string &code);

    /// True when both have the same content, what a manifest holds beyond the fields included.
    friend TANO_PACKAGE_EXPORT bool operator==(const DialogInfo &a, const DialogInfo &b);
    friend bool operator!=(const DialogInfo &a, const DialogInfo &b) { return !(a == b); }

private:
    friend class RecordAccess;
    std::shared_ptr<DialogData> m_data; // null for a default record
};

} // namespace Tano
