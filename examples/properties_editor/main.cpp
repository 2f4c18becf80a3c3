#include "document/recovery.h"
#include "window/application_setup.h"
#include "window/main_window.h"

#include <QApplication>
#include <QCommandLineParser>

int main(int argc, char **argv) {
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
#endif
    const QApplication application(argc, argv);
    Editor::setUpApplication();
    QApplication::setApplicationVersion(QStringLiteral(ZEL_EDITOR_VERSION));

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
    window.keepEditsIn(Editor::Recovery::stateFolder());
    window.restore();
    window.show();
    const QString fileName = parser.positionalArguments().value(0);
    if (fileName.isEmpty() || !window.openFile(fileName))
        window.showStartPage();
    if (fileName.isEmpty())
        window.offerLeftovers();
    return QApplication::exec();
}
