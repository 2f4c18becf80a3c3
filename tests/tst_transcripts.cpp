#include "golden.h"
#include "signal_log.h"
#include "text.h"
#include "warning_guard.h"

#include <packagemodel/package_info_validator.h>

#include <QDir>
#include <QRegularExpression>
#include <QTest>

#include <algorithm>
#include <memory>

using namespace Zel;

namespace {

const QDir transcripts(text(ZEL_TEST_DATA "/transcripts"));

QByteArray contentOf(const QString &name) {
    return testData(text("transcripts/") + name);
}

template<typename List>
QString printedAll(const List &list) {
    QStringList texts;
    for (const auto &each : list)
        texts.append(SignalLog::print(each));
    return texts.join(u' ');
}

template<typename Value>
QString printed(const std::vector<std::pair<Value, RobotLanguage>> &values) {
    QStringList texts;
    for (const auto &[value, language] : values)
        texts.append(language.isoCode() % u' ' % printedAll(QStringList(value)));
    return texts.join(QLatin1String(", "));
}

Tano::BehaviorInfo recordOf(const BehaviorInfoModel &child) {
    return child.toBehaviorInfo();
}
Tano::DialogInfo recordOf(const DialogInfoModel &child) {
    return child.toDialogInfo();
}
Tano::PackageService recordOf(const ServiceInfoModel &child) {
    return child.toPackageService();
}

// Whether the package's record contains the complete records of these children.
template<typename Children, typename Records>
bool areRecorded(const Children &children, const Records &records) {
    return std::equal(
        children.begin(), children.end(), records.begin(), records.end(),
        [](const auto *child, const auto &record) { return recordOf(*child) == record; });
}

// Everything that a receiver can query: the package's record and the models' caches.
QStringList seenOf(const PackageInfoModel &package) {
    const Tano::PackageInfo &record = package.packageInfo();
    QStringList seen = QString::fromUtf8(package.saveToManifestContent()).split(u'\n');
    const auto add = [&](const QString &name, const QString &value) {
        if (!value.isEmpty())
            seen.append(name % QLatin1String(": ") % value);
    };
    const auto addChildren = [&](const char *name, const auto &children, const auto &records) {
        add(text(name), printedAll(children));
        if (!areRecorded(children, records))
            add(text("to be recorded"), text(name));
    };
    add(text("version"), SignalLog::print(package.version()));
    add(text("supported"), SignalLog::print(package.supportedLanguages()));
    add(text("described"), SignalLog::print(package.descriptionLanguages()));
    add(text("names"), printed(package.names()));
    add(text("descriptions"), printed(package.descriptions()));
    add(text("robots"), printedAll(package.robotRequirements()));
    add(text("brios"), printedAll(package.brioRequirements()));
    addChildren("behaviors", package.behaviors(), record.behaviors());
    addChildren("dialogs", package.dialogs(), record.dialogs());
    addChildren("services", package.services(), record.services());

    const auto behaviors = package.behaviors();
    for (const BehaviorInfoModel *b : behaviors) {
        add(b->path() % text(" names"), printed(b->names()));
        add(b->path() % text(" descriptions"), printed(b->descriptions()));
        add(b->path() % text(" tags"), printed(b->languagesToTags()));
        add(b->path() % text(" sentences"), printed(b->languagesToTriggerSentences()));
        add(b->path() % text(" responses"), printed(b->languagesToLoadingResponses()));
    }
    const auto dialogs = package.dialogs();
    for (const DialogInfoModel *d : dialogs)
        add(d->topicName() % text(" topics"), printed(d->topics()));
    return seen;
}

// The removed and added lines, according to the longest common subsequence.
QStringList difference(const QStringList &before, const QStringList &after) {
    const int rows = int(before.size());
    const int columns = int(after.size());
    std::vector<std::vector<int>> common(std::size_t(rows + 1),
                                         std::vector<int>(std::size_t(columns + 1)));
    const auto commonFrom = [&](int i, int j) -> int & {
        return common[std::size_t(i)][std::size_t(j)];
    };
    for (int i = rows - 1; i >= 0; --i) {
        for (int j = columns - 1; j >= 0; --j)
            commonFrom(i, j) = before.at(i) == after.at(j)
                                   ? commonFrom(i + 1, j + 1) + 1
                                   : std::max(commonFrom(i + 1, j), commonFrom(i, j + 1));
    }
    QStringList result;
    for (int i = 0, j = 0; i < rows || j < columns;) {
        if (i < rows && j < columns && before.at(i) == after.at(j)) {
            ++i;
            ++j;
        } else if (i < rows && (j == columns || commonFrom(i + 1, j) >= commonFrom(i, j + 1))) {
            result.append(QLatin1String("- ") % before.at(i++));
        } else {
            result.append(QLatin1String("+ ") % after.at(j++));
        }
    }
    return result;
}

/// Two packages, and a validator of the first one, to which a file's steps are applied.
class Transcript {
public:
    /// The expected contents of a file with these steps.
    QStringList play(const QStringList &file) {
        QStringList played;
        for (const QString &line : file) {
            if (line.startsWith(u'>')) {
                played += line;
                take(line.mid(2));
                played += m_log.take();
            } else if (line.isEmpty() || line.startsWith(u'#')) {
                played += line;
            }
        }
        return played;
    }

private:
    using Value = std::shared_ptr<void>;

