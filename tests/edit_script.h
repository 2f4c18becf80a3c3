#pragma once

#include "text.h"

#include <packagemodel/package_edits.h>
#include <packagemodel/package_info_model.h>

#include <QSet>
#include <QStringBuilder>

#include <algorithm>

/// Reads and prints fields and edits of packages as lines of text.
namespace EditScript {

using namespace Zel;
using namespace Zel::PackageModel;
using Tano::FieldPath;

inline FieldPath path(const char *printedPath) {
    const auto parsed = FieldPath::parse(printedPath);
    if (!parsed)
        qFatal("not a path: %s", printedPath);
    return *parsed;
}

inline QByteArray listing(const PackageInfoModel &package) {
    QString lines;
    for (const Field &field : fields(&package))
        lines += fromUtf8(field.path.toString()) % u'=' % printed(field.value) % text("  # ") %
                 field.label % text(": ") % label(field.path) % u'\n';
    return lines.toUtf8();
}

// The differences between the caches of a package and those of a new one with the same record.
inline QByteArray cacheDifference(const PackageInfoModel &package) {
    const auto lines = [](const PackageInfoModel &of) {
        const QStringList all = QString::fromUtf8(listing(of)).split(u'\n');
        return QSet<QString>(all.begin(), all.end());
    };
    const QSet<QString> live = lines(package);
    const QSet<QString> made = lines(PackageInfoModel(package.packageInfo()));
    QStringList differing = ((live - made) + (made - live)).values();
    // A new model uses every supported language for descriptions.
    for (const RobotLanguage &language : package.supportedLanguages())
        differing.removeAll(text("descriptionLanguages[%1]=%1  # Description language: "
                                 "Description language “%2”")
                                .arg(language.isoCode(), language.uiName()));
    return differing.join(u'\n').toUtf8();
}

// The fields of a package without their order, except where differences preserve it: texts are
// sorted by language code.
inline QList<QByteArray> orderedListing(const PackageInfoModel &package) {
    QList<QByteArray> lines = listing(package).split('\n');
    std::sort(lines.begin(), lines.end());
    return listing(PackageInfoModel(package.packageInfo())).split('\n') + lines;
}

// An edit is a line with the action, the path, the index if any, and the value or the path of a
// behavior.
inline const QStringList &actions() {
    static const QStringList names{text("set"), text("insert"), text("remove"), text("move")};
    return names;
}

inline bool hasIndex(const Edit &edit) {
    return edit.action == Edit::Action::Insert || edit.action == Edit::Action::Move;
}

inline QString script(const Edits &edits) {
    QString lines;
    for (const Edit &edit : edits) {
        lines += actions().at(int(edit.action)) % u' ' % fromUtf8(edit.path.toString());
        if (hasIndex(edit))
            lines += u' ' % QString::number(edit.index);
        const FieldValue value = edit.value.value_or(QString());
        if (const auto *behavior = std::get_if<Tano::BehaviorInfo>(&value))
            lines += u' ' % fromUtf8(behavior->path());
        else if (edit.value)
            lines += u' ' % printed(value);
        lines += u'\n';
    }
    return lines;
}

inline Edit editOf(const QString &line) {
    QStringList words = line.split(u' ');
    const auto action = Edit::Action(actions().indexOf(words.takeFirst()));
    Edit edit{action, path(words.takeFirst().toUtf8().constData())};
    if (hasIndex(edit))
        edit.index = words.takeFirst().toInt();
    const QString value = words.join(u' ');
    Tano::BehaviorInfo behavior;
    behavior.setPath(toUtf8(value));
    const std::string &field = edit.path.steps().back().field;
    if (edit.path == path("behaviors"))
        edit.value = behavior;
    else if (field == "version" || field.find("BodyVersion") != std::string::npos)
        edit.value = SoftwareVersionUtils::fromString(value);
    else
        edit.value = value;
    return edit;
}

inline Edits editsOf(const QString &lines) {
    Edits edits;
    for (const QString &line : lines.split(u'\n')) {
        if (!line.isEmpty())
            edits.append(editOf(line));
    }
    return edits;
}

} // namespace EditScript
