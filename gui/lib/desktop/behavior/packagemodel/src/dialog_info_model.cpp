#include <packagemodel/dialog_info_model.h>

#include "copies.h"
#include "dialog_info_data.h"
#include "localized_texts.h"
#include "meta_types.h"

#include <packagemodel/text_conversion.h>

#include <QPointer>

namespace Zel {

DialogInfoModel::DialogInfoModel(const Tano::DialogInfo &info, QObject *parent)
    : QObject(parent)
    , m_data(std::make_unique<Data>(this, info)) {
    registerMetaTypes();
    m_data->topics = textsFromRecord(info.topics());
}

DialogInfoModel::DialogInfoModel(const DialogInfoModel &other)
    : QObject(other.parent())
    , m_data(std::make_unique<Data>(this, other.m_data->record())) {
    m_data->topics = other.m_data->topics;
    // While topicRemoved() is emitted, only the original still has the path.
    const auto &recorded = m_data->record().topics();
    m_data->topics.removeIf(
        [&](const RobotLanguage &language) { return recorded.count(codeOf(language)) == 0; });
}

DialogInfoModel::~DialogInfoModel() = default;

Tano::DialogInfo DialogInfoModel::toDialogInfo() const {
    return m_data->record();
}

QString DialogInfoModel::topicName() const {
    return fromUtf8(m_data->record().topicName());
}

QString DialogInfoModel::typeVersion() const {
    return fromUtf8(m_data->record().typeVersion());
}

QString DialogInfoModel::topic(const RobotLanguage &lang) const {
    return valueFor(m_data->topics, lang);
}

const Language::LocalizedStrings &DialogInfoModel::topics() const {
    return m_data->topics;
}

RobotLanguages DialogInfoModel::topicsLanguages() const {
    RobotLanguages languages;
    languages.reserve(m_data->topics.entries().size());
    for (const auto &topic : m_data->topics.entries())
        languages.push_back(topic.second);
    return languages;
}

void DialogInfoModel::setTopicName(const QString &newName) {
    if (topicName() == newName)
        return;
    const QString name = copyOf(newName);
    m_data->editKey().setTopicName(toUtf8(name));
    m_data->announce(&DialogInfoModel::nameChanged, name);
}

void DialogInfoModel::setTypeVersion(const QString &newVersion) {
    if (typeVersion() == newVersion)
        return;
    const QString version = copyOf(newVersion);
    m_data->edit().setTypeVersion(toUtf8(version));
    m_data->announce(&DialogInfoModel::typeVersionChanged, version);
}

void DialogInfoModel::setTopic(const RobotLanguage &lang, const QString &topic) {
    const std::string code = codeOf(lang);
    const std::string bytes = toUtf8(topic);
    if (m_data->record().topic(code) == bytes)
        return;
    const RobotLanguage language = copyOf(lang);
    const QString path = copyOf(topic);
    m_data->editAnnounced([&](Tano::DialogInfo &record) { record.setTopic(code, bytes); });
    madeValue(m_data->topics, language) = path;
    m_data->announce(&DialogInfoModel::topicChanged, language, path);
}

bool DialogInfoModel::removeTopic(const RobotLanguage &lang) {
    const RobotLanguage language = copyOf(lang);
    const std::string code = codeOf(language);
    if (m_data->record().topics().count(code) == 0)
        return false;
    m_data->editAnnounced([&](Tano::DialogInfo &record) { record.removeTopic(code); });
    const QPointer<DialogInfoModel> self(this);
    m_data->announce(&DialogInfoModel::topicRemoved, language);
    if (!self)
        return true;
    const bool isSetAgain = m_data->record().topics().count(code) != 0; // by a receiver
    if (!isSetAgain)
        m_data->topics.remove(language);
    return true;
}

} // namespace Zel