    void take(const QString &step) {
        const QString result = step.endsWith(u')') ? call(step) : act(step.split(u' '));
        m_log.append(changes({}));
        if (!result.isEmpty())
            m_log.append({QLatin1String("= ") % result});
    }

    // The changes that a receiver sees since the last call.
    QStringList changes(const QString &indentation) {
        if (!m_isFollowed)
            return {};
        const QStringList before = std::exchange(m_seen, seenOf(m_package));
        return difference(before, m_seen)
            .replaceInStrings(QRegularExpression(text("^")), indentation);
    }

    QObject *object(const QString &name) {
        const bool isOther = name.startsWith(QLatin1String("other"));
        PackageInfoModel &package = isOther ? m_other : m_package;
        const int index = name.section(u'[', 1).section(u']', 0, 0).toInt();
        if (name.contains(QLatin1String("behaviors[")))
            return package.behaviors().value(index);
        if (name.contains(QLatin1String("dialogs[")))
            return package.dialogs().value(index);
        if (name.contains(QLatin1String("services[")))
            return package.services().value(index);
        if (name == QLatin1String("validator"))
            return &m_validator;
        return name == QLatin1String("null") ? nullptr : &package;
    }

    QString act(const QStringList &words) {
        const QString &action = words.first();
        const QString name = words.value(1);
        if (action == QLatin1String("watch"))
            m_log.watch(*object(name), name == QLatin1String("package") ? QString() : name);
        else if (action == QLatin1String("follow"))
            follow();
        else if (action == QLatin1String("load"))
            return load(name == QLatin1String("other") ? m_other : m_package, words.last());
        else if (action == QLatin1String("assign"))
            m_package = name == QLatin1String("other") ? m_other : m_package;
        else if (action == QLatin1String("clear"))
            m_package.clear();
        else if (action == QLatin1String("sync"))
            m_package.syncRecord();
        else if (action == QLatin1String("remodel"))
            m_package.createBehaviorInfoModels();
        else if (action == QLatin1String("block"))
            object(name)->blockSignals(true);
        else if (action == QLatin1String("unblock"))
            object(name)->blockSignals(false);
        else if (action == QLatin1String("delete"))
            delete object(name);
        else if (action == QLatin1String("trim"))
            m_package.behaviors().first()->trimExtraInfo({language("en_US")}, {language("fr_FR")});
        else if (action == QLatin1String("activate"))
            m_validator.activate();
        else if (action == QLatin1String("deactivate"))
            m_validator.deactivate();
        else if (action == QLatin1String("errors"))
            return printedAll(m_validator.behaviorInErrors());
        else
            return QLatin1String("no such step");
        return {};
    }

    void follow() {
        m_isFollowed = true;
        m_seen = seenOf(m_package);
        m_log.onEverySignal([this] { return changes(text("  ")); });
    }

    static QString load(PackageInfoModel &package, const QString &name) {
        if (package.loadFromManifestContent(contentOf(name)))
            return {};
        return fromUtf8(package.packageInfo().errorString());
    }

    template<typename T>
    static Value value(T of) {
        return std::make_shared<T>(std::move(of));
    }

    static bool isChild(const QString &argument) {
        return argument.endsWith(u']') || argument == QLatin1String("null");
    }

