#include "change_list.h"

#include <packagemodel/change_words.h>
#include <packagemodel/package_difference.h>
#include <packagemodel/package_info_model.h>
#include <packagemodel/text_conversion.h>

#include <tano/kept_content.h>

#include <QCoreApplication>

#include <map>
#include <utility>

namespace Editor {

using Tano::FieldPath;
using Zel::PackageInfoModel;

namespace {

QString translated(const char *text) {
    return QCoreApplication::translate("Editor::ChangeList", text);
}

// The places of comments and unknown content by their text as XML.
std::multimap<QString, FieldPath> keptContent(const Tano::PackageInfo &record) {
    std::multimap<QString, FieldPath> places;
    if (Tano::hasComment(record, {})) {
        for (const Tano::KeptComment &comment : Tano::comments(record))
            places.emplace(QStringLiteral("<!--%1-->").arg(Zel::fromUtf8(comment.text)),
                           comment.before);
    }
    for (const Tano::KeptNode &node : Tano::keptNodes(record))
        places.emplace(Zel::fromUtf8(node.xml).trimmed(), node.parentPath);
    return places;
}

// Adds a line for each entry that is only in the first map.
void addSurplus(const std::multimap<QString, FieldPath> &places,
                std::multimap<QString, FieldPath> others, const char *line, ChangeList &changes) {
    for (const auto &[xml, place] : places) {
        if (const auto other = others.find(xml); other != others.end()) {
            others.erase(other);
            continue;
        }
        changes.lines.append(translated(line).arg(Zel::PackageModel::excerpt(xml)));
        changes.paths.append(place);
    }
}

} // namespace

ChangeList changesBetween(const PackageInfoModel &from, const PackageInfoModel &to) {
    ChangeList changes;
    PackageInfoModel scratch(from); // lacks empty texts
    const auto edits = Zel::PackageModel::edits(&scratch, &to);
    for (const auto &edit : edits)
        changes.paths.append(edit.path);
    Zel::PackageModel::visitChanges(
        &scratch, edits, [&](const QString &line) { changes.lines.append(line.simplified()); });
    scratch.syncRecord();
    const auto before = keptContent(scratch.packageInfo());
    const auto after = keptContent(to.packageInfo());
    addSurplus(before, after, QT_TRANSLATE_NOOP("Editor::ChangeList", "%1 removed"), changes);
    addSurplus(after, before, QT_TRANSLATE_NOOP("Editor::ChangeList", "%1 added"), changes);
    return changes;
}

ChangeList changesOf(PackageInfoModel *package, const Zel::PackageModel::Edits &edits) {
    package->syncRecord();
    PackageInfoModel after(package->packageInfo()); // an assigned copy would lack empty texts
    const auto applied = Zel::PackageModel::apply(&after, edits);
    ChangeList changes;
    if (applied.error.isEmpty())
        changes = changesBetween(*package, after);
    changes.error = applied.error;
    return changes;
}

} // namespace Editor
