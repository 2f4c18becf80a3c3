#pragma once

#include <tano/manifest_reader.h>

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>

#include <tuple>
#include <vector>

namespace ZelPackage {

/// Known findings, which are not reported: how many of them each field of each manifest has, so
/// that lines may move.
///
/// As a file it is JSON, which schema/baseline.schema.json describes; manifests are named relative
/// to its folder.
class Baseline {
public:
    struct Entry {
        QString rule;
        QString field;
        int count;
    };

    /// An empty baseline for the file of that name.
    explicit Baseline(const QString &file);

    /// Adds the findings that the file lists. Returns false if it cannot be read, and sets `error`
    /// and, in a malformed file, its position.
    [[nodiscard]] bool read(QString &error, Tano::SourcePosition &position);
    /// Writes the file; returns the reason if that fails.
    [[nodiscard]] QString write() const;

    void add(const QString &manifest, const QString &rule, const QString &field);
    /// Removes one such finding; returns false if there is none.
    bool take(const QString &manifest, const QString &rule, const QString &field);
    /// The findings of a manifest that are left.
    std::vector<Entry> left(const QString &manifest) const;
    /// The manifests with findings left that do not exist, named as in the file.
    QStringList missingManifests() const;

    int size() const;

private:
    using Key = std::tuple<QString, QString, QString>; // manifest, rule, field

    Key keyOf(const QString &manifest, const QString &rule, const QString &field) const;

    QString m_file;
    QString m_folder;
    QMap<Key, int> m_counts;
};

} // namespace ZelPackage
