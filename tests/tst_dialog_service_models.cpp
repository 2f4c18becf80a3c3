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

    void dialogStartsFromTheRecord();
    void receiversOfTopicRemoved();
    void dialogCopies();
    void serviceCopies();
    void serviceAssignment();

private:
    WarningGuard m_warnings;
    const RobotLanguage m_english = language("en_US");
    const RobotLanguage m_french = language("fr_FR");
};

void TestDialogServiceModels::dialogStartsFromTheRecord() {
    Tano::DialogInfo info;
    info.setTopicName("th\xC3\xA9");
    info.setTypeVersion("1.0");
    info.setTopic("qd_QA", "a.top");
    info.setTopic("fr_FR", "f.top");
    const DialogInfoModel model(info);
    QCOMPARE(model.topicName(), text("thé"));
    QCOMPARE(model.typeVersion(), text("1.0"));
    const Language::LocalizedStrings topics{{text("f.top"), m_french},
                                            {text("a.top"), language("qd_QA")}};
    QCOMPARE(model.topics(), topics);
    QCOMPARE(SignalLog::print(model.topicsLanguages()), text("[fr_FR, qd_QA]"));
    QVERIFY(model.topic(m_english).isNull());
    QCOMPARE(model.toDialogInfo(), info);
    QVERIFY(DialogInfoModel(Tano::DialogInfo()).topicsLanguages().empty());
}

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

void TestDialogServiceModels::dialogCopies() {
    QObject parent;
    DialogInfoModel model(Tano::DialogInfo(), &parent);
    model.setTopic(m_french, text("f.top"));
    DialogInfoModel copy(model);
    QCOMPARE(copy.parent(), &parent);
    QCOMPARE(copy.topics(), model.topics());
    copy.setTopic(m_french, text("g.top"));
    QCOMPARE(model.topic(m_french), text("f.top"));
    QCOMPARE(model.toDialogInfo().topic("fr_FR"), std::string("f.top"));
}

void TestDialogServiceModels::serviceCopies() {
    QObject parent;
    QObject other;
    const Tano::PackageService record{"watch", "bin/watch", true, {{"restart", "always"}}};
    const ServiceInfoModel model(record, &parent);
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
