#include "text_places.h"

#include "../behavior_paths.h"
#include <packagemodel/package_scripts.h>
#include <packagemodel/text_conversion.h>
#include <packagemodel/text_states.h>

#include <zel/language.h>

#include <algorithm>

namespace Zel::PackageModel {
namespace {

template<typename Model, const Language::LocalizedStrings &(Model::*all)() const>
QStringList single(const Model &model, const RobotLanguage &language) {
    for (const auto &[text, each] : (model.*all)()) {
        if (each == language)
            return {text};
    }
    return {};
}

template<QStringList (BehaviorInfoModel::*all)(const RobotLanguage &) const>
QStringList listed(const BehaviorInfoModel &behavior, const RobotLanguage &language) {
    return (behavior.*all)(language);
}

using P = PackageInfoModel;
using B = BehaviorInfoModel;

// Reads the texts of a kind from an owner.
template<typename Owner>
using Texts = QStringList (*TextKind::*)(const Owner &owner, const RobotLanguage &language);

template<typename Owner>
void appendTexts(const Owner &owner, Texts<Owner> textsOf, const Tano::FieldPath &path,
                 const RobotLanguage &language, const RobotLanguage &sourceLanguage,
                 QVector<TranslatableText> &all) {
    for (const TextKind &kind : textKinds()) {
        if (!(kind.*textsOf))
            continue;
        const QStringList sources = (kind.*textsOf)(owner, sourceLanguage);
        const QStringList targets = (kind.*textsOf)(owner, language);
        for (int i = 0; i < std::max(sources.size(), targets.size()); ++i) {
            const QString source = sources.value(i);
            const QString target = targets.value(i);
            if (!source.isEmpty() || !target.isEmpty())
                all.append(
                    {TextPlace{path, &kind, language.isoCode(), i}.path(), source, target, {}});
        }
    }
}

// Whether a step selects one behavior: [PATH], or [PATH][N] for one of several with this path.
bool isBehavior(const Tano::FieldPath::Step &step) {
    const auto &selectors = step.selectors;
    return step.field == "behaviors" && !selectors.empty() && !selectors.front().appends &&
           (selectors.size() == 1 || (selectors.size() == 2 && selectors.back().toIndex()));
}

} // namespace

bool TextKind::isMarkup(const QString &text) const {
    return isScript && text.contains(u'<');
}

QString TextKind::scriptError(const QString &text) const {
    return isMarkup(text) ? plainTextOf(text).error : QString();
}

const std::vector<TextKind> &textKinds() {
    static const std::vector<TextKind> kinds{
        {"names", false, true, &single<P, &P::names>, &single<B, &B::names>},
        {"descriptions", false, true, &single<P, &P::descriptions>, &single<B, &B::descriptions>},
        {"tags", true, false, nullptr, &listed<&B::tags>},
        {"triggerSentences", true, true, nullptr, &listed<&B::triggerSentences>},
        {"loadingResponses", true, true, nullptr, &listed<&B::loadingResponses>}};
    return kinds;
}

Tano::FieldPath TextPlace::fieldPath() const {
    return Tano::FieldPath(owner).field(kind->field).key(toUtf8(code));
}

Tano::FieldPath TextPlace::path() const {
    Tano::FieldPath path = fieldPath();
    return kind->isList ? path.index(index) : path;
}

std::optional<TextPlace> textPlace(const Tano::FieldPath &path) {
    const auto &steps = path.steps();
    if (steps.empty() || steps.size() > 2 || (steps.size() == 2 && !isBehavior(steps.front())))
        return {};
    const auto &[field, selectors] = steps.back();
    for (const TextKind &kind : textKinds()) {
        if (field != kind.field || (steps.size() == 1 && !kind.ofPackage) ||
            selectors.size() != (kind.isList ? 2 : 1) || selectors.front().appends)
            continue;
        const auto index = kind.isList ? selectors.back().toIndex() : 0;
        if (!index)
            return {};
        TextPlace place{path, &kind, fromUtf8(selectors.front().text), *index};
        while (place.owner.steps().size() == steps.size())
            place.owner = place.owner.parent();
        return place;
    }
    return {};
}

TextOwners::TextOwners(const PackageInfoModel &package)
    : m_package(package) {
    visitBehaviors(package, [&](const Tano::FieldPath &path, const B &behavior) {
        m_behaviors.insert(fromUtf8(path.toString()), &behavior);
    });
}

std::optional<QStringList> TextOwners::texts(const TextPlace &place, const QString &code) const {
    const RobotLanguage language = Language::languageInUse(code);
    if (place.owner.isEmpty())
        return place.kind->ofPackage(m_package, language);
    const auto behavior = m_behaviors.constFind(fromUtf8(place.owner.toString()));
    if (behavior == m_behaviors.constEnd())
        return {};
    return place.kind->ofBehavior(**behavior, language);
}

QVector<TranslatableText> ownTexts(const PackageInfoModel &package, const QString &language,
                                   const QString &sourceLanguage) {
    QVector<TranslatableText> texts;
    appendTexts(package, &TextKind::ofPackage, {}, Language::languageInUse(language),
                Language::languageInUse(sourceLanguage), texts);
    return texts;
}

QVector<TranslatableText> textsOf(const BehaviorInfoModel &behavior, const Tano::FieldPath &path,
                                  const QString &language, const QString &sourceLanguage) {
    QVector<TranslatableText> texts;
    appendTexts(behavior, &TextKind::ofBehavior, path, Language::languageInUse(language),
                Language::languageInUse(sourceLanguage), texts);
    return texts;
}

QVector<TranslatableText> translatableTexts(const PackageInfoModel *package,
                                            const QString &language,
                                            const QString &sourceLanguage) {
    QVector<TranslatableText> all;
    if (!package)
        return all;
    const RobotLanguage target = Language::languageInUse(language);
    const RobotLanguage source = Language::languageInUse(sourceLanguage);
    appendTexts(*package, &TextKind::ofPackage, {}, target, source, all);
    visitBehaviors(*package, [&](const Tano::FieldPath &path, const B &behavior) {
        appendTexts(behavior, &TextKind::ofBehavior, path, target, source, all);
    });
    for (TranslatableText &text : all)
        text.note = noteOn(text);
    return all;
}

} // namespace Zel::PackageModel
