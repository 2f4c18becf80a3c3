#include "signal_log.h"
#include "text.h"
#include "warning_guard.h"

#include <QBitmap>
#include <QGuiApplication>
#include <QIconEngine>
#include <QTest>

using namespace Zel;

Q_DECLARE_METATYPE(std::string)

namespace {

[[maybe_unused]] const bool isScaled = qputenv("QT_SCALE_FACTOR", "2"); // Qt reads it once, early

RobotRequirement requirement(const char *model) {
    return {text(model), {1}, {2, 5}, {3}, {4, 0, 1}};
}

QIcon icon(Qt::GlobalColor color, int extent = 16) {
    QPixmap pixmap(extent, extent);
    pixmap.fill(color);
    return {pixmap};
}

} // namespace

class TestPackageInfoModel : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_warnings.watch(); }
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
    void receiversMayRemoveTheLanguageToo();
    void argumentsMayLieInTheCache();
    void icons();
    void iconsOnAScreenOfHighResolution();

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

    const BrioRequirement brio{{2, 1}, {3}};
    QVERIFY(brio != (BrioRequirement{{3}, {2, 1}}));
    QVERIFY(brio != (BrioRequirement{{2, 1}, {3, 0}}));
    for (int index : {-1, 0}) { // the list is empty
        QVERIFY(PackageInfoModel().robotRequirement(index) == RobotRequirement());
        QVERIFY(PackageInfoModel().brioRequirement(index) == BrioRequirement());
    }
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

void TestPackageInfoModel::icons() {
    PackageInfoModel model;
    SignalLog log(model);
    log.onEverySignal([&] { return QStringList(QString::number(model.icon().isNull())); });
    model.setIcon(QIcon());
    model.setIcon(QIcon(text("/nowhere/icon.png")));
    QCOMPARE(log.take(), QStringList());

    const QIcon red = icon(Qt::red);
    model.setIcon(red);
    model.setIcon(red);
    model.setIcon(icon(Qt::red));
    QCOMPARE(log.take(), QStringList({text("iconUpdated(icon)"), text("0")}));
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
    QCOMPARE(log.take(), QStringList({text("iconUpdated(icon)"), text("1")}));
}

void TestPackageInfoModel::iconsOnAScreenOfHighResolution() {
    struct Engine : QIconEngine {
        explicit Engine(QVector<QSize> *requested)
            : sizes(requested) {}
        void paint(QPainter *, const QRect &, QIcon::Mode, QIcon::State) override {}
        QIconEngine *clone() const override { return new Engine(sizes); }
        QPixmap pixmap(const QSize &size, QIcon::Mode, QIcon::State) override {
            sizes->append(size);
            return QPixmap(1, 1);
        }
        QVector<QSize> *sizes;
    };
    QCOMPARE(qGuiApp->devicePixelRatio(), 2.0);
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0) // where it is always set
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
#endif
    QVector<QSize> sizes;
    PackageInfoModel().setIcon(QIcon(new Engine(&sizes)));
    QCOMPARE(sizes, QVector<QSize>({QSize(10042, 10042)}));
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    QVERIFY(QCoreApplication::testAttribute(Qt::AA_UseHighDpiPixmaps));
#endif
}

QTEST_MAIN(TestPackageInfoModel)
#include "tst_package_info_model.moc"
