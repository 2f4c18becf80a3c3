#pragma once

#include <QMutex>
#include <QStringList>

#include <utility>

/// Collects the warnings that a test function writes. A test class has one as a member, calls
/// watch() in init(), and expects take() to be empty in cleanup().
class WarningGuard {
public:
    /// Starts to collect. Qt Test installs its own message handler after the test class has been
    /// constructed, so that this is no task for the constructor.
    void watch() {
        if (const QtMessageHandler handler = qInstallMessageHandler(collect); handler != collect)
            s_next = handler;
    }

    /// The warnings since the last call, or a complaint if they are not collected.
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
