#include <packagemodel/package_info_model.h>

#include "checks/script_checks.h"
#include "log_category.h"
#include "package_info_data.h"

#include <tano/field_path.h>
#include <tano/log.h>

#include <QHash>

#include <array>
#include <optional>
#include <set>

namespace Zel {
namespace {

// A kind of text that may be a script, one per language: its field name and the model's accessors.
template<typename Model>
struct ScriptText {
    const char *field;
    const Language::LocalizedStrings &(Model::*texts)() const;
    void (Model::*set)(const QString &text, const RobotLanguage &language);
};

template<typename Model>
constexpr std::array scriptTexts{
    ScriptText<Model>{"names", &Model::names, &Model::setName},
    ScriptText<Model>{"descriptions", &Model::descriptions, &Model::setDescription},
};

// The same for lists of texts.
struct ScriptList {
    const char *field;
    const Language::LocalizedStringLists &(BehaviorInfoModel::*lists)() const;
    QStringList (BehaviorInfoModel::*texts)(const RobotLanguage &language) const;
    bool (BehaviorInfoModel::*add)(const QString &text, const RobotLanguage &language);
    bool (BehaviorInfoModel::*update)(int index, const QString &text,
                                      const RobotLanguage &language);
};

constexpr std::array scriptLists{
    ScriptList{"triggerSentences", &BehaviorInfoModel::languagesToTriggerSentences,
               &BehaviorInfoModel::triggerSentences, &BehaviorInfoModel::addTriggerSentence,
               &BehaviorInfoModel::updateTriggerSentence},
    ScriptList{"loadingResponses", &BehaviorInfoModel::languagesToLoadingResponses,
               &BehaviorInfoModel::loadingResponses, &BehaviorInfoModel::addLoadingResponse,
               &BehaviorInfoModel::updateLoadingResponse},
};

bool isXScrpolLanguage(const RobotLanguage &language) {
    return language.isoCode().endsWith(PackageModel::k_sa.text());
}

// The supported languages whose texts are scripts, with their order.
class LanguageOrder {
public:
    explicit LanguageOrder(const RobotLanguages &languages)
        : m_languages(languages) {
        for (int place = 0; place < int(languages.size()); ++place) {
            const RobotLanguage &language = languages[std::size_t(place)];
            if (!isXScrpolLanguage(language))
                m_places.insert(language.isoCode(), place);
        }
    }

    const RobotLanguage &at(int place) const { return m_languages[std::size_t(place)]; }
    /// The position of a language, -1 if it is not included.
    int placeOf(const RobotLanguage &language) const {
        return m_places.value(language.isoCode(), -1);
    }

private:
    RobotLanguages m_languages;
    QHash<QString, int> m_places;
};

// Iterates over the supported languages in which a behavior has lists, in order, including lists
// that receivers add meanwhile.
class SpokenLanguages {
public:
    explicit SpokenLanguages(const LanguageOrder &order)
        : m_order(order) {}

    // The next language; null at the end, or once the behavior was deleted.
    const RobotLanguage *next(const BehaviorInfoModel *behavior) {
        if (!behavior)
            return nullptr;
        for (std::size_t i = 0; i < scriptLists.size(); ++i)
            note((behavior->*scriptLists[i].lists)(), m_seen[i]);
        if (m_ahead.empty())
            return nullptr;
        m_place = *m_ahead.begin();
        m_ahead.erase(m_ahead.begin());
        return &m_order.at(m_place);
    }

private:
    struct Seen {
        std::size_t count = 0;
        RobotLanguage last;
    };

    // New entries are last, unless a receiver has removed some.
    void note(const Language::LocalizedStringLists &lists, Seen &seen) {
        if (seen.count > lists.size() ||
            (seen.count > 0 && lists[seen.count - 1].second != seen.last))
            seen.count = 0;
        for (; seen.count < lists.size(); ++seen.count) {
            seen.last = lists[seen.count].second;
            if (const int place = m_order.placeOf(seen.last); place > m_place)
                m_ahead.insert(place);
        }
    }

    const LanguageOrder &m_order;
    int m_place = -1;
    std::set<int> m_ahead;
    std::array<Seen, scriptLists.size()> m_seen;
};

RobotLanguage makeXScrpolLanguage(const RobotLanguage &lang) {
    return {ISOCode(lang.isoCode() + PackageModel::k_sa.text()),
            Name(lang.name()),
            EnglishName(lang.englishName()),
            NativeName(lang.nativeName()),
            NuanceCode(lang.nuanceCode()),
            lang.version()};
}

// Stores the script in the variant of its language, then replaces it by its plain text.
template<typename Keep, typename Replace>
void generate(const QString &script, const RobotLanguage &language, const char *operation,
              Keep keep, Replace replace) {
    keep(script, makeXScrpolLanguage(language));
    const PackageModel::PlainText plain = PackageModel::plainTextOf(script);
    if (plain.error.isEmpty())
        replace(plain.text, language);
    else
        Tano::log::error(logCategory, operation,
                         QStringLiteral("Could not generate plain text value properly: ") %
                             plain.error);
}

template<typename Model>
void genPlainTextValues(const QPointer<Model> &model) {
    for (const ScriptText<Model> &kind : scriptTexts<Model>) {
        const auto set = [&](const QString &text, const RobotLanguage &language) {
            if (model)
                (model->*kind.set)(text, language);
        };
        const auto texts = model ? (model->*kind.texts)() : Language::LocalizedStrings();
        for (const auto &[text, language] : texts) {
            if (!isXScrpolLanguage(language))
                generate(text, language, "genPlainTextValues", set, set);
        }
    }
}

void genPlainTextLists(const QPointer<BehaviorInfoModel> &behavior, const RobotLanguage &language) {
    for (const ScriptList &kind : scriptLists) {
        const QStringList texts = behavior ? (behavior->*kind.texts)(language) : QStringList();
        for (int i = 0; i < texts.size(); ++i) {
            const auto add = [&](const QString &text, const RobotLanguage &variant) {
                if (behavior)
                    (behavior->*kind.add)(text, variant);
            };
            const auto update = [&](const QString &text, const RobotLanguage &) {
                if (behavior)
                    (behavior->*kind.update)(i, text, language);
            };
            generate(texts.at(i), language, "genPlainTextFromScript", add, update);
        }
    }
}

using Tano::FieldPath;

bool mayBeScript(const QString &text) {
    return text.contains(u'<');
}

class ScriptErrors {
public:
    template<typename Model>
    void checkTexts(const Model &model, const FieldPath &parent) {
        for (const ScriptText<Model> &kind : scriptTexts<Model>) {
            for (const auto &[text, language] : (model.*kind.texts)()) {
                if (!isXScrpolLanguage(language))
                    check(text, [&, &language = language] {
                        return pathOf(parent, kind.field, language);
                    });
            }
        }
    }