    // The value of an argument of this type, null if it is invalid.
    Value parsed(const QByteArray &type, const QString &argument) {
        const QString inner = argument.mid(1, argument.size() - 2);
        if (argument.startsWith(u'"'))
            return type == "QString" ? value(inner) : nullptr;
        if (argument.startsWith(u'{') && type == "Tano::PackageService")
            return value(Tano::PackageService{toUtf8(inner), {}, false, {}});
        if (argument.startsWith(u'{') && type == "Tano::BehaviorInfo") {
            Tano::BehaviorInfo behavior;
            behavior.setPath(toUtf8(inner));
            return value(behavior);
        }
        if (argument.startsWith(u'{') && type == "Tano::DialogInfo") {
            Tano::DialogInfo dialog;
            dialog.setTopicName(toUtf8(inner));
            return value(dialog);
        }
        if (type == "BehaviorInfoModel*" && isChild(argument))
            return value(qobject_cast<BehaviorInfoModel *>(object(argument)));
        if (type == "DialogInfoModel*" && isChild(argument))
            return value(qobject_cast<DialogInfoModel *>(object(argument)));
        if (type == "ServiceInfoModel*" && isChild(argument))
            return value(qobject_cast<ServiceInfoModel *>(object(argument)));
        return parsedWord(type, argument);
    }

    static Value parsedWord(const QByteArray &type, const QString &word) {
        const QStringList parts = word.split(u'/');
        const auto version = [&](int i) { return SoftwareVersionUtils::fromString(parts.at(i)); };
        bool isNumber = false;
        const int number = word.toInt(&isNumber);
        if (type == "int" && isNumber)
            return value(number);
        if (type == "bool")
            return value(word == QLatin1String("true"));
        if (type == "RobotLanguage")
            return value(robotLanguage(word));
        if (type == "SoftwareVersion")
            return value(version(0));
        if (type == "RobotRequirement" && parts.size() == 5)
            return value(
                RobotRequirement{parts.at(0), version(1), version(2), version(3), version(4)});
        if (type == "BrioRequirement" && parts.size() == 2)
            return value(BrioRequirement{version(0), version(1)});
        return {};
    }

    // Calls the first slot or signal with this name that accepts these arguments.
    QString call(const QString &step) {
        const int bracket = int(step.indexOf(u'('));
        const int dot = int(step.lastIndexOf(u'.', bracket));
        QObject *target = object(step.left(std::max(dot, 0)));
        const QByteArray name = step.mid(dot + 1, bracket - dot - 1).toUtf8();
        const QString inner = step.mid(bracket + 1).chopped(1);
        const QStringList arguments = inner.isEmpty() ? QStringList() : inner.split(text(", "));
        const QMetaObject *meta = target->metaObject();
        for (int i = meta->methodOffset(); i < meta->methodCount(); ++i) {
            const QMetaMethod method = meta->method(i);
            if (method.name() != name || method.parameterCount() != arguments.size())
                continue;
            std::vector<Value> values;
            bool result = false;
            std::vector<void *> pointers{&result};
            for (const QByteArray &type : method.parameterTypes()) {
                values.push_back(parsed(type, arguments.at(int(values.size()))));
                pointers.push_back(values.back().get());
            }
            if (std::count(pointers.begin(), pointers.end(), nullptr) != 0)
                continue;
            QMetaObject::metacall(target, QMetaObject::InvokeMetaMethod, i, pointers.data());
            return method.returnType() == QMetaType::Bool ? text(result ? "true" : "false")
                                                          : QString();
        }
        return QLatin1String("no such step");
    }

    PackageInfoModel m_package;
    PackageInfoModel m_other;
    PackageInfoValidator m_validator{&m_package};
    SignalLog m_log;
    bool m_isFollowed = false;
    QStringList m_seen;
};

} // namespace

/// A transcript shows the effects of steps, and what receivers of notifications see:
///
///     > follow package
///     > watch package
///     > addBehavior("tea")
///     behaviorAdded(tea)
///       +   <behavior path="tea"/>
///       + behaviors: tea
///     = true
///
/// A step is one of those in Transcript::act(), or a call of any slot or signal. It is followed by
/// the notifications of watched objects, each with the changes to the package so far, the changes
/// after the last of them, and the result.
class TestTranscripts : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_warnings.watch(); }
    void cleanup() { QCOMPARE(m_warnings.take(), QStringList()); }

    void played_data();
    void played();

private:
    WarningGuard m_warnings;
};

void TestTranscripts::played_data() {
    QTest::addColumn<QString>("name");
    const auto names = transcripts.entryList({text("*.txt")}, QDir::Files, QDir::Name);
    for (const QString &name : names)
        QTest::newRow(qPrintable(name.chopped(4))) << name;
}

void TestTranscripts::played() {
    QFETCH(QString, name);
    const QStringList file = QString::fromUtf8(contentOf(name)).split(u'\n');
    const QStringList played = Transcript().play(file);
    COMPARE_WITH_GOLDEN(transcripts.filePath(name), played.join(u'\n').toUtf8());
}

QTEST_GUILESS_MAIN(TestTranscripts)
#include "tst_transcripts.moc"
