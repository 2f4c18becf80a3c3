#include "field_completion.h"

#include "console/text_layout.h"
#include "manifest/manifest_source.h"

#include <packagemodel/package_fields.h>
#include <packagemodel/package_info_model.h>

#include <algorithm>

namespace ZelPackage {
namespace {

using Tano::FieldPath;
using Zel::PackageModel::FieldKind;

// Candidates are printed one per line, so they cannot contain a line feed.
bool isPrintable(const QString &text) {
    const auto codes = text.toUcs4();
    return std::none_of(codes.begin(), codes.end(), isUnprintable);
}

// "behaviors[+]." or "supportedLanguages[+]=", offered after a list.
QString additionTo(const FieldPath &list) {
    const FieldPath end = FieldPath(list).end();
    const auto form = Zel::PackageModel::formOf(end);
    if (!form)
        return {};
    return Zel::fromUtf8(end.toString()) % (form->kind > FieldKind::Version ? u'.' : u'=');
}

} // namespace

QStringList fieldCompletions(const QString &file, const QString &typed, FieldUse use) {
    ManifestError error;
    const auto manifest = isStandardStream(file) ? std::nullopt : readManifest(file, error);
    const Zel::PackageInfoModel package(manifest ? manifest->package : Tano::PackageInfo());

    QStringList result;
    const auto add = [&](const QString &candidate) {
        if (candidate.startsWith(typed) && isPrintable(candidate))
            result += candidate;
    };
    const auto fields = Zel::PackageModel::fields(&package);
    for (const Zel::PackageModel::Field &field : fields) {
        const QString path = Zel::fromUtf8(field.path.toString());
        QString candidate = use == FieldUse::Set ? QString(path % u'=') : path;
        for (FieldPath part = field.path.parent(); !part.isEmpty(); part = part.parent()) {
            const auto length = Zel::fromUtf8(part.toString()).size();
            if (length == typed.size() - 1 && use == FieldUse::Set)
                add(additionTo(part));
            if (length < typed.size())
                break;
            candidate = path.left(length + 1);
        }
        add(candidate);
    }
    result.removeDuplicates();
    return result;
}

} // namespace ZelPackage
