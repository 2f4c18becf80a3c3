#include "further_checks.h"

#include <packagemodel/near_words.h>
#include <packagemodel/package_info_model.h>
#include <packagemodel/package_scripts.h>

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QRegularExpression>

#include <algorithm>

namespace Zel::PackageModel {
namespace {

using Tano::FieldPath;

FieldPath fieldNamed(const char *name) {
    return FieldPath().field(name);
}

bool isScriptVariant(const QString &code) {
    return code.endsWith(k_sa.text());
}

// Suggests the nearest known word at the end of a message, if any is near.
QString nearest(const QString &word, const QStringList &known) {
    const QString near = nearestWord(word, known);
    return near.isEmpty()
               ? QStringLiteral(".")
               : QCoreApplication::translate("Zel::PackageModel", "; did you mean '%1'?").arg(near);
}

void addScriptErrors(const QVector<ScriptError> &errors, Findings &findings) {
    static const QRegularExpression form(
        QRegularExpression::anchoredPattern(QStringLiteral("Line ([0-9]+), column ([0-9]+): (.*)")),
        QRegularExpression::DotMatchesEverythingOption);
    for (const ScriptError &error : errors) {
        const auto match = form.match(error.text);
        findings.push_back({RuleId::ScriptMalformed,
                            *FieldPath::parse(toUtf8(error.path)),
                            match.capturedTexts().mid(1),
                            {}});
    }
}

void checkOwnScripts(const CheckedPackage &checked, Findings &findings) {
    addScriptErrors(ownScriptErrors(checked.package), findings);
}

void checkScripts(const CheckedPackage &checked, const BehaviorPlace &place, Findings &findings) {
    addScriptErrors(checked.scripts.errorsIn(*place.behavior, place.path()), findings);
}

QString labelOf(const FieldPath &path) {
    const auto form = formOf(path);
    return form ? form->label : QString();
}

// Entries are looked up by key, so each needs a unique key.
void checkKey(const QString &key, int occurrence, const FieldPath &path, RuleId duplicate,
              Findings &findings) {
    if (key.isEmpty())
        findings.push_back({RuleId::KeyEmpty, path, {labelOf(path)}, {}});
    else if (occurrence > 0)
        findings.push_back({duplicate, path, {key}, {}});
}

void checkPath(const CheckedPackage &, const BehaviorPlace &place, Findings &findings) {
    const QString path = place.behavior->path();
    if (path.isEmpty() || place.occurrence > 0)
        checkKey(path, place.occurrence, place.path().field("path"), RuleId::BehaviorPathDuplicate,
                 findings);
}

void checkKeys(const CheckedPackage &checked, Findings &findings) {
    QHash<QString, int> topics;
    for (const DialogInfoModel *dialog : checked.package.dialogs()) {
        const QString topic = dialog->topicName();
        const int occurrence = topics[topic]++;
        checkKey(topic, occurrence,
                 fieldNamed("dialogs").entry(toUtf8(topic), occurrence).field("topicName"),
                 RuleId::TopicNameDuplicate, findings);
    }
    QHash<QString, int> names;
    for (const ServiceInfoModel *service : checked.package.services()) {
        const QString name = service->name();
        const int occurrence = names[name]++;
        const FieldPath entry = fieldNamed("services").entry(toUtf8(name), occurrence);
        checkKey(name, occurrence, FieldPath(entry).field("name"), RuleId::ServiceNameDuplicate,
                 findings);
        if (service->properties().contains(QString()))
            checkKey({}, 0, FieldPath(entry).field("properties").key({}), RuleId::KeyEmpty,
                     findings);
    }
}

void checkPermissions(const CheckedPackage &, const BehaviorPlace &place, Findings &findings) {
    const QStringList permissions = place.behavior->permissionList();
    for (int i = 0; i < permissions.size(); ++i) {
        const QString &permission = permissions.at(i);
        const bool isRepeated = permissions.indexOf(permission) < i;
        if (permission.isEmpty() || isRepeated)
            checkKey(permission, isRepeated, place.path().field("permissions").index(i),
                     RuleId::PermissionDuplicate, findings);
    }
}

void checkNature(const CheckedPackage &, const BehaviorPlace &place, Findings &findings) {
    static const QStringList known{BehaviorInfoModel::natureInteractive(),
                                   BehaviorInfoModel::natureSolitary()};
    const QString nature = place.behavior->nature();
    if (!nature.isEmpty() && !known.contains(nature))
        findings.push_back({RuleId::NatureUnknown,
                            place.path().field("nature"),
                            {nature, nearest(nature, known)},
                            {}});
}

void checkLanguageCodes(const CheckedPackage &checked, Findings &findings) {
    static const QStringList known = Language::builtInCodes();
    const auto check = [&](const RobotLanguages &languages, const char *list) {
        for (const RobotLanguage &language : languages) {
            const QString &code = language.isoCode();
            if (!known.contains(code) && !isScriptVariant(code))
                findings.push_back({RuleId::LanguageUnknown,
                                    fieldNamed(list).key(toUtf8(code)),
                                    {code, nearest(QString(code).replace(u'-', u'_'), known)},
                                    {}});
        }
    };
    check(checked.package.supportedLanguages(), "supportedLanguages");
    RobotLanguages others;
    for (const RobotLanguage &language : checked.package.descriptionLanguages()) {
        if (!checked.package.hasLanguageSupport(language))
            others.push_back(language);
    }
    check(others, "descriptionLanguages");
}

void checkRobots(const CheckedPackage &checked, Findings &findings) {
    const QStringList known = RobotRequirement::prettyRobotNames().keys();
    const auto requirements = checked.package.robotRequirements();
    for (int i = 0; known.size() > 1 && i < requirements.size(); ++i) {
        const QString model = requirements.at(i).model;
        if (!known.contains(model) && !model.isEmpty())
            findings.push_back({RuleId::RobotUnknown,
                                fieldNamed("robotRequirements").index(i).field("model"),
                                {model, nearest(model, known)},
                                {}});
    }
}

// Versions are checked in the record: a model drops malformed ones.
void checkVersions(const CheckedPackage &checked, Findings &findings) {
    const auto check = [&](const std::string &text, const FieldPath &path) {
        bool isVersion = false;
        SoftwareVersionUtils::fromString(fromUtf8(text), &isVersion);
        if (!isVersion)
            findings.push_back({RuleId::VersionInvalid, path, {fromUtf8(text)}, {}});
    };
    const Tano::PackageInfo &record = checked.package.packageInfo();
    check((checked.options.written ? *checked.options.written : record).version(),
          fieldNamed("version"));
    const auto checkBounds = [&](const char *list, int index, auto... bounds) {
        const auto checkBound = [&](const auto &bound) {
            if (!bound.first.empty())
                check(bound.first, fieldNamed(list).index(index).field(bound.second));
        };
        (checkBound(bounds), ...);
    };
    int index = 0;
    for (const Tano::RobotRequirement &robot : record.robotRequirements()) {
        checkBounds("robotRequirements", index++, std::pair(robot.minHeadVersion, "minHeadVersion"),
                    std::pair(robot.maxHeadVersion, "maxHeadVersion"),
                    std::pair(robot.minBodyVersion, "minBodyVersion"),
                    std::pair(robot.maxBodyVersion, "maxBodyVersion"));
    }
    index = 0;
    for (const Tano::BrioRequirement &brio : record.brioRequirements()) {
        checkBounds("brioRequirements", index++, std::pair(brio.minVersion, "minVersion"),
                    std::pair(brio.maxVersion, "maxVersion"));
    }
}

void checkDate(const CheckedPackage &checked, Findings &findings) {
    const QString date = checked.package.date();
    const bool isDate = QDate::fromString(date, Qt::ISODate).isValid() ||
                        QDateTime::fromString(date, Qt::ISODate).isValid();
    if (!date.isEmpty() && !isDate)
        findings.push_back({RuleId::DateInvalid, fieldNamed("date"), {date}, {}});
}

bool isBlank(const QString &text) {
    return !text.isEmpty() &&
           std::all_of(text.begin(), text.end(), [](QChar each) { return each.isSpace(); });
}

// Checks the texts of one owner. Its path is only built when something is found.
template<typename Path>
class TextCheck {
public:
    TextCheck(const CheckedPackage &checked, Path path, Findings &findings)
        : m_checked(checked)
        , m_path(path)
        , m_findings(findings) {}

