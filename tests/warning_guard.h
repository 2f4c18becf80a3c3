#pragma once

#include <QMutex>
#include <QStringList>

#include <utility>

/// Collects the warnings that Qt writes while it lives, so that a test can say that there were
/// none.
class WarningGuard {
public:
    WarningGuard() { s_previous = qInstallMessageHandler(collect); }
    ~WarningGuard() { qInstallMessageHandler(s_previous); }
    WarningGuard(const WarningGuard &) = delete;
    WarningGuard &operator=(const WarningGuard &) = delete;

    /// The warnings since the last call.
    QStringList take() {
        const QMutexLocker lock(&s_mutex);
        return std::exchange(s_warnings, {});
    }

private:
    static void collect(QtMsgType type, const QMessageLogContext &context, const QString &text) {
        if (type == QtWarningMsg || type == QtCriticalMsg) {
            const QMutexLocker lock(&s_mutex);
            s_warnings.append(text);
        }
        if (s_previous)
            s_previous(type, context, text);
    }

    static inline QMutex s_mutex;
    static inline QStringList s_warnings;
    static inline QtMessageHandler s_previous = nullptr;
};
