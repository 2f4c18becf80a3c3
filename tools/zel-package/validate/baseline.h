#pragma once

#include <tano/manifest_reader.h>

#include <QMap>
#include <QString>
#include <QStringList>

#include <tuple>
#include <vector>

namespace ZelPackage {

/// Known findings, which are not reported. Stores the number of findings per field and manifest
/// instead of lines, which may move.
///
/// The file is JSON as described by schema/baseline.schema.json; manifests are named relative to
/// its folder.
class Baseline {
public:
    struct Entry {
        QString rule;
        QString field;
        int count;
    };

    /// An empty baseline to be stored in this file.
    explicit Baseline(const QString &file);

    /// Adds the findings in the file. On failure, returns false and sets `error` and, for a
    /// malformed file, its position.
    [[nodiscard]] bool read(QString &error, Tano::SourcePosition &position);
    /// Writes the file; on failure, returns the reason.
    [[nodiscard]] QString write() const;

    void add(const QString &manifest, const QString &rule, const QString &field);
    /// Removes one matching finding; returns false if there is none.
    bool take(const QString &manifest, const QString &rule, const QString &field);
    /// The remaining findings of a manifest.
    std::vector<Entry> left(const QString &manifest) const;
    /// Manifests with remaining findings that do not exist, as named in the file.
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
