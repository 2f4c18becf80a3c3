#include <packagemodel/record_editor.h>

#include <packagemodel/package_info_model.h>

#include <algorithm>
#include <set>

namespace Zel {
namespace {

bool contains(const std::vector<std::string> &codes, const std::string &code) {
    return std::find(codes.begin(), codes.end(), code) != codes.end();
}

} // namespace

struct RecordEditor::Data {
    explicit Data(const Tano::PackageInfo &record)
        : written(record)
        , package(record)
        , isCompleted(package.packageInfo().descriptionLanguages() !=
                      record.descriptionLanguages()) {}

    // State that an edit of the whole package may change.
    struct Before {
        std::string version;
        std::vector<std::string> descriptionLanguages;
    };

    // Records what an edit requests. An edit of the whole package requests what it adds.
    void note(const PackageModel::Edit &edit, const Before &before) {
        const auto *whole = edit.value ? std::get_if<Tano::PackageInfo>(&*edit.value) : nullptr;
        if (whole) {
            editsVersion = editsVersion || whole->version() != before.version;
            for (const std::string &code : whole->descriptionLanguages()) {
                if (!contains(before.descriptionLanguages, code))
                    editedLanguages.insert(code);
            }
        }
        if (edit.path.isEmpty())
            return;
        const auto &step = edit.path.steps().front();
        editsVersion = editsVersion || step.field == "version";
        if (step.field != "descriptionLanguages")
            return;
        if (edit.action == PackageModel::Edit::Action::Move)
            isCompleted = false; // the order of all is given explicitly
        if (!step.selectors.empty())
            editedLanguages.insert(step.selectors.front().text);
        else if (const auto *code = edit.value ? std::get_if<QString>(&*edit.value) : nullptr)
            editedLanguages.insert(toUtf8(*code));
    }

    Tano::PackageInfo written;
    PackageInfoModel package;
    bool isCompleted; // whether the model added description languages
    bool editsVersion = false;
    std::set<std::string> editedLanguages; // description languages that edits refer to
};

RecordEditor::RecordEditor(const Tano::PackageInfo &record)
    : m_data(std::make_unique<Data>(record)) {
}

RecordEditor::~RecordEditor() = default;

PackageInfoModel *RecordEditor::package() const {
    return &m_data->package;
}

PackageModel::Applied RecordEditor::apply(const PackageModel::Edits &edits) {
    // Not a copy of the record, which the first edit would then have to detach.
    const Tano::PackageInfo &record = m_data->package.packageInfo();
    const Data::Before before{record.version(), record.descriptionLanguages()};
    PackageModel::Applied applied = PackageModel::apply(&m_data->package, edits);
    if (!applied.error.isEmpty())
        return applied;
    for (const PackageModel::Edit &edit : edits)
        m_data->note(edit, before);
    return applied;
}

Tano::PackageInfo RecordEditor::record() const {
    Tano::PackageInfo record = m_data->package.packageInfo();
    if (!m_data->editsVersion)
        record.setVersion(m_data->written.version());
    if (!m_data->isCompleted)
        return record;
    const std::vector<std::string> codes = record.descriptionLanguages();
    for (const std::string &code : codes) {
        if (!contains(m_data->written.descriptionLanguages(), code) &&
            m_data->editedLanguages.count(code) == 0)
            record.removeDescriptionLanguage(code);
    }
    return record;
}

} // namespace Zel
