#include "application_setup.h"

#include "color_scheme.h"
#include "widgets/roomy_style.h"

#include <packagemodel/translation.h>

#include <QApplication>
#include <QLibraryInfo>
#include <QTranslator>

#include <memory>

namespace Editor {
namespace {

QString qtCatalogues() {
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    return QLibraryInfo::location(QLibraryInfo::TranslationsPath);
#else
    return QLibraryInfo::path(QLibraryInfo::TranslationsPath);
#endif
}

} // namespace

void installTexts(const QLocale &locale) {
    const QString editor = QStringLiteral("zel-properties-editor");
    if (!Zel::installTranslation(editor, locale))
        return;
    Zel::installTranslation(QStringLiteral("packagemodel"), locale);
    auto qt = std::make_unique<QTranslator>(QCoreApplication::instance());
    if (qt->load(QStringLiteral("qtbase_") + Zel::translationLanguage(), qtCatalogues()))
        QCoreApplication::installTranslator(qt.release());
}

void setUpApplication(const QLocale &locale) {
    QApplication::setApplicationName(QStringLiteral("zel-properties-editor"));
    QApplication::setOrganizationName(QStringLiteral("zel"));
    QApplication::setStyle(new RoomyStyle);
    installTexts(locale);
    QGuiApplication::setApplicationDisplayName({});
    useColorScheme(chosenColorScheme());
}

} // namespace Editor
