#pragma once

#include <packagemodel/package_issues.h>

#include <QHash>
#include <QString>

#include <optional>

namespace ZelPackage {

/// The severities that rules are given, by id; none for a rule that is off.
using RuleSeverities = QHash<QString, std::optional<Zel::PackageModel::Severity>>;

/// How the findings of one manifest are treated.
struct RuleSettings {
    RuleSeverities severities;
    Zel::PackageModel::Severity failOn = Zel::PackageModel::Severity::Error;

    bool isOff(const QString &rule) const {
        const auto it = severities.constFind(rule);
        return it != severities.constEnd() && !*it;
    }

    Zel::PackageModel::Severity severityOf(const QString &rule,
                                           Zel::PackageModel::Severity otherwise) const {
        return severities.value(rule).value_or(otherwise);
    }

    /// Gives the rules of `others` the severities that they have there.
    void add(const RuleSeverities &others) {
        for (auto it = others.constBegin(); it != others.constEnd(); ++it)
            severities[it.key()] = it.value();
    }
};

} // namespace ZelPackage
