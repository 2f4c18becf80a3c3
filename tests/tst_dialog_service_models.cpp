#include "signal_log.h"
#include "text.h"
#include "warning_guard.h"

#include <QTest>

using namespace Zel;

class TestDialogServiceModels : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QCOMPARE(m_warnings.take(), QStringList()); }

    void dialogStartsFromTheRecord();
    void dialogTexts();
    void dialogTopics();
    void topicRemovedComesBeforeTheCache();
    void receiversOfTopicRemoved();
    void dialogCopies();
    void serviceTexts();
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

void TestDialogServiceModels::dialogTexts() {
    DialogInfoModel model{Tano::DialogInfo()};
    SignalLog log(model);
    model.setTopicName(QString());
    model.setTopicName(text("thé"));
    model.setTopicName(text("thé"));
    model.setTypeVersion(text("2.0"));
    model.setTypeVersion(text("2.0"));
    QCOMPARE(log.take(), lines(R"(nameChanged("thé")
                                  typeVersionChanged("2.0"))"));
    QCOMPARE(model.toDialogInfo().topicName(), std::string("th\xC3\xA9"));
    QCOMPARE(model.toDialogInfo().typeVersion(), std::string("2.0"));
}

void TestDialogServiceModels::dialogTopics() {
    DialogInfoModel model{Tano::DialogInfo()};
    SignalLog log(model);
    model.setTopic(m_french, QString());
    model.setTopic(m_french, text("f.top"));
    model.setTopic(m_french, text("f.top"));
    model.setTopic(m_english, text("e.top"));
    model.setTopic(m_french, text("g.top"));
    QVERIFY(model.removeTopic(m_english));
    QVERIFY(!model.removeTopic(m_english));
    QCOMPARE(log.take(), lines(R"(topicChanged(fr_FR, "f.top")
                                  topicChanged(en_US, "e.top")
                                  topicChanged(fr_FR, "g.top")
                                  topicRemoved(en_US))"));
    const Language::LocalizedStrings topics{{text("g.top"), m_french}};
    QCOMPARE(model.topics(), topics);
    const Tano::TextMap recorded{{"fr_FR", "g.top"}};
    QCOMPARE(model.toDialogInfo().topics(), recorded);
}

void TestDialogServiceModels::topicRemovedComesBeforeTheCache() {
    DialogInfoModel model{Tano::DialogInfo()};
    model.setTopic(m_french, text("f.top"));
    SignalLog log(model);
    log.onSignal("topicRemoved", [&] {
        return QString(model.topic(m_french) % u' ' %
                       QString::number(model.toDialogInfo().topics().size()));
    });
    QVERIFY(model.removeTopic(model.topics().front().second));
    QCOMPARE(log.take(), QStringList({text("topicRemoved(fr_FR)"), text("  f.top 0")}));
    QVERIFY(model.topic(m_french).isNull());
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

void TestDialogServiceModels::serviceTexts() {
    ServiceInfoModel model{Tano::PackageService()};
    SignalLog log(model);
    model.setName(text("thé"));
    model.setName(text("thé"));
    model.setExecStart(text("bin/run"));
    model.setExecStart(text("bin/run"));
    model.setAutoRun(false);
    model.setAutoRun();
    model.setAutoRun();
    model.setAutoRun(false);
    QCOMPARE(log.take(), lines(R"(nameChanged("thé")
                                  execStartChanged("bin/run")
                                  autoRunChanged(true)
                                  autoRunChanged(false))"));
    QCOMPARE(model.toPackageService(), (Tano::PackageService{"th\xC3\xA9", "bin/run", false, {}}));
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
