#include "signal_log.h"
#include "text.h"
#include "warning_guard.h"

#include <QTest>

using namespace Zel;

class TestDialogServiceModels : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_warnings.watch(); }
    void cleanup() { QCOMPARE(m_warnings.take(), QStringList()); }

    void receiversOfTopicRemoved();
    void parentsOfCopies();
    void serviceAssignment();

private:
    WarningGuard m_warnings;
    const RobotLanguage m_english = language("en_US");
    const RobotLanguage m_french = language("fr_FR");
};

void TestDialogServiceModels::receiversOfTopicRemoved() {
    DialogInfoModel model{Tano::DialogInfo()};
    model.setTopic(m_french, text("f.top"));
    connect(&model, &DialogInfoModel::topicRemoved, &model,
            [&](const RobotLanguage &lang) { model.setTopic(lang, text("again.top")); });
    QVERIFY(model.removeTopic(m_french));
    QCOMPARE(model.topic(m_french), text("again.top"));
    QCOMPARE(model.toDialogInfo().topic("fr_FR"), std::string("again.top"));

    auto *doomed = new DialogInfoModel(model.toDialogInfo());
    connect(doomed, &DialogInfoModel::topicRemoved, this, [doomed] { delete doomed; });
    QVERIFY(doomed->removeTopic(m_french));
}

void TestDialogServiceModels::parentsOfCopies() {
    QObject parent;
    QObject other;
    const Tano::PackageService record{"watch", "bin/watch", true, {{"restart", "always"}}};
    const ServiceInfoModel model(record, &parent);
    const DialogInfoModel dialog({}, &parent);
    QCOMPARE(DialogInfoModel(dialog).parent(), &parent);
    QCOMPARE(ServiceInfoModel(model, nullptr).parent(), &parent);
    QCOMPARE(ServiceInfoModel(model, &other).parent(), &other);
    QCOMPARE(ServiceInfoModel(model, &other).toPackageService(), record);
}

void TestDialogServiceModels::serviceAssignment() {
    QObject parent;
    const Tano::PackageService record{"watch", "bin/watch", true, {{"restart", "always"}}};
    const ServiceInfoModel source(record, &parent);
    ServiceInfoModel target{Tano::PackageService()};
    SignalLog log(target);
    target = source;
    ServiceInfoModel &self = target;
    target = self;
    QCOMPARE(log.take(), QStringList());
    QCOMPARE(target.parent(), &parent);
    QCOMPARE(target.toPackageService(), record);
}

QTEST_GUILESS_MAIN(TestDialogServiceModels)
#include "tst_dialog_service_models.moc"
