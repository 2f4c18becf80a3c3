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
    std::vector<Override> overrides = {}; ///< the last match wins

    /// The settings for a manifest. A relative name refers to the working directory.
    RuleSettings settingsFor(const QString &file) const;
};

/// An error in a configuration file.
struct ConfigurationError {
    Tano::SourcePosition position; ///< line 0 if it concerns the whole file
    QString text;
};

/// Parses a configuration file and appends errors to `errors`.
Configuration parseConfiguration(const std::string &content, const QString &folder,
                                 std::vector<ConfigurationError> &errors);

/// Finds the configuration of a manifest: the nearest `.zel-package.toml` in its folder or above.
/// Each folder is searched once, and each file read once.
class Configurations {
public:
    using Report = std::function<void(const QString &file, const ConfigurationError &error)>;

    /// `report` receives each error; invalid settings are ignored.
    explicit Configurations(Report report)
        : m_report(std::move(report)) {}

    /// Uses this file for all manifests; returns false if it has errors.
    [[nodiscard]] bool use(const QString &file);

    /// The configuration for manifests in a folder.
    const Configuration &of(const QString &folder);

private:
    using Pointer = std::shared_ptr<const Configuration>;

    Pointer read(const QString &file, bool &isFine) const;
    Pointer find(const QString &folder);

    Report m_report;
    Pointer m_used; // null if folders are searched
    QHash<QString, Pointer> m_byFolder;
};

} // namespace ZelPackage
