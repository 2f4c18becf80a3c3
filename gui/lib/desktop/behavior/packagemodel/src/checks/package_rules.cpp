#include "package_rules.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <cstring>

namespace Zel::PackageModel {
namespace {

constexpr const char *explanationContext = "Zel::PackageModel";

// The only entity in messages. A message that contains it has only versions as values, which cannot
// contain it.
constexpr const char *lessThan = "&lt;";

// clang-format off
const std::array table{
    RuleRow{"uid-invalid", Severity::Error,
     QT_TRANSLATE_NOOP("QObject", "Application UID is not defined correctly."),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "The UID identifies the package on the robot and in lists of packages. It has 1 to 50 characters: lower-case letters from a to z, digits, underscores and hyphens, but not only digits."),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "Write a UID such as my-app_2."),
     "<package format=\"1\" uid=\"My App\"\n         version=\"1.0.0\">"},
    RuleRow{"robot-requirements-missing", Severity::Error,
     QT_TRANSLATE_NOOP("QObject", "Robot requirements are not defined."),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "A package is only offered to robots that meet one of its robot requirements. Without a robot requirement, it is offered to none."),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "Add a robot requirement with a robot model or family."),
     "<!-- no <robotRequirement> -->"},
    RuleRow{"robot-model-missing", Severity::Error,
     QT_TRANSLATE_NOOP("QObject", "A robot requirement has no model defined."),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "A robot requirement without a model does not specify a robot, so its version ranges have no effect."),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "Choose a robot model or family for the requirement, or remove it."),
     "<robotRequirement model=\"\" minBodyVersion=\"2.0\"/>"},
    RuleRow{"robot-body-range-reversed", Severity::Error,
     QT_TRANSLATE_NOOP("QObject", "'%1' robot requirement has a wrong body version max value."),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "The maximum body version is lower than the minimum, so no robot can meet the requirement."),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "Raise or clear the maximum, or lower the minimum. An empty maximum means no upper bound."),
     "<robotRequirement model=\"TERN\" minBodyVersion=\"2.1\" maxBodyVersion=\"2.0\"/>"},
    RuleRow{"robot-head-range-reversed", Severity::Error,
     QT_TRANSLATE_NOOP("QObject", "'%1' robot requirement has a wrong head version max value."),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "The maximum head version is lower than the minimum, so no robot can meet the requirement."),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "Raise or clear the maximum, or lower the minimum. An empty maximum means no upper bound."),
     "<robotRequirement model=\"TERN\" minHeadVersion=\"2.1\" maxHeadVersion=\"2.0\"/>"},
    RuleRow{"brio-requirement-missing", Severity::Error,
     QT_TRANSLATE_NOOP("QObject", "Brio version requirement is not defined."),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "A package declares the versions of the Brio middleware that it runs on, so that it is not installed where it cannot start."),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "Add a Brio requirement with the lowest version that the package was tested with."),
     "<!-- no <brioRequirement> -->"},
    RuleRow{"brio-minimum-missing", Severity::Error,
     QT_TRANSLATE_NOOP("QObject", "Brio version requirement is not valid: minimal version is not defined."),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "A Brio requirement needs a minimum version; only the maximum is optional. Requirements after the first one without a minimum are not checked."),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "Set the minimum version of the requirement."),
     "<brioRequirement maxVersion=\"3.0\"/>"},
    RuleRow{"brio-range-reversed", Severity::Error,
     QT_TRANSLATE_NOOP("QObject", "Brio version requirement is not valid: %1 &lt; %2"),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "The maximum Brio version is lower than the minimum, so no robot can meet the requirement."),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "Raise or clear the maximum, or lower the minimum. An empty maximum means no upper bound."),
     "<brioRequirement minVersion=\"2.5\" maxVersion=\"2.4\"/>"},
    RuleRow{"name-missing-default", Severity::Warning,
     QT_TRANSLATE_NOOP("QObject", "Application name is not defined for: %1"),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "The package supports the default language but has no name in it. This name also replaces missing ones in other languages; without it, users see the UID."),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "Add a name in the default language."),
     "<supportedLanguage code=\"en_US\"/>"},
    RuleRow{"name-missing", Severity::Warning,
     QT_TRANSLATE_NOOP("QObject", "Application name is not defined for: %1"),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "The package supports a language but has no name in it. Users of this language see the name in the default language, or the UID."),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "Add a name in this language, or stop supporting it."),
     "<supportedLanguage code=\"fr_FR\"/>"},
    RuleRow{"description-missing", Severity::Warning,
     QT_TRANSLATE_NOOP("QObject", "Application description is not defined for: %1"),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "The package supports a language but has no description in it. Users of this language see the description in the default language, or none."),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "Add a description in this language, or stop supporting it."),
     "<supportedLanguage code=\"fr_FR\"/>\n<texts language=\"fr_FR\">\n  <name>Ronde</name>\n</texts>"},
    RuleRow{"trigger-sentences-missing", Severity::Error,
     QT_TRANSLATE_NOOP("QObject", "Behavior '%1' has no trigger sentence defined for: %2"),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "A behavior with trigger sentences in one language needs them in every supported language; otherwise some users cannot start it by voice."),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "Add at least one trigger sentence in this language, or remove those in all languages."),
     "<supportedLanguage code=\"en_US\"/>\n<supportedLanguage code=\"fr_FR\"/>\n<behavior path=\"greet\">\n  <texts language=\"en_US\">\n    <triggerSentence>hello</triggerSentence>\n  </texts>\n</behavior>"},
    RuleRow{"script-malformed", Severity::Error,
     QT_TRANSLATE_NOOP("Zel::PackageModel", "Malformed speech script (line %1, column %2): %3"),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "A text with markup is a speech script. A malformed script cannot be converted to plain text, so 'zel-package publish' refuses the package."),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "Correct the markup, or write &lt; for a < that does not start a tag."),
     "<texts language=\"en_US\">\n  <name>Tea&lt;break&gt;time</name>\n</texts>"},
    RuleRow{"behavior-path-duplicate", Severity::Error,
     QT_TRANSLATE_NOOP("Zel::PackageModel", "Another behavior also has the path '%1'."),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "A behavior is started by its path; if several have the same path, only the first is found."),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "Give each behavior a unique path, or remove one of them."),
     "<behavior path=\"greet\"/>\n<behavior path=\"greet\"/>"},
    RuleRow{"topic-name-duplicate", Severity::Error,
     QT_TRANSLATE_NOOP("Zel::PackageModel", "Another dialog also has the topic name '%1'."),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "A dialog is identified by its topic name; if several have the same name, only the first is found."),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "Give each dialog a unique topic name, or remove one of them."),
     "<dialog topicName=\"tea\"/>\n<dialog topicName=\"tea\"/>"},
    RuleRow{"service-name-duplicate", Severity::Error,
     QT_TRANSLATE_NOOP("Zel::PackageModel", "Another service also has the name '%1'."),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "A service is identified by its name; if several have the same name, only the first is found."),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "Give each service a unique name, or remove one of them."),
     "<service name=\"clock\"/>\n<service name=\"clock\"/>"},
    RuleRow{"permission-duplicate", Severity::Warning,
     QT_TRANSLATE_NOOP("Zel::PackageModel", "The permission '%1' is listed twice."),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "Listing a permission again has no effect."),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "Remove the duplicate."),
     "<behavior path=\"greet\">\n  <permission>camera</permission>\n  <permission>camera</permission>\n</behavior>"},
    RuleRow{"key-empty", Severity::Error,
     QT_TRANSLATE_NOOP("Zel::PackageModel", "%1 is empty."),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "Behaviors, dialogs, services, permissions and properties are identified by their names; an entry without a name cannot be used."),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "Enter a name, or remove the entry."),
     "<behavior path=\"\"/>"},
    RuleRow{"nature-unknown", Severity::Warning,
     QT_TRANSLATE_NOOP("Zel::PackageModel", "Unknown nature '%1'%2"),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "The nature defines how a behavior shares the robot with others: 'interactive', 'solitary', or empty."),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "Choose one of the two, or clear the nature."),
     "<behavior path=\"greet\" nature=\"interactiv\"/>"},
    RuleRow{"language-unknown", Severity::Warning,
     QT_TRANSLATE_NOOP("Zel::PackageModel", "Unknown language '%1'%2"),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "'zel-package languages' does not list this code, so the package will not be offered to users of the language."),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "Correct the code, which consists of a language and a country, as in fr_FR."),
     "<supportedLanguage code=\"fr-FR\"/>"},
    RuleRow{"robot-unknown", Severity::Warning,
     QT_TRANSLATE_NOOP("Zel::PackageModel", "Unknown robot '%1'%2"),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "'zel-package robots' does not list this model, so possibly no robot meets the requirement."),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "Correct the model, or install the description of the robot."),
     "<robotRequirement model=\"HERRON\"/>"},
    RuleRow{"version-invalid", Severity::Error,
     QT_TRANSLATE_NOOP("Zel::PackageModel", "'%1' is not a version."),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "A version consists of decimal numbers separated by dots. Any other value counts as no version."),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "Write a version such as 2.1."),
     "<robotRequirement model=\"TERN\" minBodyVersion=\"2,1\"/>"},
    RuleRow{"date-invalid", Severity::Warning,
     QT_TRANSLATE_NOOP("Zel::PackageModel", "'%1' is not a date."),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "Dates are in the ISO 8601 format, with the year first, so that all programs read them alike."),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "Write a date such as 2026-09-14."),
     "<date>14/09/2026</date>"},
    RuleRow{"text-unlisted", Severity::Note,
     QT_TRANSLATE_NOOP("Zel::PackageModel", "The package has a text in %1, but does not list the language."),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "The package neither supports the language nor has descriptions in it, so the text is not used, and publishing removes it."),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "Add the language to the package, or remove the text."),
     "<texts language=\"de_DE\">\n  <name>Rundgang</name>\n</texts>"},
    RuleRow{"text-blank", Severity::Warning,
     QT_TRANSLATE_NOOP("Zel::PackageModel", "The text is only white space."),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "Users would see an empty name, and the robot would say nothing or wait for nothing."),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "Enter a text, or remove it."),
     "<texts language=\"en_US\">\n  <name> </name>\n</texts>"},
    RuleRow{"topic-file-missing", Severity::Error,
     QT_TRANSLATE_NOOP("Zel::PackageModel", "There is no topic file '%1' beside the manifest."),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "A dialog has one topic file per language. The path is relative to the manifest's folder."),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "Correct the path, add the file, or remove the topic."),
     "<dialog topicName=\"tea\">\n  <topic language=\"en_US\">missing.top</topic>\n</dialog>"},
    RuleRow{"icon-invalid", Severity::Warning,
     QT_TRANSLATE_NOOP("Zel::PackageModel", "The file icon.png beside the manifest is not a PNG image."),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "The icon of a package is the PNG image icon.png beside its manifest. Without it, users see the default icon."),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "Save the icon as PNG."),
     nullptr},
    RuleRow{"supported-language-missing", Severity::Error,
     QT_TRANSLATE_NOOP("Zel::PackageModel", "No supported language is defined."),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "A package is offered to users of the languages that it supports; this one is offered to nobody."),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "Add the languages that the package supports."),
     "<!-- no <supportedLanguage> -->"},
    RuleRow{"element-unknown", Severity::Warning,
     QT_TRANSLATE_NOOP("Zel::PackageModel", "Unknown element <%1>%2"),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "The format has no such element here. It is preserved but ignored."),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "Correct the name. Extensions by other tools should use their own namespace."),
     "<autor>Ines Moreau</autor>"},
    RuleRow{"attribute-unknown", Severity::Warning,
     QT_TRANSLATE_NOOP("Zel::PackageModel", "Unknown attribute '%1' of <%3>%2"),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "The format has no such attribute here. It is preserved but ignored."),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "Correct the name. Extensions by other tools should use their own namespace."),
     "<robotRequirement model=\"TERN\" minbodyVersion=\"2.1\"/>"},
    RuleRow{"merge-conflict", Severity::Error,
     QT_TRANSLATE_NOOP("Zel::PackageModel", "Unresolved merge conflict."),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "Both sides of a merge changed the field. The manifest contains one of the values, and a comment before it shows both."),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "Choose a value, then remove the comment."),
     "<!-- zel-package: conflict in author: ours \"Ines\", theirs \"Ana\" -->\n<author>Ines</author>"},
};
// clang-format on

