#include <tano/dialog_info.h>

#include "manifest_writer.h"
#include "record_fields.h"

namespace Tano {

const std::string &DialogInfo::topicName() const {
    return RecordAccess::data(*this).topicName;
}

void DialogInfo::setTopicName(const std::string &name) {
    RecordAccess::edit(*this).topicName = name;
}

const std::string &DialogInfo::typeVersion() const {
    return RecordAccess::data(*this).typeVersion;
}

void DialogInfo::setTypeVersion(const std::string &version) {
    RecordAccess::edit(*this).typeVersion = version;
}

const TextMap &DialogInfo::topics() const {
    return RecordAccess::data(*this).topics;
}

const std::string &DialogInfo::topic(const std::string &code) const {
    return textOf(topics(), code);
}

void DialogInfo::setTopic(const std::string &code, const std::string &path) {
    DialogData &data = RecordAccess::edit(*this);
    hideChild(data.extras, elementOf(&DialogData::topics), code, false);
    data.topics[code] = path;
}

bool DialogInfo::removeTopic(const std::string &code) {
    if (topics().find(code) == topics().end())
        return false;
    DialogData &data = RecordAccess::edit(*this);
    hideChild(data.extras, elementOf(&DialogData::topics), code, true);
    data.topics.erase(code);
    return true;
}

bool operator==(const DialogInfo &a, const DialogInfo &b) {
    return RecordAccess::sharesData(a, b) ||
           sameContent(RecordAccess::data(a), RecordAccess::data(b));
}

} // namespace Tano
