#include <packagemodel/text_exchange.h>

#include "../fields/field_words.h"
#include "text_places.h"

#include <packagemodel/text_conversion.h>

#include <QRegularExpression>
#include <QXmlStreamWriter>

namespace Zel::PackageModel {
namespace {

QString pathText(const TranslatableText &text) {
    return fromUtf8(text.path.toString());
}

// Writes text with carriage returns as references, since readers would normalize them.
void writeText(QXmlStreamWriter &xml, const QString &text) {
    const auto lines = text.split(u'\r');
    for (int i = 0; i < lines.size(); ++i) {
        if (i > 0)
            xml.writeEntityReference(QStringLiteral("#13"));
        xml.writeCharacters(lines.at(i));
    }
}

QString stateOf(const TranslatableText &text) {
    if (text.target.isEmpty())
        return QStringLiteral("needs-translation");
    const auto place = textPlace(text.path);
    return place->kind->scriptError(text.target).isEmpty()
               ? QStringLiteral("translated")
               : QStringLiteral("needs-review-translation");
}

void writeUnit(QXmlStreamWriter &xml, const TranslatableText &text) {
    const QString state = stateOf(text);
    xml.writeStartElement(QStringLiteral("trans-unit"));
    xml.writeAttribute(QStringLiteral("id"), pathText(text));
    xml.writeAttribute(QStringLiteral("resname"), pathText(text));
    xml.writeAttribute(QStringLiteral("approved"), state == QLatin1String("translated")
                                                       ? QStringLiteral("yes")
                                                       : QStringLiteral("no"));
    xml.writeAttribute(QStringLiteral("xml:space"), QStringLiteral("preserve"));
    xml.writeStartElement(QStringLiteral("source"));
    writeText(xml, text.source.isEmpty() ? noSourceText : text.source);
    xml.writeEndElement();
    xml.writeStartElement(QStringLiteral("target"));
    xml.writeAttribute(QStringLiteral("state"), state);
    writeText(xml, text.target);
    xml.writeEndElement();
    xml.writeStartElement(QStringLiteral("note"));
    xml.writeAttribute(QStringLiteral("from"), QStringLiteral("developer"));
    writeText(xml, text.note);
    xml.writeEndElement();
    xml.writeEndElement();
}

QByteArray xliffOf(const QVector<TranslatableText> &texts, const XliffOptions &options) {
    QByteArray content;
    QXmlStreamWriter xml(&content);
    xml.setAutoFormatting(true);
    xml.setAutoFormattingIndent(2);
    xml.writeStartDocument();
    xml.writeStartElement(QStringLiteral("xliff"));
    xml.writeDefaultNamespace(QStringLiteral("urn:oasis:names:tc:xliff:document:1.2"));
    xml.writeAttribute(QStringLiteral("version"), QStringLiteral("1.2"));
    xml.writeStartElement(QStringLiteral("file"));
    xml.writeAttribute(QStringLiteral("original"), options.originalFile);
    xml.writeAttribute(QStringLiteral("source-language"), bcp47(options.sourceLanguage));
    xml.writeAttribute(QStringLiteral("target-language"), bcp47(options.language));
    xml.writeAttribute(QStringLiteral("datatype"), QStringLiteral("plaintext"));
    xml.writeStartElement(QStringLiteral("body"));
    for (const TranslatableText &text : texts) {
        if (!options.missingOnly || text.target.isEmpty())
            writeUnit(xml, text);
    }
    xml.writeEndDocument();
    return content;
}

// The reason why XLIFF cannot represent a text, its path or the manifest's name; empty if it can.
QString xliffFault(const QVector<TranslatableText> &texts, const XliffOptions &options) {
    if (options.language == options.sourceLanguage)
        return inWords(
            QT_TRANSLATE_NOOP("Zel::PackageModel", "The language is the source language too."));
    if (const QString reason = refusalOfText(options.originalFile); !reason.isEmpty())
        return reason;
    for (const TranslatableText &text : texts) {
        const QString path = pathText(text);
        for (const QString &part : {path, text.source, text.target}) {
            if (const QString reason = refusalOfText(part); !reason.isEmpty())
                return path % QStringLiteral(": ") % reason;
        }
    }
    return {};
}

} // namespace

QString noteOn(const TranslatableText &text) {
    QStringList notes{label(text.path) % u'.'};
    if (text.source.isEmpty())
        notes += inWords(
            QT_TRANSLATE_NOOP("Zel::PackageModel", "The source language has no such text."));
    const bool isMarkedUp = text.source.contains(u'<') || text.target.contains(u'<');
    if (isMarkedUp && textPlace(text.path)->kind->isScript)
        notes += inWords(QT_TRANSLATE_NOOP("Zel::PackageModel",
                                           "This is a speech script: keep the markup in angle "
                                           "brackets, and translate the text around it."));
    return notes.join(u' ');
}

QString bcp47(const QString &code) {
    static const QRegularExpression form(
        QRegularExpression::anchoredPattern(QStringLiteral("[A-Za-z]{2,8}(-[A-Za-z0-9]{1,8})*")));
    QString tag = QString(code).replace(u'_', u'-');
    if (form.match(tag).hasMatch())
        return tag;
    tag = QStringLiteral("x");
    const QString digits = QString::fromLatin1(code.toUtf8().toHex());
    for (int i = 0; i < digits.size(); i += 8)
        tag += u'-' % digits.mid(i, 8);
    return tag;
}

QByteArray exportXliff(const PackageInfoModel *package, const XliffOptions &options,
                       QString *error) {
    const auto texts = translatableTexts(package, options.language, options.sourceLanguage);
    const QString reason = xliffFault(texts, options);
    if (error)
        *error = reason;
    return reason.isEmpty() ? xliffOf(texts, options) : QByteArray();
}

} // namespace Zel::PackageModel
