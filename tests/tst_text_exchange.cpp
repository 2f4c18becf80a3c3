#include "golden.h"
#include "table_file.h"
#include "text.h"

#include <packagemodel/package_coverage.h>
#include <packagemodel/package_info_model.h>
#include <packagemodel/record_editor.h>
#include <packagemodel/text_states.h>

#include <tano/package_info.h>

#include <QDirIterator>
#include <QRandomGenerator>

using namespace Zel;
using namespace Zel::PackageModel;

namespace {

constexpr std::array outcomeNames{"Imported",  "Unchanged",     "Untranslated", "Superseded",
                                  "FieldGone", "SourceChanged", "ItemMissing",  "Malformed"};

Tano::PackageInfo recordOf(const QByteArray &manifest) {
    Tano::PackageInfo record;
    if (!record.loadFromManifestContent(manifest.toStdString()))
        qFatal("%s", record.errorString().c_str());
    return record;
}

QByteArray exported(const Tano::PackageInfo &record, const QString &language,
                    const QString &source) {
    const PackageInfoModel package(record);
    QString error;
    const QByteArray xliff = exportXliff(&package, {language, source}, &error);
    if (!error.isEmpty())
        qFatal("%s", qPrintable(error));
    return xliff;
}

QVector<TextUnit> unitsOf(const QByteArray &xliff) {
    const ParsedXliff parsed = parseXliff(xliff);
    if (!parsed.error.isEmpty())
        qFatal("%d: %s", int(parsed.line), qPrintable(parsed.error));
    return parsed.units;
}

QStringList linesOf(const PackageInfoModel *package) {
    QStringList lines;
    for (const Field &field : fields(package))
        lines += fromUtf8(field.path.toString()) + u'=' + printed(field.value);
    return lines;
}

// The lines of a package that are not in `known`.
QStringList newLines(const PackageInfoModel *package, const QStringList &known) {
    QStringList lines = linesOf(package);
    for (const QString &line : known)
        lines.removeOne(line);
    lines.sort();
    return lines;
}

QByteArray inBody(const QString &units) {
    return (text("<xliff version='1.2' xmlns='urn:oasis:names:tc:xliff:document:1.2'>"
                 "<file source-language='en-US'><body>") +
            units + text("</body></file></xliff>"))
        .toUtf8();
}

} // namespace

class TestTextExchange : public QObject {
    Q_OBJECT

private:
    const Tano::PackageInfo m_record = recordOf(testData(text("texts/package.xml")));

    static void addManifests() {
        QTest::addColumn<QString>("file");
        for (const char *folder : {ZEL_TEST_DATA "/manifest/valid", ZEL_SOURCE_DIR "/examples"}) {
            QDirIterator files(text(folder), {text("*.xml")}, QDir::Files,
                               QDirIterator::Subdirectories);
            while (files.hasNext()) {
                const QString file = files.next();
                QTest::newRow(qPrintable(file.section(u'/', -2))) << file;
            }
        }
    }

    // Calls `visit` for each pair of languages of a manifest, with the default one as source.
    template<typename Visit>
    static void visitLanguages(const QString &file, Visit visit) {
        QFile manifest(file);
        QVERIFY(manifest.open(QFile::ReadOnly));
        const Tano::PackageInfo record = recordOf(manifest.readAll());
        const PackageInfoModel package(record);
        const QString source = text("en_US");
        for (const RobotLanguage &language : languages(&package)) {
            if (language.isoCode() != source)
                visit(record, language.isoCode(), source);
            else if (language != languages(&package).front())
                visit(record, source, languages(&package).front().isoCode());
        }
    }

private Q_SLOTS:
    void unitsAreExported() {
        COMPARE_WITH_GOLDEN(text(ZEL_TEST_DATA "/texts/package.xlf"),
                            exported(m_record, text("fr_FR"), text("en_US")));
    }

    // Importing an export changes nothing. Then restores all removed texts but empty ones, and
    // changes all texts.
    void importRestoresTexts_data() { addManifests(); }
    void importRestoresTexts() {
        QFETCH(QString, file);
        visitLanguages(file, [](const auto &record, const QString &language,
                                const QString &source) {
            const QByteArray xliff = exported(record, language, source);
            auto units = unitsOf(xliff);
            RecordEditor editor(record);
            QCOMPARE(importTexts(editor, units).error, QString());
            QCOMPARE(editor.record().saveToManifestContent(), record.saveToManifestContent());
            PackageInfoModel package(record);
            const QStringList lines = linesOf(&package);
            for (auto unit = units.rbegin(); unit != units.rend(); ++unit) {
                const bool isItem = unit->path.parent() != unit->path.parent().parent() &&
                                    unit->path.steps().back().selectors.size() == 2;
                const bool isKept =
                    isItem &&
                    entries(&package, unit->path.parent()).contains(FieldValue(QString()));
                if (!unit->target.isEmpty() && !isKept)
                    QCOMPARE(apply(&package, {Edit::Action::Remove, unit->path}).error, QString());
            }
            auto import = importTexts(&package, units, {true, false});
            QVERIFY2(import.error.isEmpty() || import.error.contains(text("script")),
                     qPrintable(import.error));
            if (import.error.isEmpty())
                QCOMPARE(exported(package.packageInfo(), language, source), xliff);

            for (TextUnit &unit : units)
                unit.target = QStringLiteral("%1 & ]]> %2\r").arg(unit.column).arg(unit.line);
            import = importTexts(&package, units, {true, false});
            QCOMPARE(import.error, QString());
            const auto again = unitsOf(exported(package.packageInfo(), language, source));
            QCOMPARE(again.size(), units.size());
            for (int i = 0; i < units.size(); ++i)
                QCOMPARE(again.at(i).target, units.at(i).target);
        });
    }

