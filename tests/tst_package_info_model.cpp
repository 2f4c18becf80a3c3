#include "signal_log.h"
#include "text.h"
#include "warning_guard.h"

#include <QBitmap>
#include <QTest>

using namespace Zel;

Q_DECLARE_METATYPE(std::string)

namespace {

RobotRequirement requirement(const char *model) {
    return {text(model), {1}, {2, 5}, {3}, {4, 0, 1}};
}

QIcon icon(Qt::GlobalColor color, int extent = 16) {
    QPixmap pixmap(extent, extent);
    pixmap.fill(color);
    return {pixmap};
}

QStringList recorded(const std::vector<Tano::RobotRequirement> &requirements) {
    QStringList result;
    for (const auto &r : requirements)
        result.append(SignalLog::print(fromTanoRobotRequirement(r)));
    return result;
}

} // namespace

class TestPackageInfoModel : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QCOMPARE(m_warnings.take(), QStringList()); }

    void convertsText_data();
    void convertsText();
    void losesNothingSilently_data();
    void losesNothingSilently();
    void removesSuffix_data();
    void removesSuffix();
    void ranges_data();
    void ranges();
    void requirementValues();
    void textFields_data();
    void textFields();
    void versions_data();
    void versions();
    void localizedTexts();
    void languages();
    void removingALanguageLeavesTheTexts();
    void receiversMayRemoveTheLanguageToo();
    void argumentsMayLieInTheCache();
    void robotRequirements();
    void brioRequirements();
    void loadedRequirementsAreRewrittenWhole();
    void icons();
    void queuedNotifications();

private:
    WarningGuard m_warnings;
    const RobotLanguage m_english = language("en_US");
    const RobotLanguage m_french = language("fr_FR");
};

void TestPackageInfoModel::convertsText_data() {
    QTest::addColumn<QString>("utf16");
    QTest::addColumn<std::string>("utf8");
    QTest::newRow("empty") << QString() << std::string();
    QTest::newRow("astral") << text("caf\xC3\xA9 \xF0\x9F\xA4\x96")
                            << std::string("caf\xC3\xA9 \xF0\x9F\xA4\x96");
    QTest::newRow("byte order mark") << QString(QChar(0xFEFF) % text("a"))
                                     << std::string("\xEF\xBB\xBF"
                                                    "a");
}

void TestPackageInfoModel::convertsText() {
    QFETCH(QString, utf16);
    QFETCH(std::string, utf8);
    QCOMPARE(toUtf8(utf16), utf8);
    QCOMPARE(fromUtf8(utf8), utf16);
    QCOMPARE(toUtf8(utf16 % QChar() % u'z'), utf8);
    QCOMPARE(fromUtf8(utf8 + '\0' + "cd"), utf16);
}

void TestPackageInfoModel::losesNothingSilently_data() {
    QTest::addColumn<QString>("utf16");
    QTest::addColumn<std::string>("utf8");
    const QChar high(0xD83E);
    const QChar low(0xDD16);
    QTest::newRow("high") << QString(u'a' % high) << std::string("a\xED\xA0\xBE");
    QTest::newRow("low") << QString(low % u'\u00E9') << std::string("\xED\xB4\x96\xC3\xA9");
    QTest::newRow("before a pair")
        << QString(high % high % low) << std::string("\xED\xA0\xBE\xF0\x9F\xA4\x96");
    QTest::newRow("before NUL") << QString(low % QChar() % low) << std::string("\xED\xB4\x96");
}

void TestPackageInfoModel::losesNothingSilently() {
    QFETCH(QString, utf16);
    QTEST(toUtf8(utf16), "utf8");
    PackageInfoModel model;
    model.setAuthor(utf16);
    QVERIFY(model.saveToManifestContent().isEmpty());
}

void TestPackageInfoModel::removesSuffix_data() {
    QTest::addColumn<QString>("shorter");
    QTest::newRow("en_US-x-scrpol") << text("en_US");
    QTest::newRow("en") << text("en");
    QTest::newRow("en_US_ab") << text("en_US_ab");
    QTest::newRow("nine_char") << text("");
    QTest::newRow("language_abc") << text("lan");
}

void TestPackageInfoModel::removesSuffix() {
    QTEST(removeSuffix(text(QTest::currentDataTag())), "shorter");
    QCOMPARE(PackageModel::k_sa.text(), text("-x-scrpol"));
}

