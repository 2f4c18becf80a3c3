#pragma once

#include <packagemodel/package_info_model.h>

#include <QMetaMethod>
#include <QStringList>

#include <functional>
#include <map>
#include <utility>
#include <vector>

/// Logs every notification of the watched objects in delivery order, one line each:
/// `nameUpdated("Tea", fr_FR)`, or `dialog.topicRemoved(fr_FR)` for an object with a label.
class SignalLog : public QObject {
public:
    SignalLog() = default;
    explicit SignalLog(QObject &object) { watch(object); }

    /// Watches the signals declared by the object's own class.
    void watch(QObject &object, const QString &label = {}) {
        const QMetaObject *meta = object.metaObject();
        for (int i = meta->methodOffset(); i < meta->methodCount(); ++i) {
            const QMetaMethod method = meta->method(i);
            if (method.methodType() != QMetaMethod::Signal)
                continue;
            const int slot = QObject::staticMetaObject.methodCount() + int(m_sources.size());
            m_sources.push_back({method, label.isEmpty() ? label : QString(label % u'.')});
            QMetaObject::connect(&object, i, this, slot, Qt::DirectConnection);
        }
    }

    /// Calls `look` on every notification, and logs the lines that it returns after it.
    void onEverySignal(std::function<QStringList()> look) { m_look = std::move(look); }

    /// Adds other lines.
    void append(const QStringList &lines) { m_lines += lines; }

    /// The lines since the last call.
    QStringList take() { return std::exchange(m_lines, {}); }

    int qt_metacall(QMetaObject::Call call, int id, void **arguments) override {
        const int index = QObject::qt_metacall(call, id, arguments);
        if (index < 0 || call != QMetaObject::InvokeMetaMethod)
            return index;
        record(m_sources.at(size_t(index)), arguments + 1);
        return -1;
    }

    static QString print(const QString &text) { return u'"' % text % u'"'; }
    static QString print(const Zel::SoftwareVersion &version) {
        return Zel::SoftwareVersionUtils::toString(version);
    }
    static QString print(const Zel::RobotLanguage &language) { return language.isoCode(); }
    static QString print(const Zel::RobotLanguages &languages) {
        QStringList codes;
        for (const auto &language : languages)
            codes.append(language.isoCode());
        return u'[' % codes.join(QLatin1String(", ")) % u']';
    }
    static QString print(const Zel::RobotRequirement &r) {
        return r.model % u'/' % print(r.minHeadVersion) % u'/' % print(r.maxHeadVersion) % u'/' %
               print(r.minBodyVersion) % u'/' % print(r.maxBodyVersion);
    }
    static QString print(const Zel::BrioRequirement &r) {
        return print(r.minVersion) % u'/' % print(r.maxVersion);
    }
    static QString print(const Zel::BehaviorInfoModel *behavior) { return behavior->path(); }
    static QString print(const Zel::DialogInfoModel *dialog) { return dialog->topicName(); }
    static QString print(const Zel::ServiceInfoModel *service) { return service->name(); }

private:
    struct Source {
        QMetaMethod method;
        QString prefix;
    };

    template<typename Value>
    static QString printed(const void *value) {
        return print(*static_cast<const Value *>(value));
    }

    static QString printedArgument(const QByteArray &type, const void *value) {
        using Printer = QString (*)(const void *);
        static const std::map<QByteArray, Printer> printers{
            {"QString", printed<QString>},
            {"SoftwareVersion", printed<Zel::SoftwareVersion>},
            {"RobotLanguage", printed<Zel::RobotLanguage>},
            {"RobotLanguages", printed<Zel::RobotLanguages>},
            {"RobotRequirement", printed<Zel::RobotRequirement>},
            {"BrioRequirement", printed<Zel::BrioRequirement>},
            {"BehaviorInfoModel*", printed<Zel::BehaviorInfoModel *>},
            {"const BehaviorInfoModel*", printed<const Zel::BehaviorInfoModel *>},
            {"DialogInfoModel*", printed<Zel::DialogInfoModel *>},
            {"ServiceInfoModel*", printed<Zel::ServiceInfoModel *>},
            {"bool",
             [](const void *v) {
                 return QString(QLatin1String(*static_cast<const bool *>(v) ? "true" : "false"));
             }},
            {"int", [](const void *v) { return QString::number(*static_cast<const int *>(v)); }},
            {"QIcon", [](const void *) { return QStringLiteral("icon"); }},
        };
        const auto printer = printers.find(type);
        return printer == printers.end() ? QString(u'?' % QString::fromLatin1(type))
                                         : printer->second(value);
    }

    void record(const Source &source, void **arguments) {
        QStringList printedArguments;
        for (const QByteArray &type : source.method.parameterTypes())
            printedArguments.append(printedArgument(type, *arguments++));
        const QByteArray name = source.method.name();
        m_lines.append(source.prefix % QString::fromLatin1(name) % u'(' %
                       printedArguments.join(QLatin1String(", ")) % u')');
        if (m_look)
            m_lines += m_look();
    }

    std::vector<Source> m_sources;
    std::function<QStringList()> m_look;
    QStringList m_lines;
};

/// The lines of a raw string, trimmed, without the empty ones.
inline QStringList lines(const char *text) {
    QStringList result;
    const QStringList parts = QString::fromUtf8(text).split(u'\n');
    for (const QString &line : parts) {
        if (!line.trimmed().isEmpty())
            result.append(line.trimmed());
    }
    return result;
}
