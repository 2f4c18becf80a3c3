#include "row_edits.h"

#include "field_edits.h"

#include <packagemodel/package_json.h>
#include <packagemodel/text_conversion.h>

#include <QCoreApplication>
#include <QMimeData>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>

namespace Editor {

using Tano::FieldPath;
using Zel::PackageInfoModel;
using Zel::PackageModel::Edit;
using Zel::PackageModel::Edits;
using Zel::PackageModel::FieldKind;
using Zel::PackageModel::FieldValue;

namespace {

constexpr QLatin1String editsFormat{"application/x-zel-package-edits+json"};

QString translated(const char *text) {
    return QCoreApplication::translate("Editor::RowActions", text);
}

QSet<QString> keysOf(const PackageInfoModel *package, const FieldPath &list) {
    QSet<QString> keys;
    for (const FieldValue &entry : Zel::PackageModel::entries(package, list))
        keys.insert(entryKey(entry));
    return keys;
}

void setEntryKey(FieldValue &entry, const QString &key) {
    const std::string name = Zel::toUtf8(key);
    if (auto *text = std::get_if<QString>(&entry))
        *text = key;
    else if (auto *behavior = std::get_if<Tano::BehaviorInfo>(&entry))
        behavior->setPath(name);
    else if (auto *dialog = std::get_if<Tano::DialogInfo>(&entry))
        dialog->setTopicName(name);
    else if (auto *service = std::get_if<Tano::PackageService>(&entry))
        service->name = name;
}

PastedRows entriesOf(FieldKind kind, const QMimeData &data) {
    PastedRows rows;
    if (data.hasFormat(editsFormat)) {
        const auto parsed = Zel::PackageModel::editsFromJson(data.data(editsFormat));
        rows.error = parsed.error;
        for (const Edit &edit : parsed.edits) {
            if (!edit.value || edit.value->index() != std::size_t(kind))
                return {{},
                        translated(QT_TRANSLATE_NOOP("Editor::RowActions",
                                                     "This list takes entries of another kind."))};
            rows.entries.append(*edit.value);
        }
    } else if (kind == FieldKind::Text) {
        for (const QString &line : linesOf(data.text()))
            rows.entries.append(line);
    }
    return rows;
}

// Lists of texts have no duplicates.
void dropKnownTexts(PastedRows &rows, QSet<QString> known) {
    QString repeated;
    const auto isKnown = [&](const FieldValue &entry) {
        const auto &text = std::get<QString>(entry);
        if (!known.contains(text)) {
            known.insert(text);
            return false;
        }
        repeated = text;
        return true;
    };
    rows.entries.erase(std::remove_if(rows.entries.begin(), rows.entries.end(), isKnown),
                       rows.entries.end());
    if (rows.entries.isEmpty() && !repeated.isEmpty())
        rows.error =
            translated(QT_TRANSLATE_NOOP("Editor::RowActions", "The list has “%1” already."))
                .arg(repeated);
}

} // namespace

QString entryKey(const FieldValue &entry) {
    if (const auto *text = std::get_if<QString>(&entry))
        return *text;
    if (const auto *behavior = std::get_if<Tano::BehaviorInfo>(&entry))
        return Zel::fromUtf8(behavior->path());
    if (const auto *dialog = std::get_if<Tano::DialogInfo>(&entry))
        return Zel::fromUtf8(dialog->topicName());
    if (const auto *service = std::get_if<Tano::PackageService>(&entry))
        return Zel::fromUtf8(service->name);
    return {};
}

// From last to first, so that the other paths stay valid.
Edits removals(const PackageInfoModel *package, const FieldPath &list, const QVector<int> &rows) {
    Edits edits;
    for (auto row = rows.rbegin(); row != rows.rend(); ++row)
        edits.append(removed(package, list, *row));
    return edits;
}

// Ordered so that each row has the same predecessors when it is moved as now, and thus the same
// path.
Edits moves(const PackageInfoModel *package, const FieldPath &list, const QVector<int> &rows,
            int before) {
    Edits edits;
    const auto move = [&](int row, int to) {
        if (row != to)
            edits.append(
                {Edit::Action::Move, Zel::PackageModel::itemPath(package, list, row), {}, to});
    };
    const auto firstAfter = std::lower_bound(rows.begin(), rows.end(), before);
    int to = before;
    for (auto row = std::make_reverse_iterator(firstAfter); row != rows.rend(); ++row)
        move(*row, --to);
    to = before;
    for (auto row = firstAfter; row != rows.end(); ++row)
        move(*row, to++);
    return edits;
}

Edits insertions(const PackageInfoModel *package, const FieldPath &list,
                 const QVector<FieldValue> &entries, int before) {
    QSet<QString> keys = keysOf(package, list);
    Edits edits;
    for (FieldValue entry : entries) {
        if (const QString key = entryKey(entry); !key.isEmpty()) {
            setEntryKey(entry,
                        freeName(key, [&](const QString &name) { return keys.contains(name); }));
            keys.insert(entryKey(entry));
        }
        edits.append({Edit::Action::Insert, list, entry, before++});
    }
    return edits;
}

QMimeData *newRowData(const FieldPath &list, const QVector<FieldValue> &entries,
                      const QStringList &lines) {
    Edits edits;
    for (const FieldValue &entry : entries)
        edits.append({Edit::Action::Insert, list, entry, int(edits.size())});
    auto *data = new QMimeData;
    data->setText(lines.join(u'\n'));
    data->setData(editsFormat, Zel::PackageModel::toJson(edits));
    return data;
}

PastedRows pastedRows(const PackageInfoModel *package, const FieldPath &list,
                      const QMimeData *data) {
    const auto form = Zel::PackageModel::formOf(list);
    PastedRows rows;
    if (form && data)
        rows = entriesOf(form->kind, *data);
    if (form && form->kind == FieldKind::Text)
        dropKnownTexts(rows, keysOf(package, list));
    if (rows.entries.isEmpty() && rows.error.isEmpty())
        rows.error = translated(
            QT_TRANSLATE_NOOP("Editor::RowActions", "The clipboard has nothing for this list."));
    return rows;
}

QStringList linesOf(const QString &text) {
    static const QRegularExpression lineBreak(QStringLiteral("\r\n|[\r\n\u2028\u2029]"));
    return text.split(lineBreak, Qt::SkipEmptyParts);
}

} // namespace Editor
