#pragma once

#include <packagemodel/package_edits.h>

#include <tano/package_info.h>

#include <memory>

namespace Zel {

/// Edits a record for a program that reads a manifest and writes it again.
///
/// A model completes the record that it is made from: the version gets three fields, and every
/// supported language becomes a description language. The editor takes that back where no edit asks
/// for it, so that a manifest keeps what its author wrote.
///
/// ```
/// RecordEditor editor(record);
/// const auto applied = editor.apply(edits);
/// if (applied.error.isEmpty())
///     editor.record().saveToManifestFile(fileName);
/// ```
class PACKAGEMODEL_EXPORT RecordEditor {
public:
    explicit RecordEditor(const Tano::PackageInfo &record);
    ~RecordEditor();
    RecordEditor(const RecordEditor &) = delete;
    RecordEditor &operator=(const RecordEditor &) = delete;

    /// The package to be edited by apply(); owned by the editor.
    PackageInfoModel *package() const;

    /// Applies all edits, or none; see PackageModel::apply().
    PackageModel::Applied apply(const PackageModel::Edits &edits);

    /// The record with the edits that were applied.
    Tano::PackageInfo record() const;

private:
    struct Data;
    std::unique_ptr<Data> m_data;
};

} // namespace Zel
