#pragma once

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QString>
#include <QStringList>
#include <QTest>

#include <list>

/// The rows of a table in a JSON file below ZEL_TEST_DATA: an array of arrays of equal length, of
/// which the first has the column names.
inline QJsonArray tableIn(const char *path) {
    QFile file(QStringLiteral(ZEL_TEST_DATA "/") + QLatin1String(path));
    QJsonParseError error{};
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", path);
    const QJsonArray rows = QJsonDocument::fromJson(file.readAll(), &error).array();
    if (rows.size() < 2)
        qFatal("%s is no table: %s", path, qPrintable(error.errorString()));
    for (const auto &row : rows) {
        if (row.toArray().size() != rows.at(0).toArray().size())
            qFatal("%s has a row of another length", path);
    }
    return rows;
}

/// Adds the rows of a file to a data function's table. A column holds texts, numbers or arrays of
/// texts, depending on its first value; the first column also names the rows.
inline void addRowsOf(const char *path) {
    const QJsonArray rows = tableIn(path);
    static std::list<QByteArray> known; // Qt only keeps the pointers
    const QJsonArray names = rows.at(0).toArray();
    for (int column = 0; column < names.size(); ++column) {
        const QByteArray &name = known.emplace_back(names.at(column).toString().toUtf8());
        const QJsonValue value = rows.at(1).toArray().at(column);
        if (value.isArray())
            QTest::addColumn<QStringList>(name.constData());
        else if (value.isDouble())
            QTest::addColumn<int>(name.constData());
        else
            QTest::addColumn<QString>(name.constData());
    }
    for (int i = 1; i < rows.size(); ++i) {
        const QJsonArray row = rows.at(i).toArray();
        QTestData &data = QTest::newRow(qPrintable(row.at(0).toString()));
        for (const auto &value : row) {
            if (value.isArray())
                data << value.toVariant().toStringList();
            else if (value.isDouble())
                data << value.toInt();
            else
                data << value.toString();
        }
    }
}
