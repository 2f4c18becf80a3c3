#include <packagemodel/text_exchange.h>

#include "../fields/field_words.h"
#include "text_places.h"

#include <packagemodel/package_coverage.h>
#include <packagemodel/record_editor.h>
#include <packagemodel/text_conversion.h>

#include <QSet>

#include <algorithm>
#include <numeric>

namespace Zel::PackageModel {
namespace {

QString reasonOf(TextOutcome outcome) {
    switch (outcome) {
    case TextOutcome::Superseded:
        return inWords(QT_TRANSLATE_NOOP("Zel::PackageModel",
                                         "A later unit has another text for this field."));
    case TextOutcome::FieldGone:
        return inWords(
            QT_TRANSLATE_NOOP("Zel::PackageModel", "The package no longer has this behavior."));
    case TextOutcome::SourceChanged:
        return inWords(QT_TRANSLATE_NOOP("Zel::PackageModel",
                                         "The source text has changed since the export."));
    case TextOutcome::ItemMissing:
        return inWords(
            QT_TRANSLATE_NOOP("Zel::PackageModel", "An item before this one has no text yet."));
    default:
        return {};
    }
}

// Tools reformat white space, and some drop carriage returns.
QString withoutSpace(QString text) {
    const auto end = std::remove_if(text.begin(), text.end(), [](QChar c) { return c.isSpace(); });
    text.truncate(int(end - text.begin()));
    return text;
}

bool hasTarget(const TextUnit &unit) {
    return !unit.target.isEmpty() && !(unit.isUntranslated && unit.target == unit.source);
}

// Creates the edits for units, each based on the result of the previous ones.
class TextImporter {
public:
    TextImporter(const PackageInfoModel &package, const QVector<TextUnit> &units, bool force)
        : m_package(package)
        , m_owners(package)
        , m_units(units)
        , m_force(force) {
        for (const RobotLanguage &language : languages(&package))
            m_codes.insert(bcp47(language.isoCode()).toLower(), language.isoCode());
        for (int i = 0; i < units.size(); ++i) {
            m_places.push_back(textPlace(units.at(i).path));
            m_fields.push_back(fromUtf8(units.at(i).path.toString()));
            if (hasTarget(units.at(i)))
                m_last.insert(m_fields.back(), i);
        }
    }

    TextImport result();

private:
    std::vector<int> inOrder() const;
    TextOutcome import(int index, QString &reason);
    QStringList &textsOf(const TextPlace &place, const QStringList &present);
    bool hasOtherSource(const TextUnit &unit, const TextPlace &place) const;
    void set(const TextPlace &place, const TextUnit &unit, QStringList &texts);

