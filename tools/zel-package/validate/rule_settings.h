#pragma once

#include <packagemodel/package_issues.h>

#include <QHash>
#include <QString>

#include <optional>

namespace ZelPackage {

/// The configured severities by rule id; nullopt if a rule is off.
using RuleSeverities = QHash<QString, std::optional<Zel::PackageModel::Severity>>;

/// How to treat the findings of one manifest.
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

    /// Overrides the severities by those of `others`.
    void add(const RuleSeverities &others) {
        for (auto it = others.constBegin(); it != others.constEnd(); ++it)
            severities[it.key()] = it.value();
    }
};

} // namespace ZelPackage
