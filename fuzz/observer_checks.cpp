#include "observer_world.h"

#include <algorithm>

namespace Observers {
namespace {

using Texts = std::vector<std::pair<QString, QString>>;
using Lists = std::vector<std::pair<QString, QStringList>>;

template<typename Value>
auto byCode(const std::vector<std::pair<Value, RobotLanguage>> &entries) {
    std::vector<std::pair<QString, Value>> sorted;
    for (const auto &[value, language] : entries)
        sorted.emplace_back(language.isoCode(), value);
    std::sort(sorted.begin(), sorted.end());
    return sorted;
}

template<typename Record>
Texts texts(const Record &record) {
    Texts decoded;
    for (const auto &[code, text] : record)
        decoded.emplace_back(QString::fromStdString(code), QString::fromStdString(text));
    std::sort(decoded.begin(), decoded.end());
    return decoded;
}

// An assignment copies through the setters, which do not distinguish empty texts from absent ones.
Texts withoutEmpty(Texts texts) {
    texts.erase(std::remove_if(texts.begin(), texts.end(),
                               [](const auto &entry) { return entry.second.isEmpty(); }),
                texts.end());
    return texts;
}

QStringList codes(const RobotLanguages &languages) {
    QStringList codes;
    for (const RobotLanguage &language : languages)
        codes << language.isoCode();
    return codes;
}

QStringList codes(const std::vector<std::string> &record) {
    QStringList codes;
    for (const std::string &code : record)
        codes << QString::fromStdString(code);
    return codes;
}

template<typename Requirement, typename Record, typename Convert>
bool areEqual(const QVector<Requirement> &requirements, const std::vector<Record> &records,
              Convert convert) {
    return std::equal(requirements.begin(), requirements.end(), records.begin(), records.end(),
                      [&](const Requirement &a, const Record &b) { return a == convert(b); });
}

Tano::BehaviorInfo recordOf(const BehaviorInfoModel &child) {
    return child.toBehaviorInfo();
}

Tano::DialogInfo recordOf(const DialogInfoModel &child) {
    return child.toDialogInfo();
}

Tano::PackageService recordOf(const ServiceInfoModel &child) {
    return child.toPackageService();
}

QString keyOf(const BehaviorInfoModel &child) {
    return child.path();
}

QString keyOf(const DialogInfoModel &child) {
    return child.topicName();
}

QString keyOf(const ServiceInfoModel &child) {
    return child.name();
}

bool mirrors(const BehaviorInfoModel &child) {
    const BehaviorInfoModel fresh(child.toBehaviorInfo());
    return child.path() == fresh.path() && child.nature() == fresh.nature() &&
           child.isUserRequestable() == fresh.isUserRequestable() &&
           child.permissions() == fresh.permissions() &&
           byCode(child.names()) == byCode(fresh.names()) &&
           byCode(child.descriptions()) == byCode(fresh.descriptions()) &&
           byCode(child.languagesToTags()) == byCode(fresh.languagesToTags()) &&
           byCode(child.languagesToTriggerSentences()) ==
               byCode(fresh.languagesToTriggerSentences()) &&
           byCode(child.languagesToLoadingResponses()) ==
               byCode(fresh.languagesToLoadingResponses());
}

bool mirrors(const DialogInfoModel &child) {
    return byCode(child.topics()) == texts(child.toDialogInfo().topics());
}

bool mirrors(const ServiceInfoModel &child) {
    return child.name().toStdString() == child.toPackageService().name;
}

bool belongsTo(const BehaviorInfoModel &child, const PackageInfoModel &package) {
    return child.parent() == &package && child.parentPackage() == &package;
}

bool belongsTo(const QObject &child, const PackageInfoModel &package) {
    return child.parent() == &package;
}

template<typename Child>
QString faultOfChildren(const PackageInfoModel &package, const QVector<Child *> &children,
                        Child *(PackageInfoModel::*find)(const QString &) const) {
    for (int i = 0; i < children.size(); ++i) {
        const Child &child = *children.at(i);
        const QString place = QStringLiteral("%1 %2: ").arg(
            QString::fromLatin1(child.metaObject()->className()), QString::number(i));
        if (!belongsTo(child, package))
            return place + QStringLiteral("belongs to another package");
        if (!mirrors(child))
            return place + QStringLiteral("its caches are not its record's");
        const auto first = std::find_if(children.begin(), children.end(), [&](const Child *other) {
            return keyOf(*other) == keyOf(child);
        });
        if ((package.*find)(keyOf(child)) != *first)
            return place + QStringLiteral("is not found by its key");
        if (children.indexOf(children.at(i)) != i)
            return place + QStringLiteral("is listed twice");
    }
    return {};
}

template<typename Child, typename Record>
bool areEqual(const QVector<Child *> &children, const std::vector<Record> &records) {
    return std::equal(
        children.begin(), children.end(), records.begin(), records.end(),
        [](const Child *child, const Record &record) { return recordOf(*child) == record; });
}

QString faultOfDescriptions(
    const PackageInfoModel &package,
    const std::function<bool(const QString &code, const QString &text)> &isLeftover) {
    Texts cached = withoutEmpty(byCode(package.descriptions()));
    const Texts recorded = withoutEmpty(texts(package.packageInfo().descriptions()));
    const auto isExtra = [&](const auto &entry) {
        const bool isRecorded =
            std::any_of(recorded.begin(), recorded.end(),
                        [&](const auto &other) { return entry.first == other.first; });
        return !isRecorded && isLeftover(entry.first, entry.second);
    };
    cached.erase(std::remove_if(cached.begin(), cached.end(), isExtra), cached.end());
    return cached == recorded ? QString() : QStringLiteral("the descriptions are not the record's");
}

} // namespace

QString
disagreement(const PackageInfoModel &package,
             const std::function<bool(const QString &code, const QString &text)> &isLeftover) {
    const Tano::PackageInfo &record = package.packageInfo();
    const std::pair<bool, const char *> promises[]{
        {package.version() ==
             SoftwareVersionUtils::fromString(QString::fromStdString(record.version())),
         "the version is not the record's"},
        {codes(package.supportedLanguages()) == codes(record.supportedLanguages()),
         "the supported languages are not the record's"},
        {codes(package.descriptionLanguages()) == codes(record.descriptionLanguages()),
         "the description languages are not the record's"},
        {withoutEmpty(byCode(package.names())) == withoutEmpty(texts(record.names())),
         "the names are not the record's"},
        {areEqual(package.robotRequirements(), record.robotRequirements(),
                  fromTanoRobotRequirement),
         "the robot requirements are not the record's"},
        {areEqual(package.brioRequirements(), record.brioRequirements(), fromTanoBrioRequirement),
         "the Brio requirements are not the record's"},
    };
    for (const auto &[holds, fault] : promises) {
        if (!holds)
            return QString::fromLatin1(fault);
    }
    for (const QString &fault :
         {faultOfDescriptions(package, isLeftover),
          faultOfChildren(package, package.behaviors(), &PackageInfoModel::behavior),
          faultOfChildren(package, package.dialogs(), &PackageInfoModel::dialog),
          faultOfChildren(package, package.services(), &PackageInfoModel::service),
          savingFault(record)}) {
        if (!fault.isEmpty())
            return fault;
    }
    return {};
}

QString lag(const PackageInfoModel &package) {
    const Tano::PackageInfo &record = package.packageInfo();
    if (!areEqual(package.behaviors(), record.behaviors()))
        return QStringLiteral("the record's behaviors are not the children's");
    if (!areEqual(package.dialogs(), record.dialogs()))
        return QStringLiteral("the record's dialogs are not the children's");
    if (!areEqual(package.services(), record.services()))
        return QStringLiteral("the record's services are not the children's");
    return {};
}

QString savingFault(const Tano::PackageInfo &record) {
    const std::string content = record.saveToManifestContent();
    Tano::PackageInfo again;
    if (content.empty())
        return {};
    if (!again.loadFromManifestContent(content))
        return QStringLiteral("what was saved cannot be loaded: ") +
               QString::fromStdString(again.errorString());
    // Undoing may leave an empty text, which the manifest omits.
    return again.saveToManifestContent() == content
               ? QString()
               : QStringLiteral("what was saved loads as another record");
}

const std::vector<QByteArray> &manifests() {
    static const std::vector<QByteArray> all{
        R"(<package format="1" uid="lantern" version="1.4">
<supportedLanguage code="en_US"/><supportedLanguage code="ja_JP"/>
<descriptionLanguage code="en_US"/><descriptionLanguage code="xx_YY"/>
<texts language="en_US"><name>Lantern</name><description>Lights the way.</description></texts>
<texts language="fr_FR"><name>Lanterne</name></texts>
<robotRequirement model="TERN" minHeadVersion="1.0"/><brioRequirement minVersion="2.5"/>
<behavior path="a" userRequestable="true"><texts language="en_US"><name>Glow</name><tag>light</tag>
<triggerSentence>glow</triggerSentence><loadingResponse>yes</loadingResponse></texts></behavior>
<behavior path="." nature="solitary"/>
<dialog topicName="a"><topic language="en_US">a.top</topic><topic language="ja_JP">b.top</topic></dialog>
<dialog topicName="b"/><service name="a"/><service name="b"/></package>)",
        R"(<package format="1" uid="kite" version="2"><author>Ines</author>
<supportedLanguage code="fr_FR"/><texts language="fr_FR"><name>Cerf-volant</name>
<description>Vole.</description></texts>
<behavior path="b"/><behavior path="b"/><dialog topicName="b"/><service name="."/></package>)",
        R"(<package format="1" uid="" version=""/>)",
        R"(<package format="1" uid="x" version="1"><behavior path="a"/><dialog></package>)",
        "",
    };
    return all;
}

Tano::PackageInfo loadedRecord(std::size_t i) {
    static const auto records = [] {
        std::vector<Tano::PackageInfo> loaded;
        for (const QByteArray &content : manifests()) {
            PackageInfoModel package;
            static_cast<void>(package.loadFromManifestContent(content));
            loaded.push_back(package.packageInfo());
        }
        return loaded;
    }();
    return records.at(i);
}

} // namespace Observers