    const PackageInfoModel &m_package;
    const TextOwners m_owners;
    const QVector<TextUnit> &m_units;
    const bool m_force;
    QHash<QString, QString> m_codes; // by language tag
    std::vector<std::optional<TextPlace>> m_places;
    std::vector<QString> m_fields;       // of the units
    QHash<QString, int> m_last;          // by field, the last unit with a target
    QHash<QString, QStringList> m_texts; // by field, with the edits applied
    QSet<QString> m_described;
    Edits m_languages;
    Edits m_edits;
};

// Lists grow from their start, whatever the order of the units.
std::vector<int> TextImporter::inOrder() const {
    std::vector<int> order(std::size_t(m_units.size()));
    std::iota(order.begin(), order.end(), 0);
    const auto itemOf = [&](int unit) {
        const auto &place = m_places[std::size_t(unit)];
        return place ? place->index : 0;
    };
    std::stable_sort(order.begin(), order.end(),
                     [&](int a, int b) { return itemOf(a) < itemOf(b); });
    return order;
}

QStringList &TextImporter::textsOf(const TextPlace &place, const QStringList &present) {
    const QString field = fromUtf8(place.fieldPath().toString());
    auto texts = m_texts.find(field);
    return texts == m_texts.end() ? *m_texts.insert(field, present) : *texts;
}

bool TextImporter::hasOtherSource(const TextUnit &unit, const TextPlace &place) const {
    const QString code = m_codes.value(unit.sourceLanguage.toLower().replace(u'_', u'-'));
    const auto sources = m_owners.texts(place, code);
    const QString source = sources ? sources->value(place.index) : QString();
    return withoutSpace(source.isEmpty() ? noSourceText : source) != withoutSpace(unit.source);
}

void TextImporter::set(const TextPlace &place, const TextUnit &unit, QStringList &texts) {
    const bool isNewItem = place.kind->isList && place.index == texts.size();
    m_edits.append({isNewItem ? Edit::Action::Insert : Edit::Action::Set,
                    isNewItem ? place.fieldPath() : unit.path, FieldValue(unit.target),
                    isNewItem ? place.index : 0});
    if (place.index < texts.size())
        texts[place.index] = unit.target;
    else
        texts.append(unit.target);
    if (m_described.contains(place.code) || place.code.isEmpty())
        return;
    m_described.insert(place.code);
    const auto described = m_package.descriptionLanguages();
    if (!m_package.hasLanguageDescription(Language::languageInUse(place.code)))
        m_languages.append({Edit::Action::Insert, Tano::FieldPath().field("descriptionLanguages"),
                            FieldValue(place.code),
                            int(described.size()) + int(m_languages.size())});
}

TextOutcome TextImporter::import(int index, QString &reason) {
    const TextUnit &unit = m_units.at(index);
    const auto &place = m_places[std::size_t(index)];
    if (!place)
        return TextOutcome::FieldGone;
    if (!hasTarget(unit))
        return TextOutcome::Untranslated;
    const int last = m_last.value(m_fields[std::size_t(index)]);
    if (m_units.at(last).target != unit.target)
        return TextOutcome::Superseded;
    const auto present = m_owners.texts(*place, place->code);
    if (!present)
        return TextOutcome::FieldGone;
    QStringList &texts = textsOf(*place, *present);
    if (texts.value(place->index) == unit.target)
        return TextOutcome::Unchanged;
    if (!m_force && hasOtherSource(unit, *place))
        return TextOutcome::SourceChanged;
    if (place->index > texts.size())
        return TextOutcome::ItemMissing;
    reason = place->kind->scriptError(unit.target);
    if (!reason.isEmpty())
        return TextOutcome::Malformed;
    set(*place, unit, texts);
    return TextOutcome::Imported;
}

TextImport TextImporter::result() {
    TextImport result;
    result.units.resize(m_units.size());
    for (const int index : inOrder()) {
        QString reason;
        const TextOutcome outcome = import(index, reason);
        if (outcome == TextOutcome::Malformed)
            reason = inWords(QT_TRANSLATE_NOOP("Zel::PackageModel", "Malformed speech script: %1"))
                         .arg(reason);
        else
            reason = reasonOf(outcome);
        result.units[index] = {outcome, reason};
        if (outcome == TextOutcome::Malformed && result.error.isEmpty())
            result.error =
                fromUtf8(m_units.at(index).path.toString()) % QStringLiteral(": ") % reason;
    }
    if (result.error.isEmpty())
        result.edits = m_languages.isEmpty() ? m_edits : m_languages + m_edits;
    return result;
}

template<typename Apply>
TextImport importTo(const PackageInfoModel *package, const QVector<TextUnit> &units,
                    const TextImportOptions &options, Apply apply) {
    if (!package) {
        TextImport nothing;
        nothing.error =
            inWords(QT_TRANSLATE_NOOP("Zel::PackageModel", "There is no package to edit."));
        return nothing;
    }
    TextImport result = TextImporter(*package, units, options.force).result();
    if (result.error.isEmpty() && !options.dryRun)
        result.error = apply(result.edits).error;
    return result;
}

} // namespace

TextImport importTexts(PackageInfoModel *package, const QVector<TextUnit> &units,
                       const TextImportOptions &options) {
    return importTo(package, units, options,
                    [&](const Edits &edits) { return apply(package, edits); });
}

TextImport importTexts(RecordEditor &editor, const QVector<TextUnit> &units,
                       const TextImportOptions &options) {
    return importTo(editor.package(), units, options,
                    [&](const Edits &edits) { return editor.apply(edits); });
}

} // namespace Zel::PackageModel
