#include "package_rules.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <cstring>

namespace Zel::PackageModel {
namespace {

constexpr const char *explanationContext = "Zel::PackageModel";

// The only entity in messages. The values of a message that has it are versions, which cannot
// contain it.
constexpr const char *lessThan = "&lt;";

// clang-format off
const std::array table{
    RuleRow{"uid-invalid", Severity::Error,
     QT_TRANSLATE_NOOP("QObject", "Application UID is not defined correctly."),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "The UID names the package on the robot and in every list of packages. It has 1 to 50 characters, each a lower-case letter from a to z, a digit, an underscore or a hyphen, and at least one of them is not a digit."),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "Write a UID such as my-app_2.")},
    RuleRow{"robot-requirements-missing", Severity::Error,
     QT_TRANSLATE_NOOP("QObject", "Robot requirements are not defined."),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "A package says on which robots it runs, so that it is offered only to those. Without a robot requirement it is offered to none."),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "Add a robot requirement with a robot model or family.")},
    RuleRow{"robot-model-missing", Severity::Error,
     QT_TRANSLATE_NOOP("QObject", "A robot requirement has no model defined."),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "A robot requirement whose model is empty does not say which robot is meant, and its version ranges mean nothing."),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "Choose a robot model or family for the requirement, or remove it.")},
    RuleRow{"robot-body-range-reversed", Severity::Error,
     QT_TRANSLATE_NOOP("QObject", "'%1' robot requirement has a wrong body version max value."),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "The highest accepted body version is less than the lowest, so that no robot can meet the requirement."),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "Raise or clear the maximum, or lower the minimum. An empty maximum means that there is no upper bound.")},
    RuleRow{"robot-head-range-reversed", Severity::Error,
     QT_TRANSLATE_NOOP("QObject", "'%1' robot requirement has a wrong head version max value."),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "The highest accepted head version is less than the lowest, so that no robot can meet the requirement."),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "Raise or clear the maximum, or lower the minimum. An empty maximum means that there is no upper bound.")},
    RuleRow{"brio-requirement-missing", Severity::Error,
     QT_TRANSLATE_NOOP("QObject", "Brio version requirement is not defined."),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "A package says which versions of the Brio middleware it runs on, so that it is not installed where it cannot start."),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "Add a Brio requirement with the lowest version that the package was tried on.")},
    RuleRow{"brio-minimum-missing", Severity::Error,
     QT_TRANSLATE_NOOP("QObject", "Brio version requirement is not valid: minimal version is not defined."),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "A Brio requirement has a lowest version; only the highest may be left open. Requirements after the first one without a minimum are not checked."),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "Set the minimal version of the requirement.")},
    RuleRow{"brio-range-reversed", Severity::Error,
     QT_TRANSLATE_NOOP("QObject", "Brio version requirement is not valid: %1 &lt; %2"),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "The maximal Brio version is less than the minimal one, so that no robot can meet the requirement."),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "Raise or clear the maximum, or lower the minimum. An empty maximum means that there is no upper bound.")},
    RuleRow{"name-missing-default", Severity::Warning,
     QT_TRANSLATE_NOOP("QObject", "Application name is not defined for: %1"),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "The package supports the default language and has no name in it. That name also stands in for those that are missing in other languages; without it, users see the UID."),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "Write a name in the default language.")},
    RuleRow{"name-missing", Severity::Warning,
     QT_TRANSLATE_NOOP("QObject", "Application name is not defined for: %1"),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "The package supports a language and has no name in it. Users of that language see the name in the default language, or the UID."),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "Write a name in the language, or stop supporting it.")},
    RuleRow{"description-missing", Severity::Warning,
     QT_TRANSLATE_NOOP("QObject", "Application description is not defined for: %1"),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "The package supports a language and has no description in it. Users of that language see the description in the default language, or none."),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "Write a description in the language, or stop supporting it.")},
    RuleRow{"trigger-sentences-missing", Severity::Error,
     QT_TRANSLATE_NOOP("QObject", "Behavior '%1' has no trigger sentence defined for: %2"),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "A behavior that can be started by a sentence in one language can be started so in every language that the package supports; otherwise it is out of reach for some users."),
     QT_TRANSLATE_NOOP("Zel::PackageModel", "Write at least one trigger sentence in the language, or remove those in all languages.")},
};
// clang-format on

static_assert(table.size() == std::size_t(RuleId::TriggerSentencesMissing) + 1);

} // namespace

const RuleRow &ruleRow(RuleId rule) {
    return table.at(std::size_t(rule));
}

QString ruleMessage(RuleId rule) {
    return QCoreApplication::translate("QObject", ruleRow(rule).message);
}

QVector<Rule> rules() {
    QVector<Rule> rules;
    for (const RuleRow &row : table) {
        rules.append({QLatin1String(row.id), row.severity,
                      QCoreApplication::translate("QObject", row.message),
                      QCoreApplication::translate(explanationContext, row.explanation),
                      QCoreApplication::translate(explanationContext, row.remedy)});
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
