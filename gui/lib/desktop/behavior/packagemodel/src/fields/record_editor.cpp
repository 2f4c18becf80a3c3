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

    Tano::PackageInfo written;
    PackageInfoModel package;
    bool isCompleted; // the model has added description languages
    bool editsVersion = false;
    std::set<std::string> editedLanguages; // the description languages that edits concern
};

RecordEditor::RecordEditor(const Tano::PackageInfo &record)
    : m_data(std::make_unique<Data>(record)) {
}

RecordEditor::~RecordEditor() = default;

PackageInfoModel *RecordEditor::package() const {
    return &m_data->package;
}

PackageModel::Applied RecordEditor::apply(const PackageModel::Edits &edits) {
    PackageModel::Applied applied = PackageModel::apply(&m_data->package, edits);
    if (!applied.error.isEmpty())
        return applied;
    for (const PackageModel::Edit &edit : edits) {
        const auto &step = edit.path.steps().front();
        m_data->editsVersion = m_data->editsVersion || step.field == "version";
        if (step.field != "descriptionLanguages")
            continue;
        if (edit.action == PackageModel::Edit::Action::Move)
            m_data->isCompleted = false; // the order of all is asked for
        if (!step.selectors.empty())
            m_data->editedLanguages.insert(step.selectors.front().text);
        else if (const auto *code = edit.value ? std::get_if<QString>(&*edit.value) : nullptr)
            m_data->editedLanguages.insert(toUtf8(*code));
    }
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
