#include "problem_report.h"

#include "document.h"

#include <packagemodel/ignore_comments.h>
#include <packagemodel/issue_report.h>

#include <QFileInfo>

namespace Editor {

using Tano::ManifestReader;
using Zel::PackageModel::Issue;
using Zel::PackageModel::IssueOptions;

namespace {

bool readFile(const Document &document, ManifestReader &reader) {
    Tano::PackageInfo ignored;
    QFile file(document.fileName());
    return !document.isModified() && !document.fileName().isEmpty() &&
           reader.readFile(file, ignored);
}

} // namespace

IssueOptions issueOptions(const QString &fileName) {
    IssueOptions options{fileName.isEmpty() ? QString() : QFileInfo(fileName).path()};
    options.filterFor = Zel::PackageModel::notIgnored;
    return options;
}

QStringList reportLines(const Document &document, const QVector<Issue> &issues) {
    ManifestReader reader(ManifestReader::Positions::Keep);
    if (!readFile(document, reader)) {
        document.package()->syncRecord();
        Tano::PackageInfo ignored;
        static_cast<void>(
            reader.readContent(document.package()->packageInfo().saveToManifestContent(), ignored));
    }
    const QString file =
        document.fileName().isEmpty() ? QStringLiteral("manifest.xml") : document.fileName();
    Zel::PackageModel::IssuePlaces places(reader);
    QStringList lines;
    for (const Issue &issue : issues)
        lines.append(Zel::PackageModel::reportLine(file, places.of(issue), issue));
    return lines;
}

} // namespace Editor
