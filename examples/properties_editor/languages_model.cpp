#include "languages_model.h"

#include "editor_commands.h"
#include "field_place.h"
#include "languages.h"
#include "marks.h"
#include "plain_text.h"

#include <packagemodel/set_string.h>

#include <QLocale>
#include <QSet>

namespace Editor {
namespace {

using Zel::BehaviorInfoModel;
using Zel::PackageLocalizedStringCommand;
using Zel::RobotLanguage;

bool hasText(const QString &text) {
    return !text.isEmpty();
}

bool hasText(const QStringList &texts) {
    return !texts.isEmpty();
}

// Counts a behavior's text of one kind once for each language; returns whether there is any.
template<typename Texts>
int countTexts(const Texts &texts, QHash<QString, int> &counts) {
    bool isWanted = false;
    for (const auto &[text, language] : texts) {
        if (hasText(text)) {
            ++counts[language.isoCode()];
            isWanted = true;
        }
    }
    return isWanted ? 1 : 0;
}

} // namespace

LanguagesModel::LanguagesModel(Document &document, QObject *parent)
    : TableModel(document, parent) {
    start();
}

void LanguagesModel::packageReplaced() {
    m_mentioned.clear();
    for (const std::string &code : package()->packageInfo().languageCodes())
        m_mentioned.append(Zel::fromUtf8(code));
}

void LanguagesModel::countBehaviorTexts() const {
    if (m_countedRevision == document().behaviorTextsRevision())
        return;
    m_countedRevision = document().behaviorTextsRevision();
    m_behaviorTexts.clear();
    m_behaviorTextsWanted = 0;
    const auto behaviors = package()->behaviors();
    for (const BehaviorInfoModel *behavior : behaviors) {
        m_behaviorTextsWanted +=
            countTexts(behavior->names(), m_behaviorTexts) +
            countTexts(behavior->descriptions(), m_behaviorTexts) +
            countTexts(behavior->languagesToTriggerSentences(), m_behaviorTexts);
    }
}

LanguagesModel::Count LanguagesModel::coverage(const QString &code) const {
    countBehaviorTexts();
    const RobotLanguage language = languageOf(code);
    const int own =
        int(package()->hasNameFor(language)) + int(package()->hasDescriptionFor(language));
    return {own + m_behaviorTexts.value(code), 2 + m_behaviorTextsWanted};
}

QString LanguagesModel::summary() const {
    const auto &supported = package()->supportedLanguages();
    int names = 0;
    int descriptions = 0;
    for (const RobotLanguage &language : supported) {
        names += int(package()->hasNameFor(language));
        descriptions += int(package()->hasDescriptionFor(language));
    }
    return tr("Supported languages: %1. With a name: %2. With a description: %3.")
        .arg(supported.size())
        .arg(names)
        .arg(descriptions);
}

QStringList LanguagesModel::currentKeys() const {
    QStringList keys;
    QSet<QString> seen;
    const auto add = [&](const QString &code) {
        if (!seen.contains(code)) {
            seen.insert(code);
            keys.append(code);
        }
    };
    for (const RobotLanguage &language : package()->supportedLanguages())
        add(language.isoCode());
    for (const RobotLanguage &language : package()->descriptionLanguages())
        add(language.isoCode());
    for (const auto &[text, language] : package()->names())
        add(language.isoCode());
    for (const auto &[text, language] : package()->descriptions())
        add(language.isoCode());
    for (const QString &code : m_mentioned)
        add(code);
    return keys;
}

QStringList LanguagesModel::titles() const {
    return {tr("Language"), tr("Supported"),   tr("Described"),
            tr("Name"),     tr("Description"), tr("Coverage")};
}

int LanguagesModel::columnCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : 6;
}

QVariant LanguagesModel::display(const QModelIndex &index) const {
    const QString code = key(index);
    switch (index.column()) {
    case Language:
        return languageName(code);
    case Name:
        return package()->name(languageOf(code));
    case Description:
        return package()->description(languageOf(code));
    case Coverage: {
        const Count count = coverage(code);
        return tr("%1 of %2")
            .arg(QLocale().toString(count.present), QLocale().toString(count.wanted));
    }
    default:
        return {};
    }
}

QVariant LanguagesModel::data(const QModelIndex &index, int role) const {
    if (!checkIndex(index))
        return {};
    const QString code = key(index);
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return display(index);
    case Qt::CheckStateRole:
        if (index.column() == Supported)
            return package()->hasLanguageSupport(languageOf(code)) ? Qt::Checked : Qt::Unchecked;
        if (index.column() == Described)
            return package()->hasLanguageDescription(languageOf(code)) ? Qt::Checked
                                                                       : Qt::Unchecked;
        return {};
    case CodeRole:
        return code;
    case PercentRole: {
        const Count count = coverage(code);
        return 100 * count.present / count.wanted;
    }
    default:
        break;
    }
    QVariant mark;
    if (index.column() == Name)
        mark = markData(Mark::ofIssue(document().issueAt(namePath(code))), role);
    if (index.column() == Description)
        mark = markData(Mark::ofIssue(document().issueAt(descriptionPath(code))), role);
    if (!mark.isValid() && role == Qt::ToolTipRole)
        return toolTipOf(index.column() == Language ? code : display(index).toString());
    return mark;
}

bool LanguagesModel::setData(const QModelIndex &index, const QVariant &value, int role) {
    if (!checkIndex(index))
        return false;
    const RobotLanguage language = languageOf(key(index));
    if (role == Qt::CheckStateRole && index.column() == Supported) {
        document().push(new SupportedLanguageCommand(package(), language));
        return true;
    }
    if (role == Qt::CheckStateRole && index.column() == Described) {
        document().push(new DescriptionLanguageCommand(package(), language));
        return true;
    }
    if (role != Qt::EditRole || (index.column() != Name && index.column() != Description))
        return false;
    const auto what = index.column() == Name ? PackageLocalizedStringCommand::Name
                                             : PackageLocalizedStringCommand::Description;
    document().pushTyped([=, package = package(), text = value.toString()](bool isFinal) {
        return new PackageLocalizedStringCommand(package, text, what, language, isFinal);
    });
    return true;
}

Qt::ItemFlags LanguagesModel::extraFlags(const QModelIndex &index) const {
    switch (index.column()) {
    case Supported:
    case Described:
        return Qt::ItemIsUserCheckable;
    case Name:
    case Description:
        return Qt::ItemIsEditable;
    default:
        return Qt::NoItemFlags;
    }
}

} // namespace Editor
