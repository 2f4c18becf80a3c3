#include "command.h"

#include <packagemodel/translation.h>

#include <QCoreApplication>
#include <QLocale>

#include <clocale>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <langinfo.h>
#include <unistd.h>

namespace {

// A file opened later must not become standard output because that was closed.
void keepStandardStreamsTaken() {
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (fcntl(stream, F_GETFD) == -1)
            static_cast<void>(open("/dev/null", stream == STDIN_FILENO ? O_WRONLY : O_RDONLY));
    }
}

// File names, arguments and character widths are taken in the character set of the locale.
void useUtf8() {
    std::setlocale(LC_ALL, "");
    if (std::strcmp(nl_langinfo(CODESET), "UTF-8") != 0)
        qputenv(qEnvironmentVariableIsEmpty("LC_ALL") ? "LC_CTYPE" : "LC_ALL", "C.UTF-8");
}

} // namespace

int main(int argc, char **argv) {
    keepStandardStreamsTaken();
    const QString language = QLocale::system().uiLanguages().value(0); // before that may be hidden
    useUtf8();
    // A closed pipe shall be a failed write.
    std::signal(SIGPIPE, SIG_IGN);

    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("zel-package"));
    QCoreApplication::setApplicationVersion(QStringLiteral(ZEL_PACKAGE_VERSION));
    qSetMessagePattern(QStringLiteral("zel-package: %{message}"));
    for (const char *catalogue : {"packagemodel", "zel-package"})
        Zel::installTranslation(QLatin1String(catalogue), QLocale(language));

    ZelPackage::Console console;
    const ZelPackage::ExitStatus status =
        ZelPackage::runProgram(QCoreApplication::arguments().mid(1), console);
    return console.finish() ? status : ZelPackage::Failure;
}