    void checkLists(const BehaviorInfoModel &behavior, const FieldPath &parent,
                    const RobotLanguage &language) {
        for (const ScriptList &kind : scriptLists) {
            const QStringList texts = (behavior.*kind.texts)(language);
            for (int i = 0; i < texts.size(); ++i)
                check(texts.at(i), [&] { return pathOf(parent, kind.field, language).index(i); });
        }
    }

    const QVector<PackageModel::ScriptError> &all() const { return m_errors; }

private:
    static FieldPath pathOf(const FieldPath &parent, const char *field,
                            const RobotLanguage &language) {
        return FieldPath(parent).field(field).key(toUtf8(language.isoCode()));
    }
    template<typename Path>
    void check(const QString &text, Path path) {
        if (!mayBeScript(text))
            return;
        if (const PackageModel::PlainText plain = PackageModel::plainTextOf(text);
            !plain.error.isEmpty())
            m_errors.append({fromUtf8(path().toString()), plain.error});
    }

    QVector<PackageModel::ScriptError> m_errors;
};

} // namespace

void PackageInfoModel::trimExtraInfo() {
    m_data->edit().trimExtraInfo();
    keepOnly(m_data->descriptionLanguages, m_data->names);
    keepOnly(m_data->descriptionLanguages, m_data->descriptions);
    const std::set<std::string> described = codesOf(m_data->descriptionLanguages);
    const std::set<std::string> supported = codesOf(m_data->supportedLanguages);
    for (BehaviorInfoModel *behavior : m_data->behaviors.children())
        ChildAccess::data(*behavior).trim(m_data->descriptionLanguages, m_data->supportedLanguages,
                                          described, supported);
    // Synchronizes without a notification. All records may have changed, so rebuilding the list is
    // faster.
    m_data->behaviors.setOutOfStep();
    m_data->behaviors.resync();
}

// Receivers may remove behaviors, change the lists being iterated, and delete the package.
void PackageInfoModel::genPlainTextFromScript() {
    const QPointer<PackageInfoModel> living(this);
    genPlainTextValues(living);
    std::optional<LanguageOrder> order;
    std::uint64_t revision = 0;
    for (const auto &behavior : living ? guarded(behaviors()) : guarded<BehaviorInfoModel>({})) {
        genPlainTextValues(behavior);
        if (!living)
            return;
        if (!order || revision != m_data->supportedLanguages.revision())
            order.emplace(m_data->supportedLanguages);
        revision = m_data->supportedLanguages.revision();
        SpokenLanguages languages(*order);
        while (const RobotLanguage *language = languages.next(behavior))
            genPlainTextLists(behavior, *language);
    }
}

namespace PackageModel {

struct BehaviorScripts::Order {
    LanguageOrder languages;
};

BehaviorScripts::BehaviorScripts(const PackageInfoModel &package)
    : m_order(std::make_unique<Order>(Order{LanguageOrder(package.supportedLanguages())})) {
}

BehaviorScripts::~BehaviorScripts() = default;

QVector<ScriptError> BehaviorScripts::errorsIn(const BehaviorInfoModel &behavior,
                                               const FieldPath &path) const {
    ScriptErrors errors;
    errors.checkTexts(behavior, path);
    const LanguageOrder &order = m_order->languages;
    std::set<int> places; // of the languages that have scripts
    for (const ScriptList &kind : scriptLists) {
        for (const auto &[texts, language] : (behavior.*kind.lists)()) {
            if (std::any_of(texts.begin(), texts.end(), mayBeScript))
                places.insert(order.placeOf(language));
        }
    }
    places.erase(-1);
    for (const int place : places)
        errors.checkLists(behavior, path, order.at(place));
    return errors.all();
}

QVector<ScriptError> ownScriptErrors(const PackageInfoModel &package) {
    ScriptErrors errors;
    errors.checkTexts(package, {});
    return errors.all();
}

QVector<ScriptError> scriptErrors(const PackageInfoModel *package) {
    if (!package)
        return {};
    QVector<ScriptError> errors = ownScriptErrors(*package);
    const BehaviorScripts scripts(*package);
    QHash<QString, int> occurrences;
    const auto behaviors = package->behaviors();
    for (const BehaviorInfoModel *behavior : behaviors) {
        const FieldPath path =
            FieldPath()
                .field("behaviors")
                .entry(toUtf8(behavior->path()), occurrences[behavior->path()]++);
        errors += scripts.errorsIn(*behavior, path);
    }
    return errors;
}

} // namespace PackageModel
} // namespace Zel
