#pragma once

#include <QMutex>
#include <QStringList>

#include <utility>

/// Collects the warnings of a test function. A test class has a member of this type, calls watch()
/// in init(), and expects take() to be empty in cleanup().
class WarningGuard {
public:
    /// Starts collecting. Not done by the constructor, since Qt Test installs its own message
    /// handler after the test class is constructed.
    void watch() {
        if (const QtMessageHandler handler = qInstallMessageHandler(collect); handler != collect)
            s_next = handler;
    }

    /// The warnings since the last call, or an error message if they were not collected.
    QStringList take() {
        if (const QtMessageHandler handler = qInstallMessageHandler(collect); handler != collect) {
            qInstallMessageHandler(handler);
            return {QStringLiteral("Warnings are not collected: call watch() in init().")};
        }
        const QMutexLocker lock(&s_mutex);
        return std::exchange(s_warnings, {});
    }

private:
    static void collect(QtMsgType type, const QMessageLogContext &context, const QString &text) {
        if (type == QtWarningMsg || type == QtCriticalMsg) {
            const QMutexLocker lock(&s_mutex);
            s_warnings.append(text);
        }
        if (s_next)
            s_next(type, context, text);
    }

    static inline QMutex s_mutex;
    static inline QStringList s_warnings;
    static inline QtMessageHandler s_next = nullptr;
};
