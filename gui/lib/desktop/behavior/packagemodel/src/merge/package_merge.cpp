#include <packagemodel/package_merge.h>

#include "../fields/field_tables.h"
#include "entry_merge.h"
#include "kept_merge.h"

#include <packagemodel/record_editor.h>

#include <algorithm>
#include <array>

namespace Zel::PackageModel {
namespace {

using Tano::PackageInfo;

// A list of languages in a record. Unlike in a model, editing it has no side effects on description
// languages and topics.
struct LanguageList {
    const std::vector<std::string> &(PackageInfo::*all)() const;
    void (PackageInfo::*insert)(int index, const std::string &code);
    void (PackageInfo::*remove)(const std::string &code);
    bool (PackageInfo::*move)(int from, int to);
};

constexpr std::array languageLists{
    LanguageList{&PackageInfo::supportedLanguages, &PackageInfo::insertSupportedLanguage,
                 &PackageInfo::removeSupportedLanguage, &PackageInfo::moveSupportedLanguage},
    LanguageList{&PackageInfo::descriptionLanguages, &PackageInfo::insertDescriptionLanguage,
                 &PackageInfo::removeDescriptionLanguage, &PackageInfo::moveDescriptionLanguage}};

void setLanguages(const LanguageList &list, const QStringList &wanted, PackageInfo &record) {
    const std::vector<std::string> before = (record.*list.all)();
    for (const std::string &code : before) {
        if (!wanted.contains(fromUtf8(code)))
            (record.*list.remove)(code);
    }
    for (int i = 0; i < wanted.size(); ++i) {
        const std::string code = toUtf8(wanted.at(i));
        const std::vector<std::string> &codes = (record.*list.all)();
        const auto present = std::find(codes.begin(), codes.end(), code);
        const int index = int(present - codes.begin());
        if (present == codes.end())
            (record.*list.insert)(i, code);
        else if (index != i)
            (record.*list.move)(index, i);
    }
}

void mergeLanguages(const Sides<PackageInfo> &records, PackageInfo &merged) {
    for (const LanguageList &list : languageLists) {
        const auto codes = mapped(records, [&](const PackageInfo &record) {
            QStringList texts;
            for (const std::string &code : (record.*list.all)())
                texts += fromUtf8(code);
            return texts;
        });
        setLanguages(list, mergedTexts(codes), merged);
    }
}

void adopt(const FieldMerge::Adopted &adopted, PackageInfo &record) {
    if (const auto *behavior = std::get_if<Tano::BehaviorInfo>(&adopted.record))
        record.replaceBehavior(adopted.index, *behavior);
    else if (const auto *dialog = std::get_if<Tano::DialogInfo>(&adopted.record))
        record.replaceDialog(adopted.index, *dialog);
    else if (const auto *service = std::get_if<Tano::PackageService>(&adopted.record))
        record.replaceService(adopted.index, *service);
}

// Merges all fields except the lists of languages.
FieldMerge mergePackages(const Sides<PackageInfoModel *> &packages) {
    FieldMerge merge;
    for (const auto &row : packageFields()) {
        if (row->summaries(*packages.ours)) {
            mergeEntries(*row, packages, merge);
            continue;
        }
        const auto values =
            mapped(packages, [&](PackageInfoModel *side) { return row->toJson(*side); });
        const bool isLanguages = row->kind() == FieldKind::Text && values.ours.isArray();
        if (!isLanguages)
            mergeValue(values, FieldPath().field(row->name()), merge);
    }
    return merge;
}

} // namespace

Merged merge(const PackageInfo &base, const PackageInfo &ours, const PackageInfo &theirs) {
    if (theirs == base || theirs == ours)
        return {ours, {}, {}};
    if (ours == base)
        return {theirs, {}, {}};
    RecordEditor editor(ours);
    PackageInfoModel baseModel(base);
    PackageInfoModel theirsModel(theirs);
    FieldMerge merge = mergePackages({&baseModel, editor.package(), &theirsModel});
    const Applied applied = editor.apply(merge.edits);
    if (!applied.error.isEmpty())
        return {ours, {}, applied.error};
    PackageInfo merged = editor.record();
    for (const FieldMerge::Adopted &each : merge.adopted)
        adopt(each, merged);
    const Sides<PackageInfo> records{base, ours, theirs};
    mergeLanguages(records, merged);
    mergeKeptContent(records, merge, merged);
    return {withConflictComments(merged, merge.conflicts), merge.conflicts, {}};
}

} // namespace Zel::PackageModel
