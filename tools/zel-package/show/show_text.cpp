#include "show_text.h"

#include "console/labeled_list.h"
#include "console/text_layout.h"
#include "coverage_table.h"
#include "shown_text.h"

#include <packagemodel/language_name.h>
#include <packagemodel/package_coverage.h>
#include <packagemodel/package_fields.h>
#include <packagemodel/package_info_model.h>

#include <algorithm>
#include <iterator>

namespace ZelPackage {
namespace {

using Zel::RobotLanguage;
using Zel::SoftwareVersion;
using Zel::SoftwareVersionUtils::toString;

constexpr int indent = 2;
constexpr int innerIndent = 4;

QString heading(const QString &title, const Console &console) {
    return u'\n' % console.styled(printable(title), Style::Heading) % u'\n';
}

// A behavior, dialog or service.
struct Entry {
    QString title;
    LabeledList fields;
};

QString entriesSection(const QString &title, const std::vector<Entry> &entries,
                       const Console &console) {
    if (entries.empty())
        return {};
    int labelWidth = 0;
    for (const Entry &entry : entries)
        labelWidth = std::max(labelWidth, entry.fields.labelWidth());
    QStringList texts;
    for (const Entry &entry : entries) {
        texts += QString(indent, u' ') % console.styled(printable(entry.title), Style::Heading) %
                 u'\n' % entry.fields.toText(console, innerIndent, labelWidth);
    }
    return heading(title, console) % texts.join(u'\n');
}

// The languages in whose script variant (PackageModel::k_sa) the package has texts.
Zel::RobotLanguages scriptLanguagesOf(const Zel::PackageInfoModel &package) {
    Zel::RobotLanguages languages;
    const std::set<std::string> codes = package.packageInfo().languageCodes();
    for (const RobotLanguage &language : Zel::PackageModel::languages(&package)) {
        if (codes.count(Zel::toUtf8(language.isoCode() % Zel::PackageModel::k_sa.text())) > 0)
            languages.push_back(language);
    }
    return languages;
}

QString codesOf(const Zel::RobotLanguages &languages) {
    QStringList codes;
    for (const RobotLanguage &language : languages)
        codes += language.isoCode();
    return codes.join(QStringLiteral(", "));
}

void add(LabeledList &fields, const QString &label, const ShownText &shown) {
    if (shown.remark.isEmpty())
        fields.add(label, shown.text);
    else
        fields.addMarked(label, shown.text, shown.remark);
}

void addMissing(LabeledList &fields, const QString &label, const RobotLanguage &language) {
    fields.addMarked(
        label, {},
        QCoreApplication::translate("zel-package", "missing in %1").arg(language.isoCode()));
}

// Languages for descriptions only need no lists and no topics.
bool isSpokenIn(const RobotLanguage &language, const Zel::PackageInfoModel &package) {
    return package.hasLanguageSupport(language) || !package.hasLanguageDescription(language);
}

void addLanguages(LabeledList &fields, const QString &label, const Zel::RobotLanguages &languages,
                  const Zel::PackageInfoModel &package) {
    fields.addFilled(label, !languages.empty() && languages == package.supportedLanguages()
                                ? QCoreApplication::translate("zel-package", "the same languages")
                                : codesOf(languages));
}

ShownText shownName(const Zel::PackageInfoModel &package, const RobotLanguage &language) {
    return shownText([&](const RobotLanguage &lang) { return package.name(lang); }, language,
                     package.uid(), QCoreApplication::translate("zel-package", "this is the uid"));
}

ShownText shownDescription(const Zel::PackageInfoModel &package, const RobotLanguage &language) {
    return shownText([&](const RobotLanguage &lang) { return package.description(lang); },
                     language);
}

QString identitySection(const Zel::PackageInfoModel &package, const Console &console) {
    LabeledList fields;
    for (const auto &field : Zel::PackageModel::plainFields(&package))
        fields.addFilled(field.label, Zel::PackageModel::printed(field.value));
    fields.addFilled(QCoreApplication::translate("zel-package", "Runs in"),
                     codesOf(package.supportedLanguages()));
    addLanguages(fields, QCoreApplication::translate("zel-package", "Described in"),
                 package.descriptionLanguages(), package);
    addLanguages(fields, QCoreApplication::translate("zel-package", "Scripts in"),
                 scriptLanguagesOf(package), package);
    return heading(QCoreApplication::translate("zel-package", "Identity"), console) %
           fields.toText(console, indent);
}

QString textsIn(const RobotLanguage &language, const Zel::PackageInfoModel &package,
                const Console &console) {
    LabeledList fields;
    add(fields, QCoreApplication::translate("zel-package", "name"), shownName(package, language));
    add(fields, QCoreApplication::translate("zel-package", "description"),
        shownDescription(package, language));
    return fields.toText(console, indent);
}

QString textsInAll(const Zel::PackageInfoModel &package, const Console &console) {
    LabeledList fields;
    for (const RobotLanguage &language : Zel::PackageModel::languages(&package)) {
        const QString name = package.name(language);
        const QString description = package.description(language);
        const bool isListed =
            package.hasLanguageSupport(language) || package.hasLanguageDescription(language);
        if (name.isEmpty() && (isListed || !description.isEmpty()))
            fields.addMarked(language.isoCode(), {},
                             QCoreApplication::translate("zel-package", "no name"));
        else if (!name.isEmpty())
            fields.add(language.isoCode(), name);
        fields.addFilled({}, description);
    }
    return fields.toText(console, indent);
}

QString rangeOf(const SoftwareVersion &min, const SoftwareVersion &max) {
    const QString from = toString(min);
    const QString to = toString(max);
    if (to.isEmpty())
        return from.isEmpty() ? from
                              : QCoreApplication::translate("zel-package", "%1 or later").arg(from);
    return from.isEmpty() ? QCoreApplication::translate("zel-package", "up to %1").arg(to)
                          : QCoreApplication::translate("zel-package", "%1 to %2").arg(from, to);
}

QString versionsOf(const Zel::RobotRequirement &requirement) {
    QStringList parts;
    const QString head = rangeOf(requirement.minHeadVersion, requirement.maxHeadVersion);
    const QString body = rangeOf(requirement.minBodyVersion, requirement.maxBodyVersion);
    if (!head.isEmpty())
        parts += QCoreApplication::translate("zel-package", "head %1").arg(head);
    if (!body.isEmpty())
        parts += QCoreApplication::translate("zel-package", "body %1").arg(body);
    return parts.isEmpty() ? QCoreApplication::translate("zel-package", "any version")
                           : parts.join(QStringLiteral(", "));
}

QString requirementsSection(const Zel::PackageInfoModel &package, const Console &console) {
    LabeledList fields;
    const auto robots = package.robotRequirements();
    for (const Zel::RobotRequirement &requirement : robots)
        fields.add(requirement.model.isEmpty()
                       ? QCoreApplication::translate("zel-package", "any robot")
                       : requirement.model,
                   versionsOf(requirement));
    const auto brios = package.brioRequirements();
    for (const Zel::BrioRequirement &requirement : brios) {
        const QString range = rangeOf(requirement.minVersion, requirement.maxVersion);
        fields.add(QStringLiteral("Brio"),
                   range.isEmpty() ? QCoreApplication::translate("zel-package", "any version")
                                   : range);
    }
    if (robots.isEmpty())
        fields.addMarked(QCoreApplication::translate("zel-package", "robots"), {},
                         QCoreApplication::translate("zel-package", "none"));
    if (brios.isEmpty())
        fields.addMarked(QStringLiteral("Brio"), {},
                         QCoreApplication::translate("zel-package", "none"));
    return heading(QCoreApplication::translate("zel-package", "Requirements"), console) %
           fields.toText(console, indent);
}

QString coverageSection(const std::optional<RobotLanguage> &language,
                        const Zel::PackageInfoModel &package, const Console &console) {
    const auto coverages = language ? std::vector{Zel::PackageModel::coverage(&package, *language)}
                                    : Zel::PackageModel::coverages(&package);
    if (coverages.empty())
        return {};
    return heading(QCoreApplication::translate("zel-package", "Translations"), console) %
           coverageTable(coverages, console, indent);
}

// A list that only exists in another language is reported as missing if it is expected; there is no
// fallback.
void addList(LabeledList &fields, const QString &label,
             const Zel::Language::LocalizedStringLists &lists, const RobotLanguage &language,
             bool isExpected, const QString &separator) {
    QStringList texts;
    for (const auto &[list, itsLanguage] : lists) {
        if (itsLanguage == language)
            std::transform(list.begin(), list.end(), std::back_inserter(texts), printable);
    }
    if (!texts.join(QString()).isEmpty())
        fields.add(label, texts.join(separator));
    else if (!lists.empty() && isExpected)
        addMissing(fields, label, language);
}

void addConditions(LabeledList &fields, const Zel::BehaviorInfoModel &behavior) {
    const Tano::BehaviorInfo record = behavior.toBehaviorInfo();
    for (const auto &[purpose, values] : record.purposesToConditions()) {
        const QString text = Zel::fromUtf8(purpose);
        fields.add(QCoreApplication::translate("zel-package", "%1 if").arg(text),
                   behavior.conditions(text).join(u'\n'));
    }
}

QString kindOf(const Zel::BehaviorInfoModel &behavior) {
    QStringList parts;
    if (!behavior.nature().isEmpty())
        parts += behavior.nature();
    if (behavior.isUserRequestable())
        parts += QCoreApplication::translate("zel-package", "users may request it");
    return parts.join(QStringLiteral(", "));
}

Entry behaviorEntry(const Zel::BehaviorInfoModel &behavior, const RobotLanguage &language,
                    bool isSpoken) {
    LabeledList fields;
    add(fields, QCoreApplication::translate("zel-package", "name"),
        shownText([&](const RobotLanguage &lang) { return behavior.name(lang); }, language,
                  behavior.path(), QCoreApplication::translate("zel-package", "this is the path")));
    if (!behavior.descriptions().empty())
        add(fields, QCoreApplication::translate("zel-package", "description"),
            shownText([&](const RobotLanguage &lang) { return behavior.description(lang); },
                      language));
    fields.addFilled(QCoreApplication::translate("zel-package", "nature"), kindOf(behavior));
    QStringList permissions = behavior.permissions().values();
    std::sort(permissions.begin(), permissions.end());
    fields.addFilled(QCoreApplication::translate("zel-package", "permissions"),
                     permissions.join(QStringLiteral(", ")));
    addConditions(fields, behavior);
    addList(fields, QCoreApplication::translate("zel-package", "tags"), behavior.languagesToTags(),
            language, isSpoken, QStringLiteral(", "));
    addList(fields, QCoreApplication::translate("zel-package", "triggers"),
            behavior.languagesToTriggerSentences(), language, isSpoken, QStringLiteral("\n"));
    addList(fields, QCoreApplication::translate("zel-package", "loading"),
            behavior.languagesToLoadingResponses(), language, isSpoken, QStringLiteral("\n"));
    return {behavior.prettyPath(), fields};
}

QString behaviorsSection(const Zel::PackageInfoModel &package, const RobotLanguage &language,
                         const Console &console) {
    std::vector<Entry> entries;
    const auto behaviors = package.behaviors();
    for (const Zel::BehaviorInfoModel *behavior : behaviors)
        entries.push_back(behaviorEntry(*behavior, language, isSpokenIn(language, package)));
    return entriesSection(QCoreApplication::translate("zel-package", "Behaviors in %1")
                              .arg(Zel::PackageModel::languageName(language)),
                          entries, console);
}

QString dialogsSection(const Zel::PackageInfoModel &package,
                       const std::optional<RobotLanguage> &language, const Console &console) {
    std::vector<Entry> entries;
    const auto dialogs = package.dialogs();
    for (const Zel::DialogInfoModel *dialog : dialogs) {
        LabeledList fields;
        fields.addFilled(QCoreApplication::translate("zel-package", "type version"),
                         dialog->typeVersion());
        for (const auto &[path, itsLanguage] : dialog->topics()) {
            if (!language || itsLanguage == *language)
                fields.add(itsLanguage.isoCode(), path);
        }
        if (language && isSpokenIn(*language, package) && !dialog->topics().empty() &&
            dialog->topic(*language).isEmpty())
            addMissing(fields, language->isoCode(), *language);
        entries.push_back({dialog->topicName(), fields});
    }
    return entriesSection(QCoreApplication::translate("zel-package", "Dialogs"), entries, console);
}

QString servicesSection(const Zel::PackageInfoModel &package, const Console &console) {
    std::vector<Entry> entries;
    const auto services = package.services();
    for (const Zel::ServiceInfoModel *service : services) {
        LabeledList fields;
        fields.addFilled(QCoreApplication::translate("zel-package", "command"),
                         service->execStart());
        fields.add(QCoreApplication::translate("zel-package", "starts"),
                   service->isAutoRun()
                       ? QCoreApplication::translate("zel-package", "with the robot")
                       : QCoreApplication::translate("zel-package", "on demand"));
        const Tano::PackageService record = service->toPackageService();
        for (const auto &[name, value] : record.properties)
            fields.add(Zel::fromUtf8(name), Zel::fromUtf8(value));
        entries.push_back({service->name(), fields});
    }
    return entriesSection(QCoreApplication::translate("zel-package", "Services"), entries, console);
}

RobotLanguage usualLanguageOf(const Zel::RobotLanguages &languages) {
    const RobotLanguage usual = Zel::Language::defaultLanguage();
    const bool hasUsual = std::find(languages.begin(), languages.end(), usual) != languages.end();
    return hasUsual || languages.empty() ? usual : languages.front();
}

} // namespace

QString textOf(const Zel::PackageInfoModel &package, const std::optional<RobotLanguage> &language,
               const Console &console) {
    const RobotLanguage shown =
        language ? *language : usualLanguageOf(Zel::PackageModel::languages(&package));
    const QString title = printable(shownName(package, shown).text);
    const QString textsTitle = language ? QCoreApplication::translate("zel-package", "Texts in %1")
                                              .arg(Zel::PackageModel::languageName(*language))
                                        : QCoreApplication::translate("zel-package", "Texts");
    const QString texts =
        language ? textsIn(*language, package, console) : textsInAll(package, console);
    return console.styled(title, Style::Heading) % u'\n' % identitySection(package, console) %
           (texts.isEmpty() ? QString() : heading(textsTitle, console) % texts) %
           coverageSection(language, package, console) % requirementsSection(package, console) %
           behaviorsSection(package, shown, console) % dialogsSection(package, language, console) %
           servicesSection(package, console);
}

} // namespace ZelPackage
