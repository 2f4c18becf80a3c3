#include "package_fixes.h"

#include "further_checks.h"

#include <packagemodel/language_name.h>
#include <packagemodel/near_words.h>
#include <packagemodel/package_info_model.h>

#include <QCoreApplication>
#include <QDate>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>
#include <array>

namespace Zel::PackageModel {
namespace {

using Tano::FieldPath;

QString text(const char *source) {
    return QCoreApplication::translate("Zel::PackageModel", source);
}

Edit setting(const FieldPath &path, const FieldValue &value) {
    return {Edit::Action::Set, path, value};
}

Edit removing(const FieldPath &path) {
    return {Edit::Action::Remove, path};
}

FieldPath fieldNamed(const char *name) {
    return FieldPath().field(name);
}

// The list entry that contains a path: behaviors[greet] for behaviors[greet].nature.
FieldPath entryOf(const FieldPath &path) {
    FieldPath entry = path;
    while (entry.steps().size() > 1)
        entry = entry.parent();
    return entry;
}

QString textAt(const PackageInfoModel &package, const FieldPath &path) {
    const auto current = value(&package, path);
    return current ? printed(*current) : QString();
}

Fix removal(const FieldPath &path, const char *title, bool isSafe) {
    return {text(title), isSafe, {removing(path)}};
}

Fix change(const FieldPath &path, const QString &newText, bool isSafe) {
    return {text(QT_TRANSLATE_NOOP("Zel::PackageModel", "Change it to '%1'")).arg(newText),
            isSafe,
            {setting(path, newText)}};
}

QVector<Fix> fixUid(const Finding &finding, const PackageInfoModel &package) {
    static const QRegularExpression others(QStringLiteral("[^a-z0-9_-]+"));
    static const QRegularExpression ends(QStringLiteral("^-+|-+$"));
    const QString trimmed = package.uid().trimmed();
    QString uid = trimmed.toLower();
    uid = uid.replace(others, QStringLiteral("-")).remove(ends).left(50);
    const bool isNumber =
        std::all_of(uid.begin(), uid.end(), [](QChar character) { return character.isDigit(); });
    return isNumber ? QVector<Fix>() : QVector<Fix>{change(finding.field, uid, uid == trimmed)};
}

QVector<Fix> fixMissingModel(const Finding &finding, const PackageInfoModel &) {
    return {removal(entryOf(finding.field),
                    QT_TRANSLATE_NOOP("Zel::PackageModel", "Remove the requirement"), false)};
}

// The field at fault is a maximum below its minimum.
QVector<Fix> fixRange(const Finding &finding, const PackageInfoModel &package) {
    const std::string field = finding.field.steps().back().field;
    const FieldPath minimum = FieldPath(entryOf(finding.field)).field("min" + field.substr(3));
    const auto low = value(&package, finding.field);
    const auto high = value(&package, minimum);
    if (!low || !high)
        return {};
    return {{text(QT_TRANSLATE_NOOP("Zel::PackageModel", "Swap minimum and maximum")),
             false,
             {setting(minimum, *low), setting(finding.field, *high)}},
            {text(QT_TRANSLATE_NOOP("Zel::PackageModel", "Clear the maximum")),
             false,
             {setting(finding.field, SoftwareVersion())}}};
}

QVector<Fix> fixMissingMinimum(const Finding &finding, const PackageInfoModel &package) {
    if (package.brioRequirements().size() < 2)
        return {};
    return {removal(entryOf(finding.field),
                    QT_TRANSLATE_NOOP("Zel::PackageModel", "Remove the requirement"), false)};
}

Fix dropLanguage(const RobotLanguage &language) {
    return {text(QT_TRANSLATE_NOOP("Zel::PackageModel", "Stop supporting %1"))
                .arg(languageName(language)),
            false,
            {removing(fieldNamed("supportedLanguages").key(toUtf8(language.isoCode())))}};
}

// A missing text may be copied from the default language, else from the first language with one.
template<typename Values>
auto sourceOf(const Values &values) {
    const auto isFilled = [](const auto &entry) { return !entry.first.isEmpty(); };
    const auto isDefault = [&](const auto &entry) {
        return isFilled(entry) && entry.second == Language::defaultLanguage();
    };
    const auto found = std::find_if(values.begin(), values.end(), isDefault);
    return found == values.end() ? std::find_if(values.begin(), values.end(), isFilled) : found;
}

QString copyTitle(const RobotLanguage &from) {
    return text(QT_TRANSLATE_NOOP("Zel::PackageModel", "Copy from %1")).arg(languageName(from));
}

QVector<Fix> fixMissingText(const Finding &finding, const PackageInfoModel &package) {
    const bool isName = finding.field == fieldNamed("names");
    const auto &texts = isName ? package.names() : package.descriptions();
    const auto source = sourceOf(texts);
    QVector<Fix> fixes;
    if (source != texts.end())
        fixes.append({copyTitle(source->second), false, {setting(pathOf(finding), source->first)}});
    fixes.append(dropLanguage(finding.language));
    return fixes;
}

QVector<Fix> fixMissingSentences(const Finding &finding, const PackageInfoModel &package) {
    const FieldPath entry = entryOf(finding.field);
    const auto record = value(&package, entry);
    if (!record)
        return {};
    const BehaviorInfoModel behavior(std::get<Tano::BehaviorInfo>(*record));
    const auto &lists = behavior.languagesToTriggerSentences();
    const auto source = sourceOf(lists);
    QVector<Fix> fixes;
    if (source != lists.end()) {
        Edits edits;
        for (int i = 0; i < source->first.size(); ++i)
            edits.append({Edit::Action::Insert, pathOf(finding), source->first.at(i), i});
        fixes.append({copyTitle(source->second), false, edits});
    }
    fixes.append(dropLanguage(finding.language));
    return fixes;
}

// Gives the second entry the first free key.
QVector<Fix> fixDuplicateKey(const Finding &finding, const PackageInfoModel &package) {
    const auto &list = finding.field.steps().front().field;
    const QString key = fromUtf8(finding.field.steps().front().selectors.front().text);
    QString free;
    for (int number = 2; free.isEmpty(); ++number) {
        const QString candidate = key % u'-' % QString::number(number);
        if (!value(&package, FieldPath().field(list).key(toUtf8(candidate))))
            free = candidate;
    }
    return {{text(QT_TRANSLATE_NOOP("Zel::PackageModel", "Rename it to '%1'")).arg(free),
             false,
             {setting(finding.field, free)}},
            removal(entryOf(finding.field),
                    QT_TRANSLATE_NOOP("Zel::PackageModel", "Remove the entry"), false)};
}

// A model's permissions are a set, so only the record shows a duplicate.
Edit withoutPermission(const FieldPath &path, const PackageInfoModel &package) {
    const FieldPath entry = entryOf(path);
    const int index = path.steps().back().selectors.back().toIndex().value_or(0);
    auto record = std::get<Tano::BehaviorInfo>(*value(&package, entry));
    const std::vector<std::string> all = record.permissions();
    for (const std::string &permission : all)
        record.removePermission(permission);
    for (std::size_t i = 0; i < all.size(); ++i) {
        if (int(i) != index)
            record.insertPermission(all[i], int(record.permissions().size()));
    }
    return setting(entry, record);
}

QVector<Fix> fixDuplicatePermission(const Finding &finding, const PackageInfoModel &package) {
    return {{text(QT_TRANSLATE_NOOP("Zel::PackageModel", "Remove the permission")),
             true,
             {withoutPermission(finding.field, package)}}};
}

QVector<Fix> fixEmptyKey(const Finding &finding, const PackageInfoModel &package) {
    const std::string &field = finding.field.steps().back().field;
    if (field == "permissions")
        return fixDuplicatePermission(finding, package);
    const bool isProperty = field == "properties";
    return {removal(isProperty ? finding.field : entryOf(finding.field),
                    QT_TRANSLATE_NOOP("Zel::PackageModel", "Remove the entry"), false)};
}

// A word close to a known one is probably misspelled.
QVector<Fix> fixWord(const FieldPath &path, const QString &word, const QStringList &known,
                     bool isSafe) {
    const QString near = nearestWord(word, known);
    QVector<Fix> fixes;
    if (!near.isEmpty())
        fixes.append(change(path, near, isSafe));
    fixes.append({text(QT_TRANSLATE_NOOP("Zel::PackageModel", "Clear it")),
                  false,
                  {setting(path, QString())}});
    return fixes;
}

QVector<Fix> fixNature(const Finding &finding, const PackageInfoModel &package) {
    return fixWord(finding.field, textAt(package, finding.field),
                   {BehaviorInfoModel::natureInteractive(), BehaviorInfoModel::natureSolitary()},
                   true);
}

QVector<Fix> fixRobot(const Finding &finding, const PackageInfoModel &package) {
    QVector<Fix> fixes = fixWord(finding.field, textAt(package, finding.field),
                                 RobotRequirement::prettyRobotNames().keys(), false);
    fixes.removeLast(); // a requirement without a model would be another fault
    return fixes;
}

QVector<Fix> fixLanguage(const Finding &finding, const PackageInfoModel &) {
    return {removal(finding.field, QT_TRANSLATE_NOOP("Zel::PackageModel", "Remove the language"),
                    false)};
}

QVector<Fix> fixVersion(const Finding &finding, const PackageInfoModel &) {
    static const QRegularExpression form(QRegularExpression::anchoredPattern(
        QStringLiteral("\\s*[vV]?\\.?([0-9]+([.,_-][0-9]+)*)\\.?\\s*")));
    static const QRegularExpression separators(QStringLiteral("[,_-]"));
    QVector<Fix> fixes;
    const auto match = form.match(finding.arguments.value(0));
    bool isVersion = false;
    const SoftwareVersion version = SoftwareVersionUtils::fromString(
        match.captured(1).replace(separators, QStringLiteral(".")), &isVersion);
    if (match.hasMatch() && isVersion)
        fixes.append({text(QT_TRANSLATE_NOOP("Zel::PackageModel", "Change it to '%1'"))
                          .arg(SoftwareVersionUtils::toString(version)),
                      true,
                      {setting(finding.field, version)}});
    if (finding.field != fieldNamed("version"))
        fixes.append({text(QT_TRANSLATE_NOOP("Zel::PackageModel", "Clear it")),
                      false,
                      {setting(finding.field, SoftwareVersion())}});
    return fixes;
}

QVector<Fix> fixDate(const Finding &finding, const PackageInfoModel &package) {
    // Formats with the year first are unambiguous.
    const std::array forms{std::pair("yyyy-M-d", true), std::pair("yyyy/M/d", true),
                           std::pair("yyyy.M.d", true), std::pair("d.M.yyyy", false),
                           std::pair("d/M/yyyy", false)};
    QVector<Fix> fixes;
    for (const auto &[form, isSafe] : forms) {
        const QDate date = QDate::fromString(package.date().trimmed(), QLatin1String(form));
        if (date.isValid())
            fixes.append(change(finding.field, date.toString(Qt::ISODate), isSafe));
    }
    fixes.append({text(QT_TRANSLATE_NOOP("Zel::PackageModel", "Clear it")),
                  false,
                  {setting(finding.field, QString())}});
    return fixes;
}

QVector<Fix> fixUnlistedText(const Finding &finding, const PackageInfoModel &package) {
    QVector<Fix> fixes;
    const std::string code = finding.field.steps().back().selectors.front().text;
    const RobotLanguages known = Language::builtInLanguages();
    const bool isKnown = std::any_of(known.begin(), known.end(), [&](const RobotLanguage &each) {
        return each.isoCode() == fromUtf8(code);
    });
    if (isKnown && finding.field.steps().size() == 1)
        fixes.append({text(QT_TRANSLATE_NOOP("Zel::PackageModel", "Describe the package in %1"))
                          .arg(finding.arguments.value(0)),
                      true,
                      {{Edit::Action::Insert, fieldNamed("descriptionLanguages"), fromUtf8(code),
                        int(package.descriptionLanguages().size())}}});
    Edits edits;
    const auto items = entries(&package, finding.field);
    for (int i = int(items.size()) - 1; i >= 0; --i)
        edits.append(removing(FieldPath(finding.field).index(i)));
    if (items.isEmpty())
        edits.append(removing(finding.field));
    fixes.append({text(QT_TRANSLATE_NOOP("Zel::PackageModel", "Remove the text")), false, edits});
    return fixes;
}

QVector<Fix> fixBlankText(const Finding &finding, const PackageInfoModel &) {
    return {
        removal(finding.field, QT_TRANSLATE_NOOP("Zel::PackageModel", "Remove the text"), true)};
}

QVector<Fix> fixTopicFile(const Finding &finding, const PackageInfoModel &) {
    return {
        removal(finding.field, QT_TRANSLATE_NOOP("Zel::PackageModel", "Remove the topic"), false)};
}

QVector<Fix> fixMissingSupport(const Finding &finding, const PackageInfoModel &package) {
    const RobotLanguages &described = package.descriptionLanguages();
    const RobotLanguage language =
        described.empty() ? Language::defaultLanguage() : described.front();
    return {{text(QT_TRANSLATE_NOOP("Zel::PackageModel", "Support %1")).arg(languageName(language)),
             false,
             {{Edit::Action::Insert, finding.field, language.isoCode(), 0}}}};
}

using MakeFixes = QVector<Fix> (*)(const Finding &finding, const PackageInfoModel &package);

MakeFixes fixesOfRule(RuleId rule) {
    switch (rule) {
    case RuleId::UidInvalid:
        return fixUid;
    case RuleId::RobotModelMissing:
        return fixMissingModel;
    case RuleId::RobotBodyRangeReversed:
    case RuleId::RobotHeadRangeReversed:
    case RuleId::BrioRangeReversed:
        return fixRange;
    case RuleId::BrioMinimumMissing:
        return fixMissingMinimum;
    case RuleId::NameMissingDefault:
    case RuleId::NameMissing:
    case RuleId::DescriptionMissing:
        return fixMissingText;
    case RuleId::TriggerSentencesMissing:
        return fixMissingSentences;
    case RuleId::BehaviorPathDuplicate:
    case RuleId::TopicNameDuplicate:
    case RuleId::ServiceNameDuplicate:
        return fixDuplicateKey;
    case RuleId::PermissionDuplicate:
        return fixDuplicatePermission;
    case RuleId::KeyEmpty:
        return fixEmptyKey;
    case RuleId::NatureUnknown:
        return fixNature;
    case RuleId::LanguageUnknown:
        return fixLanguage;
    case RuleId::RobotUnknown:
        return fixRobot;
    case RuleId::VersionInvalid:
        return fixVersion;
    case RuleId::DateInvalid:
        return fixDate;
    case RuleId::TextUnlisted:
        return fixUnlistedText;
    case RuleId::TextBlank:
        return fixBlankText;
    case RuleId::TopicFileMissing:
        return fixTopicFile;
    case RuleId::SupportedLanguageMissing:
        return fixMissingSupport;
    default:
        return nullptr; // only the author can decide
    }
}

} // namespace

namespace {

using Renamed = std::vector<std::pair<Tano::UnknownNode, std::string>>;

// Renames all nodes or, if that makes the manifest invalid, as many as possible.
std::optional<Tano::PackageInfo> withAsManyRenamed(const Tano::PackageInfo &record,
                                                   const Renamed &renamed) {
    constexpr std::size_t few = 20;
    auto corrected = Tano::withRenamedNodes(record, renamed);
    Renamed accepted;
    for (std::size_t i = 0; !corrected && i < std::min(renamed.size(), few); ++i) {
        accepted.push_back(renamed[i]);
        if (!Tano::withRenamedNodes(record, accepted))
            accepted.pop_back();
    }
    return corrected || accepted.empty() ? corrected : Tano::withRenamedNodes(record, accepted);
}

} // namespace

QVector<Fix> FixMaker::fixesOf(const Finding &finding) {
    if (finding.rule == RuleId::ElementUnknown || finding.rule == RuleId::AttributeUnknown)
        return finding.arguments.value(1).size() > 1 ? renames() : QVector<Fix>();
    if (finding.rule == RuleId::MergeConflict)
        return resolutions();
    const MakeFixes make = fixesOfRule(finding.rule);
    return make ? make(finding, m_package) : QVector<Fix>();
}

const QVector<Fix> &FixMaker::renames() {
    if (m_renames)
        return *m_renames;
    m_renames.emplace();
    const auto record = std::get<Tano::PackageInfo>(*value(&m_package, {}));
    Renamed renamed;
    for (const Tano::UnknownNode &node : Tano::unknownNodes(record)) {
        const QString near = nearestWord(fromUtf8(node.name), namesBeside(node));
        if (!near.isEmpty())
            renamed.emplace_back(node, toUtf8(near));
    }
    if (const auto corrected = withAsManyRenamed(record, renamed))
        m_renames->append({text(QT_TRANSLATE_NOOP("Zel::PackageModel",
                                                  "Correct the names of elements and attributes")),
                           true,
                           {setting({}, *corrected)}});
    return *m_renames;
}

const QVector<Fix> &FixMaker::resolutions() {
    if (m_resolutions)
        return *m_resolutions;
    const auto record = std::get<Tano::PackageInfo>(*value(&m_package, {}));
    m_resolutions = {{text(QT_TRANSLATE_NOOP("Zel::PackageModel",
                                             "Keep the current values and remove the comments")),
                      false,
                      {setting({}, Tano::withoutComments(record, conflicts(record)))}}};
    return *m_resolutions;
}

namespace {

const Fix *chosenFix(const Issue &issue, FixChoice choice) {
    const auto fix = std::find_if(issue.fixes.begin(), issue.fixes.end(), [&](const Fix &each) {
        return each.isSafe || choice == FixChoice::All;
    });
    return fix == issue.fixes.end() ? nullptr : &*fix;
}

// Fixes the issues of one rule, from the last to the first, so that removing an entry does not
// shift the indexes of those before it. A fix that no longer applies is left to the next round.
Edits fixRule(PackageInfoModel *package, FixChoice choice, const QVector<Issue> &found,
              const QString &id) {
    Edits made;
    Edits last; // several issues may share a fix
    for (auto issue = found.rbegin(); issue != found.rend(); ++issue) {
        const Fix *fix = issue->id == id ? chosenFix(*issue, choice) : nullptr;
        if (!fix || fix->edits.constData() == std::as_const(last).constData())
            continue;
        last = fix->edits;
        if (apply(package, last).error.isEmpty())
            made += last;
    }
    return made;
}

bool setsVersion(const Edits &edits) {
    return std::any_of(edits.begin(), edits.end(),
                       [](const Edit &edit) { return edit.path == fieldNamed("version"); });
}

} // namespace

// Fixing one rule can resolve issues of another, so each round fixes one rule.
Edits fixIssues(PackageInfoModel *package, FixChoice choice, const IssueOptions &givenOptions) {
    constexpr int mostRounds = 1000;
    IssueOptions options = givenOptions;
    options.withFixes = true;
    Edits made;
    bool isDone = false;
    for (int round = 0; round < mostRounds && !isDone; ++round) {
        QVector<Issue> found = issues(package, options);
        // Renaming misspelled elements comes first, since it makes their content count.
        std::stable_partition(found.begin(), found.end(), [](const Issue &issue) {
            return issue.id == QLatin1String(ruleRow(RuleId::ElementUnknown).id) ||
                   issue.id == QLatin1String(ruleRow(RuleId::AttributeUnknown).id);
        });
        QSet<QString> tried;
        isDone = true;
        for (auto issue = found.begin(); issue != found.end() && isDone; ++issue) {
            if (tried.contains(issue->id) || !chosenFix(*issue, choice))
                continue;
            tried.insert(issue->id);
            const Edits edits = fixRule(package, choice, found, issue->id);
            isDone = edits.isEmpty();
            made += edits;
            // From here on, check the version in the package.
            if (setsVersion(edits))
                options.written = nullptr;
        }
    }
    return made;
}

} // namespace Zel::PackageModel