void TestPackageInfoModel::ranges_data() {
    QTest::addColumn<SoftwareVersion>("min");
    QTest::addColumn<SoftwareVersion>("max");
    QTest::addColumn<bool>("valid");
    using V = SoftwareVersion;
    QTest::newRow("both unset") << V() << V() << true;
    QTest::newRow("equal") << V{1, 2} << V{1, 2} << true;
    QTest::newRow("less") << V{1, 1, 9} << V{1, 2} << true;
    QTest::newRow("greater") << V{1, 2} << V{1, 1} << false;
    QTest::newRow("greater in front") << V{2, 3} << V{2, 1, 9} << false;
    QTest::newRow("continued") << V{2, 1} << V{2, 1, 4} << true;
    QTest::newRow("cut") << V{2, 1, 4} << V{2, 1} << true;
    QTest::newRow("unsigned") << V{1} << V{4294967295U} << true;
    QTest::newRow("unset maximum") << V{1} << V() << true;
}

void TestPackageInfoModel::ranges() {
    QFETCH(SoftwareVersion, min);
    QFETCH(SoftwareVersion, max);
    QTEST(isRangeValid(min, max), "valid");
}

void TestPackageInfoModel::requirementValues() {
    const RobotRequirement base = requirement("TERN");
    QVERIFY(base == requirement("TERN"));
    for (auto version : {&RobotRequirement::minHeadVersion, &RobotRequirement::maxHeadVersion,
                         &RobotRequirement::minBodyVersion, &RobotRequirement::maxBodyVersion}) {
        RobotRequirement other = base;
        other.*version = {9};
        QVERIFY(base != other);
    }
    QVERIFY(base != requirement("tern"));

    const Tano::RobotRequirement record{"TERN", "1", "2.5", "3", "4.0.1"};
    QCOMPARE(toTanoRobotRequirement(base), record);
    QVERIFY(fromTanoRobotRequirement(record) == base);
    const BrioRequirement brio{{2, 1}, {3}};
    QVERIFY(brio != (BrioRequirement{{3}, {2, 1}}));
    QVERIFY(brio != (BrioRequirement{{2, 1}, {3, 0}}));
    QCOMPARE(toTanoBrioRequirement(brio), (Tano::BrioRequirement{"2.1", "3"}));
    QVERIFY(fromTanoBrioRequirement({"2.1", "3"}) == brio);
    QCOMPARE(fromTanoBrioRequirement({"", "x"}).maxVersion.fieldsCount(), 0);
}

using TextGetter = QString (PackageInfoModel::*)() const;
using TextSetter = void (PackageInfoModel::*)(const QString &);
using RecordGetter = const std::string &(Tano::PackageInfo::*)() const;
Q_DECLARE_METATYPE(TextGetter)
Q_DECLARE_METATYPE(TextSetter)
Q_DECLARE_METATYPE(RecordGetter)

void TestPackageInfoModel::textFields_data() {
    QTest::addColumn<TextGetter>("getter");
    QTest::addColumn<TextSetter>("setter");
    QTest::addColumn<RecordGetter>("record");
    using M = PackageInfoModel;
    using R = Tano::PackageInfo;
    const auto row = [](const char *name, TextGetter get, TextSetter set, RecordGetter record) {
        QTest::newRow(name) << get << set << record;
    };
    row("installer", &M::installer, &M::setInstaller, &R::installer);
    row("uid", &M::uid, &M::setUid, &R::uuid);
    row("typeVersion", &M::typeVersion, &M::setTypeVersion, &R::typeVersion);
    row("author", &M::author, &M::setAuthor, &R::author);
    row("organization", &M::organization, &M::setOrganization, &R::organization);
    row("date", &M::date, &M::setDate, &R::date);
    row("channel", &M::channel, &M::setChannel, &R::channel);
    row("path", &M::path, &M::setPath, &R::path);
}

void TestPackageInfoModel::textFields() {
    QFETCH(TextGetter, getter);
    QFETCH(TextSetter, setter);
    QFETCH(RecordGetter, record);
    const QByteArray signal = QByteArray(QTest::currentDataTag()) + "Updated";
    PackageInfoModel model;
    SignalLog log(model);
    log.onSignal(signal.constData(), [&] { return fromUtf8((model.packageInfo().*record)()); });
    (model.*setter)(QString());
    QCOMPARE(log.take(), QStringList());
    (model.*setter)(text("thé"));
    (model.*setter)(text("thé"));
    QCOMPARE(log.take(), QStringList({QString(QString::fromLatin1(signal) % text("(\"thé\")")),
                                      text("  thé")}));
    QCOMPARE((model.*getter)(), text("thé"));
}

