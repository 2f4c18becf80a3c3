#include <packagemodel/package_json.h>

#include "field_tables.h"

#include <QJsonDocument>

namespace Zel::PackageModel {
namespace {

QByteArray indented(const QByteArray &json, int depth) {
    const QByteArray lineBreak = '\n' + QByteArray(4 * depth, ' ');
    return json.trimmed().replace("\n", lineBreak);
}

// Serializes any value. JSON documents are arrays or objects, so a plain value is written as the
// only item of an array, without the brackets.
QByteArray textOf(const QJsonValue &value) {
    if (value.isObject())
        return QJsonDocument(value.toObject()).toJson();
    if (value.isArray())
        return QJsonDocument(value.toArray()).toJson();
    const QByteArray array = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return array.mid(1, array.size() - 2);
}

} // namespace

void writeJson(const PackageInfoModel *package,
               const std::function<void(const QByteArray &)> &write) {
    if (!package)
        return;
    auto &owner = const_cast<PackageInfoModel &>(*package); // the rows do not change it
    write("{\n    \"format\": " + QByteArray::number(jsonFormat));
    for (const auto &row : packageFields()) {
        write(",\n    \"" + QByteArray(row->name()) + "\": ");
        QByteArray separator = "[";
        const bool hasEntries = row->visitEntries(owner, [&](const QJsonObject &entry) {
            write(separator + "\n        " + indented(textOf(entry), 2));
            separator = ",";
        });
        if (!hasEntries)
            write(indented(textOf(row->toJson(owner)), 1));
        else
            write(separator == "[" ? "[]" : "\n    ]");
    }
    write("\n}\n");
}

} // namespace Zel::PackageModel
