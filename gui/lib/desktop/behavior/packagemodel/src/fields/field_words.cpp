#include "field_words.h"

#include <packagemodel/language_name.h>
#include <packagemodel/text_conversion.h>

#include <zel/language.h>

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>

namespace Zel::PackageModel {
namespace {

QString selectedLanguage(const Tano::FieldPath::Selector &selector) {
    return languageName(Language::languageInUse(fromUtf8(selector.text)));
}

QString named(const QString &label, const QString &name) {
    return inWords(QT_TRANSLATE_NOOP("Zel::PackageModel", "%1 “%2”")).arg(label, name);
}

// The label of one item: "Tag 1", "Behavior “greet”", "Supported language “French (France)”".
QString itemWords(const QString &label, const QString &form, const Selectors &given) {
    const auto number = given.back().toIndex();
    if (form == QLatin1String("N") && number)
        return label % u' ' % QString::number(*number + 1);
    return named(label,
                 form == QLatin1String("CODE") ? selectedLanguage(given.back()) : entryName(given));
}

} // namespace

QString inWords(const char *source) {
    return QCoreApplication::translate("Zel::PackageModel", source);
}

QString misfit() {
    return inWords(QT_TRANSLATE_NOOP("Zel::PackageModel", "The value has the wrong type."));
}

QString refusalOfText(const QString &text) {
    if (!text.isValidUtf16())
        return inWords(QT_TRANSLATE_NOOP(
            "Zel::PackageModel",
            "The text contains half of a surrogate pair, which a manifest cannot represent."));
    const auto isControl = [](QChar c) {
        return (c < u' ' && c != u'\t' && c != u'\n' && c != u'\r') || c == QChar(0xFFFE) ||
               c == QChar(0xFFFF);
    };
    const auto found = std::find_if(text.begin(), text.end(), isControl);
    if (found == text.end())
        return {};
    return inWords(QT_TRANSLATE_NOOP(
                       "Zel::PackageModel",
                       "The text contains the character U+%1, which a manifest cannot represent."))
        .arg(QString::number(found->unicode(), 16).toUpper().rightJustified(4, u'0'));
}

QString entryName(const Selectors &selectors) {
    const QString name = fromUtf8(selectors.front().text);
    const auto index = selectors.size() > 1 ? selectors[1].toIndex() : std::nullopt;
    return index ? QStringLiteral("%1 (%2)").arg(name, QString::number(*index + 1)) : name;
}

QString fieldWords(const FieldLabels &labels, const char *form, const Selectors &given,
                   const OfOwner &of) {
    const QStringList forms =
        QString::fromLatin1(form).remove(u'[').split(u']', Qt::SkipEmptyParts);
    const auto expected = std::size_t(forms.size());
    const bool isKeyed =
        !forms.isEmpty() && (!labels.all || expected > 1) && forms.first() != QLatin1String("NAME");
    const std::size_t keys = isKeyed ? 1 : 0;
    const bool isItem = expected > keys && given.size() >= expected;
    QString words = inWords(labels.all && !isItem ? labels.all : labels.one);
    if (isItem)
        words = itemWords(words, forms.last(), given);
    words = of(words);
    if (!isKeyed || given.empty())
        return words;
    if (forms.first() == QLatin1String("CODE"))
        return inWords(QT_TRANSLATE_NOOP("Zel::PackageModel", "%1 in %2"))
            .arg(words, selectedLanguage(given.front()));
    return inWords(QT_TRANSLATE_NOOP("Zel::PackageModel", "%1 for “%2”"))
        .arg(words, fromUtf8(given.front().text));
}

} // namespace Zel::PackageModel
