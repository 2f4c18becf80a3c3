#include "zel/robot_language.h"

#include "language_table.h"

namespace Zel {

class RobotLanguageData : public QSharedData {
public:
    QString isoCode;
    QString name;
    QString englishName;
    QString nativeName;
    QString nuanceCode;
    SoftwareVersion version;
};

RobotLanguage::RobotLanguage() = default;
RobotLanguage::RobotLanguage(const RobotLanguage &other) = default;
RobotLanguage::RobotLanguage(RobotLanguage &&other) noexcept = default;
RobotLanguage::~RobotLanguage() = default;
RobotLanguage &RobotLanguage::operator=(const RobotLanguage &other) = default;
RobotLanguage &RobotLanguage::operator=(RobotLanguage &&other) noexcept = default;

RobotLanguage::RobotLanguage(const ISOCode &isoCode, const NuanceCode &nuanceCode)
    : RobotLanguage(isoCode, Name(), EnglishName(), NativeName(), nuanceCode, SoftwareVersion()) {
}

RobotLanguage::RobotLanguage(const ISOCode &isoCode, const Name &name,
                             const EnglishName &englishName, const NativeName &nativeName,
                             const NuanceCode &nuanceCode, const SoftwareVersion &version)
    : m_data(new RobotLanguageData) {
    m_data->isoCode = isoCode.text();
    m_data->name = name.text();
    m_data->englishName = englishName.text();
    m_data->nativeName = nativeName.text();
    m_data->nuanceCode = nuanceCode.text();
    m_data->version = version;
}

const RobotLanguageData &RobotLanguage::data() const {
    static const RobotLanguageData empty;
    return m_data ? *m_data : empty;
}

bool RobotLanguage::hasCopies() const {
    return m_data && m_data->ref.loadAcquire() > 1;
}

const QString &RobotLanguage::isoCode() const {
    return data().isoCode;
}
const QString &RobotLanguage::name() const {
    return data().name;
}
const QString &RobotLanguage::englishName() const {
    return data().englishName;
}
const QString &RobotLanguage::nativeName() const {
    return data().nativeName;
}
const QString &RobotLanguage::nuanceCode() const {
    return data().nuanceCode;
}
const SoftwareVersion &RobotLanguage::version() const {
    return data().version;
}

void RobotLanguage::setVersion(const SoftwareVersion &version) {
    if (version == data().version)
        return;
    if (!m_data)
        m_data = new RobotLanguageData;
    m_data->version = version;
}

const QString &RobotLanguage::uiName() const {
    return name().isEmpty() ? isoCode() : name();
}

bool operator==(const RobotLanguage &a, const RobotLanguage &b) {
    return a.m_data == b.m_data || a.isoCode() == b.isoCode();
}

RobotLanguage robotLanguage(const ISOCode &isoCode) {
    return robotLanguage(isoCode.text());
}

RobotLanguage robotLanguage(const QString &isoCode) {
    return LanguageTable::instance().find(isoCode);
}

} // namespace Zel