static_assert(table.size() == std::size_t(RuleId::MergeConflict) + 1);

} // namespace

const RuleRow &ruleRow(RuleId rule) {
    return table.at(std::size_t(rule));
}

QString ruleMessage(RuleId rule) {
    return QCoreApplication::translate(hasMessage(rule) ? "QObject" : explanationContext,
                                       ruleRow(rule).message);
}

QVector<Rule> rules() {
    QVector<Rule> rules;
    for (std::size_t i = 0; i < table.size(); ++i) {
        const RuleRow &row = table[i];
        rules.append({QLatin1String(row.id), row.severity, ruleMessage(static_cast<RuleId>(i)),
                      QCoreApplication::translate(explanationContext, row.explanation),
                      QCoreApplication::translate(explanationContext, row.remedy),
                      QString::fromUtf8(row.example)});
    }
    return rules;
}

QString Issue::plainText() const {
    const auto row = std::find_if(table.begin(), table.end(), [this](const RuleRow &row) {
        return id == QLatin1String(row.id);
    });
    const bool isEscaped = row != table.end() && std::strstr(row->message, lessThan);
    return isEscaped ? QString(text).replace(QLatin1String(lessThan), QLatin1String("<")) : text;
}

QString Issue::richText() const {
    return plainText().toHtmlEscaped();
}

} // namespace Zel::PackageModel