void TestPackageInfoModel::versions_data() {
    QTest::addColumn<SoftwareVersion>("given");
    QTest::addColumn<QString>("stored");
    QTest::newRow("padded") << SoftwareVersion{1, 2} << text("1.2.0");
    QTest::newRow("cut") << SoftwareVersion{1, 2, 3, 4} << text("1.2.3");
    QTest::newRow("unset") << SoftwareVersion() << text("0.0.0");
}

void TestPackageInfoModel::versions() {
    QFETCH(SoftwareVersion, given);
    QFETCH(QString, stored);
    PackageInfoModel model;
    QCOMPARE(SignalLog::print(model.version()), text("0.0.0"));
    SignalLog log(model);
    log.onSignal("versionUpdated", [&] {
        return QString(SignalLog::print(model.version()) % u' ' %
                       fromUtf8(model.packageInfo().version()));
    });
    model.setVersion(given);
    model.setVersion(given);
    const QString line = QLatin1String("versionUpdated(") % stored % u')';
    const QString state = QLatin1String("  ") % stored % u' ' % stored;
    QCOMPARE(log.take(), QStringList({line, state, line, state}));
}

void TestPackageInfoModel::localizedTexts() {
    PackageInfoModel model;
    SignalLog log(model);
    model.setName(QString(), m_french);
    QVERIFY(model.name(m_french).isEmpty());
    model.setName(text("Thé"), m_french);
    model.setName(text("Thé"), m_french);
    model.setName(text("Tea"), m_english);
    model.setName(QString(), m_french);
    model.setDescription(text("Brews."), m_english);
    model.setDescription(text("Brews."), m_english);
    QCOMPARE(log.take(), lines(R"(nameUpdated("Thé", fr_FR)
                                  nameUpdated("Tea", en_US)
                                  nameUpdated("", fr_FR)
                                  descriptionUpdated("Brews.", en_US))"));
    QVERIFY(!model.hasNameFor(m_french));
    QVERIFY(model.hasNameFor(m_english));
    QVERIFY(model.hasDescriptionFor(m_english));
    QVERIFY(!model.hasDescriptionFor(m_french));
    QCOMPARE(model.names().size(), size_t(2));
    QCOMPARE(model.packageInfo().description("en_US"), std::string("Brews."));
    QVERIFY(model.descriptionLanguages().empty());

    model.clearNames();
    QCOMPARE(log.take(), lines("namesCleared()"));
    QVERIFY(model.names().empty());
    QVERIFY(model.packageInfo().names().empty());
}

void TestPackageInfoModel::languages() {
    PackageInfoModel model;
    SignalLog log(model);
    for (const char *name :
         {"languageAdded", "languageRemoved", "descriptionAdded", "descriptionRemoved"})
        log.onSignal(name, [&] {
            return QString(SignalLog::print(model.supportedLanguages()) % u' ' %
                           SignalLog::print(model.descriptionLanguages()));
        });
    model.addSupportedLanguage(m_french);
    model.addSupportedLanguage(m_french);
    model.addDescriptionLanguage(m_english);
    model.addSupportedLanguage(m_english);
    model.removeDescriptionLanguage(m_french);
    model.removeDescriptionLanguage(m_french);
    QCOMPARE(log.take().join(u'\n'), text("languageAdded(fr_FR)\n"
                                          "  [fr_FR] []\n"
                                          "descriptionAdded(fr_FR)\n"
                                          "  [fr_FR] [fr_FR]\n"
                                          "descriptionAdded(en_US)\n"
                                          "  [fr_FR] [fr_FR, en_US]\n"
                                          "languageAdded(en_US)\n"
                                          "  [fr_FR, en_US] [fr_FR, en_US]\n"
                                          "descriptionRemoved(fr_FR)\n"
                                          "  [fr_FR, en_US] [en_US]"));
    QVERIFY(model.hasLanguageSupport(m_french));
    QVERIFY(!model.hasLanguageDescription(m_french));
    QCOMPARE(model.packageInfo().supportedLanguages(),
             std::vector<std::string>({"fr_FR", "en_US"}));
    QCOMPARE(model.packageInfo().descriptionLanguages(), std::vector<std::string>({"en_US"}));
}

void TestPackageInfoModel::removingALanguageLeavesTheTexts() {
    PackageInfoModel model;
    model.addSupportedLanguage(m_french);
    model.setName(text("Thé"), m_french);
    model.addDialog(text("talk"));
    model.addDialog(text("silence"));
    model.dialog(text("talk"))->setTopic(m_french, text("f.top"));
    SignalLog log(model);
    log.watch(*model.dialog(text("talk")), text("talk"));
    log.watch(*model.dialog(text("silence")), text("silence"));
    const auto state = [&] {
        return QString(SignalLog::print(model.supportedLanguages()) % u' ' %
                       QString::number(model.packageInfo().supportedLanguages().size()) % u' ' %
                       QString::number(model.packageInfo().dialogs().front().topics().size()));
    };
    log.onSignal("topicRemoved", state);
    log.onSignal("languageRemoved", state);
    model.removeSupportedLanguage(m_english);
    model.removeSupportedLanguage(model.supportedLanguages().front());
    QCOMPARE(log.take(), QStringList({text("talk.topicRemoved(fr_FR)"), text("  [fr_FR] 0 0"),
                                      text("languageRemoved(fr_FR)"), text("  [] 0 0")}));
    QVERIFY(model.hasLanguageDescription(m_french));
    QCOMPARE(model.name(m_french), text("Thé"));
}

void TestPackageInfoModel::receiversMayRemoveTheLanguageToo() {
    PackageInfoModel model;
    model.addSupportedLanguage(m_french);
    model.addDialog(text("talk"));
    DialogInfoModel *talk = model.dialog(text("talk"));
    talk->setTopic(m_french, text("f.top"));
    connect(talk, &DialogInfoModel::topicRemoved, &model,
            &PackageInfoModel::removeSupportedLanguage);
    SignalLog log(model);
    model.removeSupportedLanguage(m_french);
    QCOMPARE(log.take(), lines("languageRemoved(fr_FR)"));
}

void TestPackageInfoModel::argumentsMayLieInTheCache() {
    PackageInfoModel model;
    model.addSupportedLanguage(m_french);
    model.addSupportedLanguage(m_english);
    model.setName(text("Thé"), m_french);
    SignalLog log(model);
    model.setName(model.names().front().first, m_english);
    model.setDescription(text("x"), model.names().back().second);
    model.removeDescriptionLanguage(model.descriptionLanguages().front());
    model.addDescriptionLanguage(model.supportedLanguages().front());
    QCOMPARE(log.take(), lines(R"(nameUpdated("Thé", en_US)
                                  descriptionUpdated("x", en_US)
                                  descriptionRemoved(fr_FR)
                                  descriptionAdded(fr_FR))"));
}

void TestPackageInfoModel::robotRequirements() {
    PackageInfoModel model;
    SignalLog log(model);
    for (const char *name :
         {"robotRequirementAdded", "robotRequirementUpdated", "robotRequirementRemoved"})
        log.onSignal(name, [&] {
            QStringList models;
            for (const auto &each : model.packageInfo().robotRequirements())
                models.append(fromUtf8(each.model));
            return models.join(u',');
        });
    model.addRobotRequirement(requirement("A"));
    model.addRobotRequirement(requirement("A"));
    model.addRobotRequirement();
    QVERIFY(model.updateRobotRequirement(1, requirement("B")));
    QVERIFY(model.updateRobotRequirement(1, requirement("B")));
    QVERIFY(model.removeRobotRequirement(0));
    for (int index : {-1, 2}) {
        QVERIFY(!model.updateRobotRequirement(index, requirement("C")));
        QVERIFY(!model.removeRobotRequirement(index));
        QVERIFY(model.robotRequirement(index) == RobotRequirement());
    }
    QCOMPARE(log.take().join(u'\n'), text("robotRequirementAdded(A/1/2.5/3/4.0.1)\n"
                                          "  A\n"
                                          "robotRequirementAdded(A/1/2.5/3/4.0.1)\n"
                                          "  A,A\n"
                                          "robotRequirementAdded(////)\n"
                                          "  A,A,\n"
                                          "robotRequirementUpdated(1, B/1/2.5/3/4.0.1)\n"
                                          "  A,B,\n"
                                          "robotRequirementUpdated(1, B/1/2.5/3/4.0.1)\n"
                                          "  A,B,\n"
                                          "robotRequirementRemoved(0)\n"
                                          "  B,"));
    QCOMPARE(recorded(model.packageInfo().robotRequirements()),
             QStringList({text("B/1/2.5/3/4.0.1"), text("////")}));
    QVERIFY(model.robotRequirement(0) == requirement("B"));
    QCOMPARE(model.robotRequirements().size(), 2);
}

void TestPackageInfoModel::brioRequirements() {
    PackageInfoModel model;
    SignalLog log(model);
    model.addBrioRequirement({{2, 1}, {3}});
    model.addBrioRequirement();
    QVERIFY(model.updateBrioRequirement(1, {{4}, {}}));
    QVERIFY(model.removeBrioRequirement(0));
    QVERIFY(!model.updateBrioRequirement(1, {}));
    QVERIFY(!model.removeBrioRequirement(-1));
    QCOMPARE(log.take(), lines(R"(brioRequirementAdded(2.1/3)
                                  brioRequirementAdded(/)
                                  brioRequirementUpdated(1, 4/)
                                  brioRequirementRemoved(0))"));
    QCOMPARE(model.packageInfo().brioRequirements(),
             std::vector<Tano::BrioRequirement>({{"4", ""}}));
    QVERIFY(model.brioRequirement(0) == (BrioRequirement{{4}, {}}));
    QVERIFY(model.brioRequirement(7) == BrioRequirement());
}

void TestPackageInfoModel::loadedRequirementsAreRewrittenWhole() {
    Tano::PackageInfo info;
    info.addBrioRequirement({" 02.1", "nonsense"});
    info.addRobotRequirement({"TERN", " 02.1", "nonsense", "", ""});
    PackageInfoModel loaded(info);
    PackageInfoModel assigned;
    assigned = loaded;
    for (PackageInfoModel *model : {&loaded, &assigned}) {
        const Tano::PackageInfo &record = model->packageInfo();
        QCOMPARE(record.brioRequirements(), info.brioRequirements());
        QCOMPARE(record.robotRequirements(), info.robotRequirements());
        model->addBrioRequirement({{3}, {}});
        model->addRobotRequirement();
        QCOMPARE(record.brioRequirements(),
                 std::vector<Tano::BrioRequirement>({{"2.1", ""}, {"3", ""}}));
        QCOMPARE(record.robotRequirements(),
                 std::vector<Tano::RobotRequirement>({{"TERN", "2.1", "", "", ""}, {}}));
    }
}

void TestPackageInfoModel::icons() {
    PackageInfoModel model;
    SignalLog log(model);
    log.onSignal("iconUpdated", [&] { return QString::number(model.icon().isNull()); });
    model.setIcon(QIcon());
    model.setIcon(QIcon(text("/nowhere/icon.png")));
    QCOMPARE(log.take(), QStringList());

    const QIcon red = icon(Qt::red);
    model.setIcon(red);
    model.setIcon(red);
    model.setIcon(icon(Qt::red));
    QCOMPARE(log.take(), QStringList({text("iconUpdated(icon)"), text("  0")}));
    model.setIcon(icon(Qt::blue));
    model.setIcon(icon(Qt::blue, 8));
    QCOMPARE(log.take().size(), 4);

    QBitmap bits(16, 16);
    bits.clear();
    const auto bitmapIcon = [&bits](bool filled) {
        QBitmap own = bits;
        if (filled)
            own.fill(Qt::color1);
        return QIcon(own);
    };
    model.setIcon(bitmapIcon(false));
    QCOMPARE(log.take().size(), 2);
    model.setIcon(bitmapIcon(false));
    QCOMPARE(log.take().size(), 0);
    model.setIcon(bitmapIcon(true));
    QCOMPARE(log.take().size(), 2);
    model.setIcon(QIcon());
    QCOMPARE(log.take(), QStringList({text("iconUpdated(icon)"), text("  1")}));
}

void TestPackageInfoModel::queuedNotifications() {
    PackageInfoModel model;
    SignalLog log;
    log.watch(model, {}, Qt::QueuedConnection);
    model.setVersion({1, 2});
    model.addSupportedLanguage(m_french);
    model.addRobotRequirement(requirement("A"));
    model.addBrioRequirement();
    model.addBehavior(text("pour"));
    model.addDialog(text("talk"));
    model.addService(Tano::PackageService{"watch", {}, false, {}});
    QCOMPARE(log.take(), QStringList());
    QCoreApplication::processEvents();
    QCOMPARE(log.take(), lines(R"(versionUpdated(1.2.0)
                                  languageAdded(fr_FR)
                                  descriptionAdded(fr_FR)
                                  robotRequirementAdded(A/1/2.5/3/4.0.1)
                                  brioRequirementAdded(/)
                                  behaviorAdded(pour)
                                  dialogAdded(talk)
                                  serviceAdded(watch))"));
}

QTEST_MAIN(TestPackageInfoModel)
#include "tst_package_info_model.moc"
