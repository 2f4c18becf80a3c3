#include <packagemodel/translation.h>

#include <QCoreApplication>
#include <QTranslator>

#include <memory>

namespace Zel {

bool installTranslation(const QString &catalogue, const QLocale &locale) {
    auto translator = std::make_unique<QTranslator>(QCoreApplication::instance());
    const QStringList languages = locale.uiLanguages();
    for (QString language : languages) {
        language.replace(u'-', u'_');
        const QString name = language.section(u'_', 0, 0);
        if (name == QLatin1String("en") || name == QLatin1String("C"))
            return false;
        for (const QString &code : {language, name}) {
            if (translator->load(QStringLiteral(":/translations/%1_%2.qm").arg(catalogue, code)))
                return QCoreApplication::installTranslator(translator.release());
        }
    }
    return false;
}

QString translationLanguage() {
    //: The language of this translation, as RFC 5646 writes it.
    return QCoreApplication::translate("Zel::PackageModel", "en-US");
}

} // namespace Zel