    void outcomes_data() { addRowsOf("texts/outcomes.json"); }
    void outcomes() {
        QFETCH(QString, name);
        QFETCH(QStringList, units);
        QFETCH(QStringList, outcomes);
        QFETCH(QStringList, fields);
        QVector<TextUnit> given;
        for (const QString &unit : units) {
            const QStringList parts = unit.split(u'|');
            given.append({*Tano::FieldPath::parse(parts.at(0).toStdString()), text("en-US"),
                          parts.at(1), parts.at(2), parts.size() > 3});
        }
        RecordEditor editor(m_record);
        const QStringList before = linesOf(editor.package());
        const bool force = name.endsWith(text("forced"));
        const TextImport dry = importTexts(editor, given, {force, true});
        QCOMPARE(linesOf(editor.package()), before);
        const TextImport import = importTexts(editor, given, {force, false});
        QVERIFY(dry.edits == import.edits);
        QCOMPARE(import.error.isEmpty(), !outcomes.contains(text("Malformed")));
        QStringList actual;
        for (const TextImport::Unit &unit : import.units) {
            actual += text(outcomeNames[std::size_t(unit.outcome)]);
            QCOMPARE(unit.reason.isEmpty(), unit.outcome <= TextOutcome::Untranslated);
        }
        QCOMPARE(actual, outcomes);
        fields.sort();
        QCOMPARE(newLines(editor.package(), before), fields);
        QVERIFY(editor.record().saveToManifestContent().find("<!--kept-->") != std::string::npos);
    }

    void malformed_data() { addRowsOf("texts/malformed.json"); }
    void malformed() {
        QFETCH(QString, xliff);
        QFETCH(QString, error);
        const bool isUnit = xliff.startsWith(text("<trans-unit"));
        const ParsedXliff parsed = parseXliff(isUnit ? inBody(xliff) : xliff.toUtf8());
        QCOMPARE(QStringLiteral("%1:%2: %3").arg(parsed.line).arg(parsed.column).arg(parsed.error),
                 error);
        QVERIFY(parsed.units.isEmpty());
    }

    void bounds() {
        const QString group = text("<group>");
        const auto nested = inBody(group.repeated(61) + text("</group>").repeated(61));
        QCOMPARE(parseXliff(nested).error, QString());
        const auto deeper = inBody(group.repeated(62) + text("</group>").repeated(62));
        QCOMPARE(parseXliff(deeper).error, text("More than 64 elements are nested."));
        QString attributes;
        for (int i = 0; i < 65; ++i)
            attributes += QStringLiteral(" a%1=''").arg(i);
        QCOMPARE(parseXliff(inBody(text("<group") + attributes + text("/>"))).error,
                 text("The element <group> has more than 64 attributes."));
        const QString filler = QString(1 << 16, u'x');
        const QString tag = text("<note a='>%1'/>").arg(filler);
        const ParsedXliff parsed = parseXliff(inBody(u'\n' + tag));
        QCOMPARE(parsed.error, text("A tag is longer than 64 KiB."));
        QCOMPARE(parsed.line, qint64(2));
        QCOMPARE(parsed.column, qint64(1));
        for (const char *other : {"<note>%1</note>", "<!--%1>-->", "<note><![CDATA[%1]]></note>"})
            QCOMPARE(parseXliff(inBody(text(other).arg(filler))).error, QString());
    }

    // Ignores content added by tools, but includes text within inline elements.
    void otherContentOfTools() {
        const auto units = unitsOf(inBody(text(
            "<group><trans-unit id='1' restype='x-gettext-domain-header'><source>x</source>"
            "</trans-unit><trans-unit id='7' xmlns:t='urn:t'><t:a>x<t:b/></t:a><source><g id='1'>A"
            "<x id='2' equiv-text='-'/></g><mrk mtype='seg'>B<!--c--></mrk>&#13;</source>"
            "<seg-source><mrk>x</mrk></seg-source><target><ph id='3'>&lt;p></ph><t:c>x</t:c>C"
            "</target><alt-trans><target>x</target></alt-trans><note>x</note>"
            "<context-group purpose='location'><context context-type='sourcefile'>behaviors[a"
            "</context><context context-type='linenumber'>1].names[de_DE]</context>"
            "</context-group></trans-unit></group>")));
        QCOMPARE(units.size(), 1);
        QCOMPARE(units.front().path.toString(), std::string("behaviors[a:1].names[de_DE]"));
        QCOMPARE(units.front().source, text("A-B\r"));
        QCOMPARE(units.front().target, text("<p>C"));
    }

