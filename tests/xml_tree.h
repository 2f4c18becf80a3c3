#pragma once

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QSet>
#include <QString>
#include <QVector>
#include <QXmlStreamReader>

#include <deque>
#include <vector>

/// XML as a mutable tree, and validation of its output against the schema.
namespace XmlTree {

struct Element {
    QString name;
    QVector<QPair<QString, QString>> attributes;
    QString content; // of a text, comment or instruction, which have no name
    std::deque<Element> children;
};

inline Element treeOf(const QString &path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(path));
    QXmlStreamReader reader(&file);
    reader.setNamespaceProcessing(false);
    Element document;
    std::vector<Element *> open{&document};
    while (!reader.atEnd()) {
        switch (reader.readNext()) {
        case QXmlStreamReader::StartElement: {
            Element element{reader.qualifiedName().toString(), {}, {}, {}};
            for (const auto &attribute : reader.attributes())
                element.attributes.append(
                    {attribute.qualifiedName().toString(), attribute.value().toString()});
            open.back()->children.push_back(element);
            open.push_back(&open.back()->children.back());
            break;
        }
        case QXmlStreamReader::EndElement:
            open.pop_back();
            break;
        case QXmlStreamReader::Characters:
            open.back()->children.push_back({{}, {}, reader.text().toString().toHtmlEscaped(), {}});
            break;
        case QXmlStreamReader::Comment:
            open.back()->children.push_back(
                {{}, {}, QStringLiteral("<!--%1-->").arg(reader.text().toString()), {}});
            break;
        default:
            break;
        }
    }
    for (const Element &child : document.children) {
        if (!child.name.isEmpty())
            return child;
    }
    qFatal("%s has no element", qPrintable(path));
}

inline QString written(const Element &element) {
    if (element.name.isEmpty())
        return element.content;
    QString text = QLatin1Char('<') + element.name;
    for (const auto &attribute : element.attributes)
        text += QStringLiteral(" %1=\"%2\"").arg(attribute.first, attribute.second.toHtmlEscaped());
    text += QLatin1Char('>');
    for (const Element &child : element.children)
        text += written(child);
    return text + QStringLiteral("</%1>").arg(element.name);
}

inline void write(const QString &path, const QByteArray &content) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write %s", qPrintable(path));
}

// The output of xmllint for the files.
inline QString outputOfXmllint(const QStringList &files) {
    QProcess xmllint;
    xmllint.setProcessChannelMode(QProcess::MergedChannels);
    xmllint.start(QStringLiteral(ZEL_XMLLINT),
                  QStringList{QStringLiteral("--nonet"), QStringLiteral("--noout"),
                              QStringLiteral("--schema"), QStringLiteral(ZEL_SCHEMA)} +
                      files);
    if (!xmllint.waitForFinished(-1))
        qFatal("xmllint does not run");
    return QString::fromUtf8(xmllint.readAll());
}

// The files in the folder that are valid according to the schema.
inline QSet<QString> acceptedBySchema(const QDir &dir) {
    constexpr int mostArguments = 10000;
    QStringList files;
    QString output;
    for (const QFileInfo &file : dir.entryInfoList(QDir::Files, QDir::Name)) {
        files += file.filePath();
        if (files.size() == mostArguments) {
            output += outputOfXmllint(files);
            files.clear();
        }
    }
    if (!files.isEmpty())
        output += outputOfXmllint(files);
    QSet<QString> accepted;
    QSet<QString> misnamed; // xmllint continues after a violation of Namespaces in XML
    for (const QString &line : output.split(QLatin1Char('\n'))) {
        const QString validates = QStringLiteral(" validates");
        if (line.contains(QLatin1String(": namespace error :")))
            misnamed += line.section(QLatin1Char(':'), 0, 0);
        else if (line.endsWith(validates))
            accepted += line.chopped(validates.size());
    }
    return accepted -= misnamed;
}

} // namespace XmlTree
