#include "field_merge.h"

#include "../fields/list_difference.h"

#include <packagemodel/package_json.h>
#include <packagemodel/text_conversion.h>

#include <QJsonArray>

#include <algorithm>

namespace Zel::PackageModel {
namespace {

using Tano::FieldPath;
using Values = Sides<QJsonValue>;

// An entry without its empty members.
QString filledContentOf(QJsonObject entry) {
    for (auto member = entry.begin(); member != entry.end();) {
        const bool isEmpty = *member == QJsonValue(QString()) ||
                             *member == QJsonValue(QJsonArray()) ||
                             *member == QJsonValue(QJsonObject());
        member = isEmpty ? entry.erase(member) : member + 1;
    }
    return contentOf(entry);
}

// A value as shown in a conflict; null if there is none.
QString shownText(const QJsonValue &value) {
    if (value.isString())
        return value.toString().isEmpty() ? QStringLiteral("") : value.toString();
    if (value.isBool())
        return printed(value.toBool());
    return value.isObject() ? filledContentOf(value.toObject()) : QString();
}

// A text that only equal items share.
QString textOf(const QJsonValue &item) {
    return item.isObject() ? contentOf(item.toObject()) : item.toString();
}

QStringList textsOf(const QJsonArray &items) {
    QStringList texts;
    for (const QJsonValue &item : items)
        texts += textOf(item);
    return texts;
}

// The values of an item on the three sides.
Values valuesOf(const Sides<QJsonArray> &lists, const MergedItem &item) {
    const auto value = [](const QJsonArray &items, int index) {
        return index == SequenceMatch::none ? QJsonValue(QJsonValue::Undefined) : items.at(index);
    };
    return {value(lists.base, item.base), value(lists.ours, item.ours),
            value(lists.theirs, item.theirs)};
}

// Whether a list has no duplicates, so that its texts are identified by value instead of index.
bool isSet(const FieldPath &path) {
    return path.steps().back().field == "permissions";
}

QStringList keysOf(const Sides<QJsonObject> &objects) {
    QStringList keys = objects.base.keys() + objects.ours.keys() + objects.theirs.keys();
    keys.removeDuplicates();
    return keys;
}

Values membersOf(const Sides<QJsonObject> &objects, const QString &key) {
    return mapped(objects, [&](const QJsonObject &object) { return object.value(key); });
}

Sides<QJsonObject> objectsOf(const Values &values) {
    return mapped(values, [](const QJsonValue &value) { return value.toObject(); });
}

void mergeCell(const Values &values, const FieldPath &path, FieldMerge &merge) {
    if (values.theirs == values.ours || values.theirs == values.base)
        return;
    if (values.ours != values.base)
        merge.addConflict(path, values);
    else if (values.theirs.isUndefined())
        merge.edits.append({Edit::Action::Remove, path});
    else
        merge.edits.append(
            {Edit::Action::Set, path, valueFromJson(formOf(path)->kind, values.theirs)});
}

// Merges an item that ours still has.
void mergeItem(const Values &values, const FieldPath &path, FieldMerge &merge) {
    if (values.theirs.isUndefined() && values.base.isUndefined())
        return; // added by ours
    if (values.theirs.isUndefined())
        merge.addConflict(path, values);
    else if (values.ours.isObject())
        mergeFields(objectsOf(values), path, merge);
    else
        mergeCell(values, path, merge);
}

// Records which items of theirs have another index in the merged list.
void notePlaces(const std::vector<MergedItem> &items, const FieldPath &path, FieldMerge &merge) {
    for (int i = 0; i < int(items.size()); ++i) {
        const int inTheirs = items[std::size_t(i)].theirs;
        if (inTheirs != SequenceMatch::none && inTheirs != i)
            merge.places[FieldPath(path).index(inTheirs)] = FieldPath(path).index(i);
    }
}

// Reports items that ours removed and theirs changed.
void reportRemoved(const Sides<QJsonArray> &lists, const ListMatches &matches,
                   const FieldPath &path, FieldMerge &merge) {
    for (int i = 0; i < lists.base.size(); ++i) {
        const MergedItem item{i, matches.ours.newIndex(i), matches.theirs.newIndex(i)};
        const Values values = valuesOf(lists, item);
        if (values.ours.isUndefined() && !values.theirs.isUndefined() &&
            values.theirs != values.base)
            merge.addConflict(path, values);
    }
}

void mergeList(const Sides<QJsonArray> &lists, const FieldPath &path, FieldMerge &merge) {
    const auto texts = mapped(lists, textsOf);
    const ListMatches matches = matchTexts(texts, ItemIdentity::Place);
    const auto items = mergedItems(matches, [&](const MergedItem &item) {
        return texts.ours.at(item.ours) != texts.base.at(item.base);
    });
    notePlaces(items, path, merge);
    const auto newValue = [&](int index) {
        return *valueFromJson(formOf(path)->kind,
                              lists.theirs.at(items[std::size_t(index)].theirs));
    };
    const auto mergeOne = [&](int, int index, const FieldPath &item, Edits &) {
        mergeItem(valuesOf(lists, items[std::size_t(index)]), item, merge);
    };
    appendEdits({path, matchOfOurs(items, int(lists.ours.size())), {}, {}, newValue, mergeOne},
                merge.edits);
    reportRemoved(lists, matches, path, merge);
}

void mergeSet(const Sides<QJsonArray> &lists, const FieldPath &path, FieldMerge &merge) {
    const auto texts = mapped(lists, textsOf);
    const QStringList merged = mergedTexts(texts);
    if (merged != texts.ours)
        appendTextSetEdits(texts.ours, merged, path, merge.edits);
}

// Texts by language that a manifest omits if they are empty.
constexpr const char *optionalTexts[]{"names", "descriptions"};

bool hasEmptyText(const QJsonObject &texts) {
    return std::any_of(texts.begin(), texts.end(), [](const QJsonValue &text) {
        return text.isString() && text.toString().isEmpty();
    });
}

QJsonObject withoutEmptyTexts(QJsonObject texts) {
    for (auto text = texts.begin(); text != texts.end();)
        text = text->toString().isEmpty() ? texts.erase(text) : text + 1;
    return texts;
}

bool isOptionalText(const FieldPath &path) {
    return std::any_of(std::begin(optionalTexts), std::end(optionalTexts),
                       [&](const char *name) { return path.steps().back().field == name; });
}

} // namespace

QJsonObject savedFields(QJsonObject owner) {
    for (const char *name : optionalTexts) {
        const QJsonObject texts = owner.value(QLatin1String(name)).toObject();
        if (hasEmptyText(texts))
            owner.insert(QLatin1String(name), withoutEmptyTexts(texts));
    }
    return owner;
}

void FieldMerge::addConflict(const FieldPath &path, const Values &values) {
    const auto texts = mapped(values, shownText);
    conflicts.append({path, texts.base, texts.ours, texts.theirs});
}

FieldPath FieldMerge::placeOf(const FieldPath &pathInTheirs) const {
    FieldPath place;
    for (const FieldPath::Step &step : pathInTheirs.steps()) {
        place.field(step.field);
        for (const FieldPath::Selector &selector : step.selectors)
            place.key(selector.text);
        if (const auto found = places.find(place); found != places.end())
            place = found->second;
    }
    return place;
}

void mergeFields(const Sides<QJsonObject> &owners, const FieldPath &path, FieldMerge &merge) {
    for (const QString &name : keysOf(owners))
        mergeValue(membersOf(owners, name), FieldPath(path).field(toUtf8(name)), merge);
}

void mergeValue(const Values &values, const FieldPath &path, FieldMerge &merge) {
    if (values.theirs == values.ours)
        return;
    const auto isAny = [&](QJsonValue::Type type) {
        return values.base.type() == type || values.ours.type() == type ||
               values.theirs.type() == type;
    };
    if (isAny(QJsonValue::Array)) {
        const auto lists = mapped(values, [](const QJsonValue &side) { return side.toArray(); });
        isSet(path) ? mergeSet(lists, path, merge) : mergeList(lists, path, merge);
    } else if (isAny(QJsonValue::Object)) {
        auto objects = objectsOf(values);
        if (isOptionalText(path))
            objects = mapped(objects, withoutEmptyTexts);
        for (const QString &key : keysOf(objects))
            mergeValue(membersOf(objects, key), FieldPath(path).key(toUtf8(key)), merge);
    } else {
        mergeCell(values, path, merge);
    }
}

} // namespace Zel::PackageModel
