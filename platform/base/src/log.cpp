#include "tano/log.h"

#include <QDebug>
#include <QLoggingCategory>

#include <array>
#include <map>
#include <mutex>
#include <optional>
#include <shared_mutex>
#include <string>

namespace Tano::log {
namespace {

/// One QLoggingCategory per name. Never destroyed, so that destructors of static objects can still
/// log.
class Categories {
public:
    static Categories &instance() {
        static auto *const categories = new Categories;
        return *categories;
    }

    const QLoggingCategory &category(const char *name) {
        {
            const std::shared_lock lock(m_mutex);
            if (const auto it = m_categories.find(name); it != m_categories.end())
                return *it->second;
        }
        const std::unique_lock lock(m_mutex);
        const auto it = m_categories.try_emplace(name).first;
        // QLoggingCategory keeps the pointer, so it gets the one to the copied name.
        if (!it->second)
            it->second.emplace(it->first.c_str(), QtInfoMsg);
        return *it->second;
    }

private:
    std::shared_mutex m_mutex;
    std::map<std::string, std::optional<QLoggingCategory>, std::less<>> m_categories;
};

struct Severity {
    QtMsgType type;
    QDebug (QMessageLogger::*stream)(const QLoggingCategory &category) const;
};

// In the order of Level. Qt's own fatal messages abort the program, which ours must not.
constexpr std::array<Severity, 6> severities = {{
    {QtCriticalMsg, &QMessageLogger::critical},
    {QtCriticalMsg, &QMessageLogger::critical},
    {QtWarningMsg, &QMessageLogger::warning},
    {QtInfoMsg, &QMessageLogger::info},
    {QtDebugMsg, &QMessageLogger::debug},
    {QtDebugMsg, &QMessageLogger::debug},
}};

/// Null for Silent and for invalid levels.
const Severity *severityOf(Level level) {
    const int index = static_cast<int>(level) - static_cast<int>(Level::Fatal);
    const bool exists = index >= 0 && index < static_cast<int>(severities.size());
    return exists ? &severities.at(static_cast<std::size_t>(index)) : nullptr;
}

} // namespace

bool isEnabled(const char *category, Level level) {
    const Severity *severity = severityOf(level);
    return severity && Categories::instance().category(category).isEnabled(severity->type);
}

void write(const char *category, Level level, const char *operation, const QString &message) {
    const Severity *severity = severityOf(level);
    if (!severity)
        return;
    const QLoggingCategory &target = Categories::instance().category(category);
    if (!target.isEnabled(severity->type))
        return;
    const QMessageLogger logger(nullptr, 0, operation, target.categoryName());
    const QString line = QString::fromUtf8(operation) % QLatin1String(": ") % message;
    (logger.*severity->stream)(target).noquote().nospace() << line;
}

} // namespace Tano::log
