#include "widgets/roomy_style.h"
#include "window/main_window.h"

#include <packagemodel/translation.h>

#include <QApplication>
#include <QCommandLineParser>
#include <QLibraryInfo>
#include <QTranslator>

int main(int argc, char **argv) {
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
#endif
    const QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("zel-properties-editor"));
    QApplication::setOrganizationName(QStringLiteral("zel"));
    QApplication::setApplicationVersion(QStringLiteral(ZEL_EDITOR_VERSION));
    Editor::RoomyStyle::use(new Editor::RoomyStyle);
    QTranslator qtTexts; // those of the standard buttons and dialogs
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    const QString qtCatalogues = QLibraryInfo::location(QLibraryInfo::TranslationsPath);
#else
    const QString qtCatalogues = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
#endif
    if (qtTexts.load(QLocale(), QStringLiteral("qtbase"), QStringLiteral("_"), qtCatalogues))
        QApplication::installTranslator(&qtTexts);
    Zel::installTranslation();
    Zel::installTranslation(QStringLiteral("zel-properties-editor"));
    QGuiApplication::setApplicationDisplayName({});

    QCommandLineParser parser;
    parser.setApplicationDescription(
        QApplication::translate("main", "Shows and edits the manifest of an application package."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addPositionalArgument(QStringLiteral("manifest"),
                                 QApplication::translate("main", "The manifest to open."),
                                 QStringLiteral("[manifest]"));
    parser.process(application);

    Editor::MainWindow window;
    window.show();
    const QString fileName = parser.positionalArguments().value(0);
    if (!fileName.isEmpty())
        window.openFile(fileName);
    return QApplication::exec();
}