    void add(const char *field, const Language::LocalizedStrings &texts) {
        for (const auto &[text, language] : texts) {
            if (isBlank(text))
                m_findings.push_back({RuleId::TextBlank, path(field, language), {}, {}});
            if (!text.isEmpty())
                checkLanguage(field, language);
        }
    }

    void add(const char *field, const Language::LocalizedStringLists &lists) {
        for (const auto &[texts, language] : lists) {
            for (int i = 0; i < texts.size(); ++i) {
                if (isBlank(texts.at(i)))
                    m_findings.push_back(
                        {RuleId::TextBlank, path(field, language).index(i), {}, {}});
            }
            if (!texts.isEmpty())
                checkLanguage(field, language);
        }
    }

private:
    FieldPath path(const char *field, const RobotLanguage &language) const {
        return m_path().field(field).key(toUtf8(language.isoCode()));
    }

    // The script of a published text counts as the text itself.
    void checkLanguage(const char *field, const RobotLanguage &language) {
        const QString &code = language.isoCode();
        const QString spoken =
            isScriptVariant(code) ? code.left(code.size() - k_sa.text().size()) : code;
        if (!m_checked.languages.contains(spoken))
            m_findings.push_back(
                {RuleId::TextUnlisted, path(field, language), {language.uiName()}, {}});
    }

