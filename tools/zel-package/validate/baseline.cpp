#include "baseline.h"

#include "arguments/native_text.h"
#include "console/json_text.h"
#include "console/library_text.h"
#include "file_place.h"
#include "manifest/manifest_source.h"

#include <packagemodel/package_json.h>

#include <tano/save_file.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QJsonArray>

#include <algorithm>
#include <filesystem>
#include <numeric>
#include <utility>

namespace ZelPackage {
namespace {

Tano::SourcePosition positionOf(const QByteArray &text, int offset) {
    const QByteArray before = text.left(offset);
    const auto lineStart = before.lastIndexOf('\n') + 1;
    return {std::uint64_t(before.count('\n') + 1),
            std::uint64_t(QString::fromUtf8(before.mid(lineStart)).toUcs4().size() + 1)};
}

// Whether an object has exactly these members.
bool hasMembers(const QJsonObject &object, QStringList names) {
    names.sort();
    return object.keys() == names;
}

bool isFinding(const QJsonObject &object) {
    return hasMembers(object, {QStringLiteral("file"), QStringLiteral("rule"),
                               QStringLiteral("field"), QStringLiteral("count")}) &&
           object[QStringLiteral("file")].isString() && object[QStringLiteral("rule")].isString() &&
           object[QStringLiteral("field")].isString() &&
           object[QStringLiteral("count")].toInt() > 0;
}

} // namespace

Baseline::Baseline(const QString &file)
    : m_file(file)
    , m_folder(QFileInfo(file).absolutePath()) {
}

bool Baseline::read(QString &error, Tano::SourcePosition &position) {
    const auto content = readContent(m_file, error);
    if (!content)
        return false;
    const QByteArray bytes = QByteArray::fromStdString(*content);
    QJsonParseError parseError{};
    const QJsonObject root = QJsonDocument::fromJson(bytes, &parseError).object();
    if (parseError.error != QJsonParseError::NoError) {
        position = positionOf(bytes, parseError.offset);
        error = QCoreApplication::translate("zel-package", "The baseline is not valid JSON: %1.")
                    .arg(parseError.errorString());
        return false;
    }
    const QJsonArray findings = root[QStringLiteral("findings")].toArray();
    const bool isBaseline =
        hasMembers(root, {QStringLiteral("format"), QStringLiteral("findings")}) &&
        root[QStringLiteral("format")].toInt() == Zel::PackageModel::jsonFormat &&
        std::all_of(findings.begin(), findings.end(),
                    [](const QJsonValue &each) { return isFinding(each.toObject()); });
    if (!isBaseline) {
        error = QCoreApplication::translate(
            "zel-package",
            "The file is not a baseline of format 1, which --write-baseline writes.");
        return false;
    }
    for (const QJsonValue &each : findings) {
        const QJsonObject finding = each.toObject();
        m_counts[{finding[QStringLiteral("file")].toString(),
                  finding[QStringLiteral("rule")].toString(),
                  finding[QStringLiteral("field")].toString()}] +=
            finding[QStringLiteral("count")].toInt();
    }
    return true;
}

QString Baseline::write() const {
    QString json =
        QStringLiteral("{\"format\": %1,\n\"findings\": [").arg(Zel::PackageModel::jsonFormat);
    for (auto it = m_counts.constBegin(); it != m_counts.constEnd(); ++it) {
        const auto &[file, rule, field] = it.key();
        json += (it == m_counts.constBegin() ? QStringLiteral("\n") : QStringLiteral(",\n")) %
                jsonText({{QStringLiteral("file"), file},
                          {QStringLiteral("rule"), rule},
                          {QStringLiteral("field"), field},
                          {QStringLiteral("count"), it.value()}},
                         QJsonDocument::Compact);
    }
    json += QStringLiteral("]}\n");
    return translatedSentence(Tano::saveFile({nativeBytes(m_file), json.toStdString()}).error);
}

void Baseline::add(const QString &manifest, const QString &rule, const QString &field) {
    ++m_counts[keyOf(manifest, rule, field)];
}

bool Baseline::take(const QString &manifest, const QString &rule, const QString &field) {
    const auto it = m_counts.find(keyOf(manifest, rule, field));
    if (it == m_counts.end())
        return false;
    if (--*it == 0)
        m_counts.erase(it);
    return true;
}

std::vector<Baseline::Entry> Baseline::left(const QString &manifest) const {
    const Key first = keyOf(manifest, {}, {});
    std::vector<Entry> entries;
    for (auto it = m_counts.lowerBound(first); it != m_counts.constEnd(); ++it) {
        const auto &[file, rule, field] = it.key();
        if (file != std::get<0>(first))
            break;
        entries.push_back({rule, field, it.value()});
    }
    return entries;
}

QStringList Baseline::missingManifests() const {
    QStringList missing;
    QString last;
    for (auto it = m_counts.constBegin(); it != m_counts.constEnd(); ++it) {
        const QString &file = std::get<0>(it.key());
        if (file == std::exchange(last, file) || isStandardStream(QFileInfo(file).fileName()))
            continue;
        std::error_code ignored;
        if (!std::filesystem::exists(nativeBytes(QDir(m_folder).filePath(file)), ignored))
            missing += file;
    }
    return missing;
}

int Baseline::size() const {
    return std::accumulate(m_counts.begin(), m_counts.end(), 0);
}

Baseline::Key Baseline::keyOf(const QString &manifest, const QString &rule,
                              const QString &field) const {
    return {pathFrom(m_folder, manifest), rule, field};
}

} // namespace ZelPackage
