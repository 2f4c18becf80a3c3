#include "../fuzz/observer_world.h"
#include "../fuzz/target.h"

#include <QTest>

#include <random>

using namespace Zel;

namespace {

std::string firstFault;

} // namespace

void require(bool holds, const std::string &promise) {
    if (!holds && firstFault.empty())
        firstFault = promise;
}

class TestObservers : public QObject {
    Q_OBJECT

private Q_SLOTS:
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
