#pragma once

#include <packagemodel/package_edits.h>

#include <tano/package_info.h>

#include <memory>

namespace Zel {

/// Edits the record of a manifest, for programs that read a manifest and write it again.
///
/// A model completes its record: the version gets three fields, and every supported language
/// becomes a description language. The editor reverts these changes unless an edit asks for them,
/// so that a manifest keeps its author's wording.
///
/// ```cpp
/// RecordEditor editor(record);
/// const QString error = editor.apply(changes).error;
/// const Tano::PackageInfo edited = editor.record();
/// if (error.isEmpty() && !edited.saveToManifestFile(fileName.toStdString()))
///     showMessage(QString::fromStdString(edited.errorString()));
/// ```
class PACKAGEMODEL_EXPORT RecordEditor {
public:
    /// Edits a copy of `record`.
    explicit RecordEditor(const Tano::PackageInfo &record);
    ~RecordEditor();
    RecordEditor(const RecordEditor &) = delete;
    RecordEditor &operator=(const RecordEditor &) = delete;

    /// The package that apply() edits; owned by the editor.
    PackageInfoModel *package() const;

    /// Applies all edits or none; see PackageModel::apply().
    PackageModel::Applied apply(const PackageModel::Edits &edits);

    /// The record with the applied edits.
    Tano::PackageInfo record() const;

private:
    struct Data;
    std::unique_ptr<Data> m_data;
};

} // namespace Zel
