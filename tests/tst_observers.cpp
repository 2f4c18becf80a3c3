#include "../fuzz/observer_world.h"
#include "../fuzz/target.h"

#include <QTest>

#include <random>

using namespace Zel;

namespace {

std::string firstFault;

// Counts the notifications of one object, and deletes another at one of them.
class Deleter : public QObject {
public:
    Deleter(QObject *heard, QObject *victim, int notification)
        : m_victim(victim)
        , m_notification(notification) {
        const QMetaObject &meta = *heard->metaObject();
        for (int i = QObject::staticMetaObject.methodCount(); i < meta.methodCount(); ++i) {
            if (meta.method(i).methodType() == QMetaMethod::Signal)
                QMetaObject::connect(heard, i, this, staticMetaObject.methodCount());
        }
    }

    int qt_metacall(QMetaObject::Call call, int id, void **arguments) override {
        id = QObject::qt_metacall(call, id, arguments);
        if (id < 0 || call != QMetaObject::InvokeMetaMethod)
            return id;
        if (m_count++ == m_notification)
            delete m_victim;
        return -1;
    }

    int count() const { return m_count; }

private:
    QPointer<QObject> m_victim;
    int m_notification;
    int m_count = 0;
};

struct Deletion {
    const char *name;
    bool deletesValidator;
    void (*run)(PackageInfoModel &package, PackageInfoValidator &validator);
};

const std::vector<Deletion> &deletions() {
    static const std::vector<Deletion> all{
        {"package: clear", false,
         [](PackageInfoModel &package, PackageInfoValidator &) { package.clear(); }},
        {"package: load", false,
         [](PackageInfoModel &package, PackageInfoValidator &) {
             static_cast<void>(package.loadFromManifestContent(Observers::manifests().at(1)));
         }},
        {"package: plain text", false,
         [](PackageInfoModel &package, PackageInfoValidator &) {
             package.genPlainTextFromScript();
         }},
        {"validator: activate", true,
         [](PackageInfoModel &, PackageInfoValidator &validator) { validator.activate(); }},
        {"validator: a new language", true,
         [](PackageInfoModel &package, PackageInfoValidator &validator) {
             validator.activate();
             package.addSupportedLanguage(robotLanguage(QStringLiteral("fr_FR")));
         }},
    };
    return all;
}

} // namespace

void require(bool holds, const std::string &promise) {
    if (!holds && firstFault.empty())
        firstFault = promise;
}

class TestObservers : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void deletesWithin_data() {
        QTest::addColumn<int>("row");
        for (std::size_t row = 0; row < deletions().size(); ++row)
            QTest::newRow(deletions().at(row).name) << int(row);
    }

    // A receiver of any notification may delete the emitter.
    void deletesWithin() {
        QFETCH(const int, row);
        const Deletion &deletion = deletions().at(std::size_t(row));
        int notifications = 1;
        for (int i = 0; i < notifications; ++i) {
            QPointer<PackageInfoModel> package = new PackageInfoModel(Observers::loadedRecord(0));
            QPointer<PackageInfoValidator> validator = new PackageInfoValidator(package);
            QObject *victim = validator;
            if (!deletion.deletesValidator)
                victim = package;
            Deleter deleter(victim, victim, i);
            deletion.run(*package, *validator);
            notifications = std::max(notifications, deleter.count() + 1);
            delete validator;
            delete package;
        }
        QVERIFY(notifications > 2);
    }

    void random_data() {
        QTest::addColumn<unsigned>("seed");
        const int wanted = qEnvironmentVariableIntValue("ZEL_OBSERVER_SEEDS"); // for longer runs
        for (unsigned seed = 1; seed <= unsigned(wanted > 0 ? wanted : 30); ++seed)
            QTest::addRow("seed %u", seed) << seed;
    }

    // Observers do whatever the input decides.
    void random() {
        QFETCH(const unsigned, seed);
        std::mt19937 generator(seed);
        for (int input = 0; input < 10; ++input) {
            std::array<std::uint8_t, 400> bytes{};
            for (std::uint8_t &byte : bytes)
                byte = std::uint8_t(generator());
            firstFault.clear();
            Observers::World(bytes.data(), bytes.size()).run();
            QVERIFY2(firstFault.empty(), qPrintable(QStringLiteral("input %1: %2")
                                                        .arg(QString::number(input),
                                                             QString::fromStdString(firstFault))));
        }
    }
};

QTEST_MAIN(TestObservers)
#include "tst_observers.moc"
