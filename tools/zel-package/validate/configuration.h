#pragma once

#include "rule_settings.h"

#include <tano/manifest_reader.h>

#include <QHash>
#include <QString>

#include <memory>
#include <vector>

namespace ZelPackage {

/// The settings of a file `.zel-package.toml`:
///
/// ```
/// fail-on = "warning"
///
/// [rules]
/// name-missing = "error"
///
/// [[override]]
/// path = "third-party/**" # relative to the folder of the file; see matchesPath()
/// rules.description-missing = "off"
/// ```
struct Configuration {
    struct Override {
        QString pattern;
        RuleSeverities rules;
    };

    QString folder; ///< absolute
    std::optional<Zel::PackageModel::Severity> failOn = {};
    RuleSeverities rules = {};
    std::vector<Override> overrides = {}; ///< the last one that matches counts

    /// The settings for a manifest; a name without a folder is taken from the working directory.
    RuleSettings settingsFor(const QString &file) const;
};

/// Something that is wrong in a configuration file.
struct ConfigurationError {
    Tano::SourcePosition position; ///< line 0 for the file as a whole
    QString text;
};

/// Parses the content of a configuration file, and appends what is wrong to `errors`.
Configuration parseConfiguration(const std::string &content, const QString &folder,
                                 std::vector<ConfigurationError> &errors);

/// Finds the configurations of manifests: the nearest file `.zel-package.toml` in the folder of the
/// manifest or above it. Each folder is searched, and each file read, once.
class Configurations {
public:
    using Report = std::function<void(const QString &file, const ConfigurationError &error)>;

    /// `report` gets each error; what is wrong in a file has no effect.
    explicit Configurations(Report report)
        : m_report(std::move(report)) {}

    /// Takes this file for all manifests; returns false if it has errors.
    [[nodiscard]] bool use(const QString &file);

    /// The configuration for manifests in a folder.
    const Configuration &of(const QString &folder);

private:
    using Pointer = std::shared_ptr<const Configuration>;

    Pointer read(const QString &file, bool &isFine) const;
    Pointer find(const QString &folder);

    Report m_report;
    Pointer m_used; // null to search
    QHash<QString, Pointer> m_byFolder;
};

} // namespace ZelPackage
