#include "warning_guard.h"

#include <QTest>

class TestWarningGuard : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void complainsIfNotWatching();
    void collectsWhatQtTestAlsoReceives();

private:
    WarningGuard m_warnings;
};

void TestWarningGuard::complainsIfNotWatching() {
    QCOMPARE(m_warnings.take().size(), 1);
}

void TestWarningGuard::collectsWhatQtTestAlsoReceives() {
    for (int times = 0; times < 2; ++times)
        m_warnings.watch();
    QTest::ignoreMessage(QtWarningMsg, "one");
    QTest::ignoreMessage(QtCriticalMsg, "two");
    QTest::ignoreMessage(QtInfoMsg, "three");
    qWarning("one");
    qCritical("two");
    qInfo("three");
    QCOMPARE(m_warnings.take(), QStringList({QStringLiteral("one"), QStringLiteral("two")}));
    QCOMPARE(m_warnings.take(), QStringList());
}

QTEST_GUILESS_MAIN(TestWarningGuard)
#include "tst_warning_guard.moc"
