#include "configuration.h"

#include "arguments/native_text.h"
#include "arguments/suggestion.h"
#include "file_place.h"
#include "manifest/manifest_source.h"
#include "path_pattern.h"
#include "report_rules.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <filesystem>
#include <system_error>

#define TOML_EXCEPTIONS 0
#include <toml++/toml.h>

namespace ZelPackage {
namespace {

using Zel::PackageModel::Severity;

const QLatin1String fileName(".zel-package.toml");

QString textOf(std::string_view text) {
    return QString::fromUtf8(text.data(), int(text.size()));
}

Tano::SourcePosition positionOf(const toml::source_region &region) {
    return {region.begin.line, region.begin.column};
}

QString quoted(const QStringList &words) {
    return u'"' % words.join(QStringLiteral("\", \"")) % u'"';
}

// Reads the tables of a configuration file.
class ConfigurationReader {
public:
    ConfigurationReader(Configuration &configuration, std::vector<ConfigurationError> &errors)
        : m_configuration(configuration)
        , m_errors(errors)
        , m_rules(changeableRuleIds()) {}

    void read(const toml::table &root) {
        forEachKey(root,
                   {QStringLiteral("fail-on"), QStringLiteral("rules"), QStringLiteral("override")},
                   [&](const QString &key, const toml::node &value) {
                       if (key == QLatin1String("fail-on"))
                           m_configuration.failOn = severityIn(key, value, severityWords());
                       else if (key == QLatin1String("rules"))
                           m_configuration.rules = rulesIn(key, value);
                       else
                           readOverrides(key, value);
                   });
    }

private:
    template<typename Read>
    void forEachKey(const toml::table &table, const QStringList &known, Read read) {
        for (const auto &[key, value] : table) {
            const QString name = textOf(key.str());
            if (known.contains(name))
                read(name, value);
            else
                add(key.source(),
                    QCoreApplication::translate("zel-package", "Unknown setting '%1'%2")
                        .arg(name, suggestion(name, known,
                                              QCoreApplication::translate("zel-package",
                                                                          "; it is one of %1.")
                                                  .arg(quoted(known)))));
        }
    }

    void readOverrides(const QString &key, const toml::node &value) {
        const toml::array *list = value.as_array();
        if (!list || !list->is_homogeneous(toml::node_type::table)) {
            add(value.source(),
                QCoreApplication::translate("zel-package", "'%1' must be a list of tables, [[%1]].")
                    .arg(key));
            return;
        }
        for (const toml::node &entry : *list)
            readOverride(*entry.as_table());
    }

    void readOverride(const toml::table &table) {
        Configuration::Override made;
        forEachKey(table, {QStringLiteral("path"), QStringLiteral("rules")},
                   [&](const QString &key, const toml::node &value) {
                       if (key == QLatin1String("rules"))
                           made.rules = rulesIn(key, value);
                       else if (const auto path = value.value<std::string_view>())
                           made.pattern = QDir::cleanPath(textOf(*path));
                       else
                           addWrongType(value, key);
                   });
        if (!table.contains("path"))
            add(table.source(),
                QCoreApplication::translate("zel-package", "The override has no 'path'."));
        m_configuration.overrides.push_back(made);
    }

    RuleSeverities rulesIn(const QString &key, const toml::node &value) {
        const toml::table *table = value.as_table();
        if (!table) {
            add(value.source(),
                QCoreApplication::translate("zel-package", "'%1' must be a table.").arg(key));
            return {};
        }
        RuleSeverities severities;
        for (const auto &[ruleKey, severity] : *table) {
            const QString rule = textOf(ruleKey.str());
            const std::size_t errors = m_errors.size();
            if (!m_rules.contains(rule)) {
                add(ruleKey.source(), unknownRule(rule, m_rules));
                continue;
            }
            const auto given = severityIn(rule, severity, severityWords() << QStringLiteral("off"));
            if (m_errors.size() == errors)
                severities[rule] = given;
        }
        return severities;
    }

    // nullopt for "off" and for invalid severities.
    std::optional<Severity> severityIn(const QString &key, const toml::node &value,
                                       const QStringList &words) {
        const auto given = value.value<std::string_view>();
        if (!given) {
            addWrongType(value, key);
            return {};
        }
        const QString word = textOf(*given);
        if (!words.contains(word))
            add(value.source(),
                QCoreApplication::translate("zel-package", "'%1' cannot be \"%2\"%3")
                    .arg(key, word,
                         suggestion(word, words,
                                    QCoreApplication::translate("zel-package", "; it is one of %1.")
                                        .arg(quoted(words)))));
        return severityOf(word);
    }

    void addWrongType(const toml::node &value, const QString &key) {
        add(value.source(),
            QCoreApplication::translate("zel-package", "'%1' must be a string in quotes.")
                .arg(key));
    }

    void add(const toml::source_region &region, const QString &text) {
        m_errors.push_back({positionOf(region), text});
    }

    Configuration &m_configuration;
    std::vector<ConfigurationError> &m_errors;
    QStringList m_rules;
};

} // namespace

RuleSettings Configuration::settingsFor(const QString &file) const {
    RuleSettings settings{rules, failOn.value_or(Severity::Error)};
    if (overrides.empty())
        return settings;
    const QString path = pathFrom(folder, file);
    for (const Override &each : overrides) {
        if (matchesPath(each.pattern, path))
            settings.add(each.rules);
    }
    return settings;
}

Configuration parseConfiguration(const std::string &content, const QString &folder,
                                 std::vector<ConfigurationError> &errors) {
    Configuration configuration{folder};
    const std::size_t before = errors.size();
    const toml::parse_result result = toml::parse(content);
    if (!result)
        errors.push_back(
            {positionOf(result.error().source()),
             QCoreApplication::translate("zel-package", "The configuration is not valid TOML: %1.")
                 .arg(textOf(result.error().description()))});
    else
        ConfigurationReader(configuration, errors).read(result.table());
    std::stable_sort(errors.begin() + std::ptrdiff_t(before), errors.end(),
                     [](const ConfigurationError &a, const ConfigurationError &b) {
                         return std::pair(a.position.line, a.position.column) <
                                std::pair(b.position.line, b.position.column);
                     });
    return configuration;
}

bool Configurations::use(const QString &file) {
    bool isFine = true;
    m_used = read(file, isFine);
    return isFine;
}

const Configuration &Configurations::of(const QString &folder) {
    return m_used ? *m_used : *find(QDir::cleanPath(QDir::current().filePath(folder)));
}

Configurations::Pointer Configurations::read(const QString &file, bool &isFine) const {
    const QString folder = QFileInfo(file).absolutePath();
    std::vector<ConfigurationError> errors;
    QString reason;
    Configuration configuration{folder};
    if (const auto content = readContent(file, reason))
        configuration = parseConfiguration(*content, folder, errors);
    else
        errors.push_back({{}, reason});
    for (const ConfigurationError &error : errors)
        m_report(file, error);
    isFine = errors.empty();
    return std::make_shared<const Configuration>(std::move(configuration));
}

Configurations::Pointer Configurations::find(const QString &folder) {
    if (const Pointer known = m_byFolder.value(folder))
        return known;
    const QString file = QDir(folder).filePath(fileName);
    const QString parent = QFileInfo(folder).path();
    bool isFine = true;
    Pointer found;
    std::error_code ignored;
    if (std::filesystem::exists(nativeBytes(file), ignored))
        found = read(pathBelowHere(file), isFine);
    else if (parent != folder)
        found = find(parent);
    else
        found = std::make_shared<const Configuration>();
    m_byFolder.insert(folder, found);
    return found;
}

} // namespace ZelPackage