    const CheckedPackage &m_checked;
    Path m_path;
    Findings &m_findings;
};

void checkOwnTexts(const CheckedPackage &checked, Findings &findings) {
    TextCheck texts(
        checked, [] { return FieldPath(); }, findings);
    texts.add("names", checked.package.names());
    texts.add("descriptions", checked.package.descriptions());
}

void checkTexts(const CheckedPackage &checked, const BehaviorPlace &place, Findings &findings) {
    const BehaviorInfoModel &behavior = *place.behavior;
    TextCheck texts(
        checked, [&] { return place.path(); }, findings);
    texts.add("names", behavior.names());
    texts.add("descriptions", behavior.descriptions());
    texts.add("tags", behavior.languagesToTags());
    texts.add("triggerSentences", behavior.languagesToTriggerSentences());
    texts.add("loadingResponses", behavior.languagesToLoadingResponses());
}

void checkTopicFiles(const CheckedPackage &checked, Findings &findings) {
    if (checked.options.folder.isEmpty())
        return;
    const QDir folder(checked.options.folder);
    QHash<QString, int> counts;
    for (const DialogInfoModel *dialog : checked.package.dialogs()) {
        const FieldPath path =
            fieldNamed("dialogs").entry(toUtf8(dialog->topicName()), counts[dialog->topicName()]++);
        for (const auto &[file, language] : dialog->topics()) {
            if (!file.isEmpty() && !QFileInfo(folder, file).isFile())
                findings.push_back({RuleId::TopicFileMissing,
                                    FieldPath(path).field("topics").key(toUtf8(language.isoCode())),
                                    {file},
                                    {}});
        }
    }
}

// Checks the PNG signature (ISO/IEC 15948) and that the first chunk is "IHDR".
void checkIcon(const CheckedPackage &checked, Findings &findings) {
    if (checked.options.folder.isEmpty())
        return;
    const QFileInfo info(QDir(checked.options.folder), QStringLiteral("icon.png"));
    if (!info.exists())
        return;
    QFile file(info.filePath());
    const bool isOpen = info.isFile() && file.open(QIODevice::ReadOnly);
    const QByteArray start = isOpen ? file.read(16) : QByteArray();
    if (!start.startsWith("\x89PNG\r\n\x1a\n") || start.mid(12) != "IHDR")
        findings.push_back({RuleId::IconInvalid, {}, {}, {}});
}

void checkSupport(const CheckedPackage &checked, Findings &findings) {
    if (checked.package.supportedLanguages().empty())
        findings.push_back(
            {RuleId::SupportedLanguageMissing, fieldNamed("supportedLanguages"), {}, {}});
}

void checkUnknownNodes(const CheckedPackage &checked, Findings &findings) {
    for (const Tano::UnknownNode &node : checked.unknownNodes()) {
        const QString name = fromUtf8(node.name);
        QStringList arguments{name, nearest(name, namesBeside(node))};
        const bool isElement = node.kind == Tano::UnknownNode::Kind::Element;
        if (!isElement)
            arguments += fromUtf8(node.parent);
        findings.push_back({isElement ? RuleId::ElementUnknown : RuleId::AttributeUnknown,
                            node.parentPath,
                            arguments,
                            {},
                            node});
    }
}

void checkConflicts(const CheckedPackage &checked, Findings &findings) {
    for (const Tano::KeptComment &comment : conflicts(checked.record))
        findings.push_back({RuleId::MergeConflict, comment.before, {}, {}});
}

} // namespace

QStringList namesBeside(const Tano::UnknownNode &node) {
    QStringList names;
    for (const std::string &name : Tano::knownNames(node))
        names += fromUtf8(name);
    return names;
}

std::vector<Tano::KeptComment> conflicts(const Tano::PackageInfo &record) {
    if (!Tano::hasComment(record, conflictMark))
        return {};
    std::vector<Tano::KeptComment> all = Tano::comments(record);
    const auto isOther = [](const Tano::KeptComment &comment) {
        return fromUtf8(comment.text).trimmed().indexOf(QLatin1String(conflictMark)) != 0;
    };
    all.erase(std::remove_if(all.begin(), all.end(), isOther), all.end());
    return all;
}

const CheckedPackage::UnknownNodes &CheckedPackage::unknownNodes() const {
    if (!knownNodes)
        knownNodes = std::make_shared<const UnknownNodes>(Tano::unknownNodes(record));
    return *knownNodes;
}

FieldPath BehaviorPlace::path() const {
    return fieldNamed("behaviors").entry(toUtf8(behavior->path()), occurrence);
}

CheckedPackage::CheckedPackage(const PackageInfoModel &checked,
                               const Tano::PackageInfo &checkedRecord,
                               const IssueOptions &checkedWith)
    : package(checked)
    , record(checkedRecord)
    , options(checkedWith)
    , scripts(checked) {
    for (const RobotLanguages &list :
         {checked.supportedLanguages(), checked.descriptionLanguages()}) {
        for (const RobotLanguage &language : list)
            languages.insert(language.isoCode());
    }
}

const std::vector<FurtherCheck> &furtherChecks() {
    static const std::vector<FurtherCheck> checks{{checkOwnScripts, checkScripts},
                                                  {nullptr, checkPath},
                                                  {checkKeys, nullptr},
                                                  {nullptr, checkPermissions},
                                                  {nullptr, checkNature},
                                                  {checkLanguageCodes, nullptr},
                                                  {checkRobots, nullptr},
                                                  {checkVersions, nullptr},
                                                  {checkDate, nullptr},
                                                  {checkOwnTexts, checkTexts},
                                                  {checkTopicFiles, nullptr},
                                                  {checkIcon, nullptr},
                                                  {checkSupport, nullptr},
                                                  {checkUnknownNodes, nullptr},
                                                  {checkConflicts, nullptr}};
    return checks;
}

} // namespace Zel::PackageModel