    // The texts of all owners make up the texts of the package.
    void textsByOwner() {
        const PackageInfoModel package(m_record);
        auto texts = ownTexts(package, text("fr_FR"), text("en_US"));
        for (const Field &field : fields(&package)) {
            if (field.path.steps().back().field != "path" || field.path.steps().size() != 2)
                continue;
            const BehaviorInfoModel behavior(
                std::get<Tano::BehaviorInfo>(*value(&package, field.path.parent())));
            texts += textsOf(behavior, field.path.parent(), text("fr_FR"), text("en_US"));
        }
        const auto all = translatableTexts(&package, text("fr_FR"), text("en_US"));
        QCOMPARE(texts.size(), all.size());
        for (int i = 0; i < all.size(); ++i) {
            QCOMPARE(texts.at(i).path.toString(), all.at(i).path.toString());
            QCOMPARE(texts.at(i).source, all.at(i).source);
            QCOMPARE(texts.at(i).target, all.at(i).target);
        }
    }

    void states() {
        const auto stateOf = [](const char *field, const char *source, const char *target,
                                const TranslatableText *before = nullptr) {
            return textState({*Tano::FieldPath::parse(field), text(source), text(target), {}},
                             before);
        };
        const TranslatableText before{{}, text("a"), text("b"), {}};
        QCOMPARE(stateOf("names[fr_FR]", "a", "", &before), TextState::Missing);
        QCOMPARE(stateOf("names[fr_FR]", "<p>", "<p>", &before), TextState::Malformed);
        QCOMPARE(stateOf("behaviors[a].tags[fr_FR][0]", "c", "<p>"), TextState::Translated);
        QCOMPARE(stateOf("names[fr_FR]", "b", "b", &before), TextState::SourceChanged);
        QCOMPARE(stateOf("names[fr_FR]", "b", "b"), TextState::SameAsSource);
        QCOMPARE(stateOf("names[fr_FR]", "c", "d", &before), TextState::Translated);
        QCOMPARE(stateOf("names[fr_FR]", "a", "b", &before), TextState::Translated);
        QVERIFY(isSpeechScript(*Tano::FieldPath::parse("names[fr_FR]"), text("<p/>")));
        QVERIFY(!isSpeechScript(*Tano::FieldPath::parse("author"), text("<p/>")));
    }

    // A truncated or garbled file is read completely or not at all.
    void garbledFiles() {
        const QByteArray xliff = exported(m_record, text("de_DE"), text("en_US"));
        const auto units = unitsOf(xliff).size();
        for (int size = 0; size < xliff.trimmed().size(); ++size)
            QVERIFY(!parseXliff(xliff.left(size)).error.isEmpty());
        QRandomGenerator random(1);
        for (int i = 0; i < 3000; ++i) {
            QByteArray garbled = xliff;
            for (int change = random.bounded(1, 4); change > 0; --change)
                garbled.replace(random.bounded(int(garbled.size())), random.bounded(3),
                                xliff.mid(random.bounded(int(xliff.size())), random.bounded(40)));
            const ParsedXliff parsed = parseXliff(garbled);
            QCOMPARE(parsed.units.isEmpty(), !parsed.error.isEmpty());
            RecordEditor editor(m_record);
            const TextImport import = importTexts(editor, parsed.units, {true, false});
            QVERIFY(import.error.isEmpty() ||
                    editor.record().saveToManifestContent() == m_record.saveToManifestContent());
        }
        QVERIFY(units > 0);
    }

    void refusedTexts() {
        PackageInfoModel package(m_record);
        QString error;
        QVERIFY(exportXliff(&package, {text("en_US"), text("en_US")}, &error).isEmpty());
        QCOMPARE(error, text("The language is the source language too."));
        package.behaviors().front()->setName(QString(QChar(7)), language("en_US"));
        QVERIFY(exportXliff(&package, {text("de_DE"), text("en_US")}, &error).isEmpty());
        QCOMPARE(error,
                 text("behaviors[greet].names[de_DE]: The text contains the character U+0007, "
                      "which a manifest cannot represent."));
        QVERIFY(!importTexts(static_cast<PackageInfoModel *>(nullptr), {}).error.isEmpty());
    }

    void languageTags() {
        QCOMPARE(bcp47(text("zh_CN")), text("zh-CN"));
        QCOMPARE(bcp47(text("en_US-x-scrpol")), text("en-US-x-scrpol"));
        QCOMPARE(bcp47(text("a b+c")), text("x-6120622b-63"));
    }
};

QTEST_GUILESS_MAIN(TestTextExchange)
#include "tst_text_exchange.moc"
