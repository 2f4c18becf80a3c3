#include "arguments/native_text.h"
#include "console/text_layout.h"
#include "program_command.h"

#include <packagemodel/translation.h>

#include <QCoreApplication>
#include <QLocale>

#include <clocale>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <langinfo.h>
#include <malloc.h>
#include <optional>
#include <unistd.h>

namespace {

// If standard output is closed, a file opened later must not take its place.
void keepStandardStreamsTaken() {
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (fcntl(stream, F_GETFD) == -1)
            static_cast<void>(open("/dev/null", stream == STDIN_FILENO ? O_WRONLY : O_RDONLY));
    }
}

// While it exists, file names, arguments and character widths use UTF-8 instead of the locale's
// character set. Qt reads the locale only once.
class Utf8Locale {
public:
    Utf8Locale() {
        std::setlocale(LC_ALL, "");
        if (std::strcmp(nl_langinfo(CODESET), "UTF-8") == 0)
            return;
        m_variable = qEnvironmentVariableIsEmpty("LC_ALL") ? "LC_CTYPE" : "LC_ALL";
        m_value = qgetenv(m_variable);
        qputenv(m_variable, "C.UTF-8");
    }
    ~Utf8Locale() {
        if (m_variable && m_value.isNull())
            qunsetenv(m_variable);
        else if (m_variable)
            qputenv(m_variable, m_value);
    }
    Utf8Locale(const Utf8Locale &) = delete;
    Utf8Locale &operator=(const Utf8Locale &) = delete;

private:
    const char *m_variable = nullptr;
    QByteArray m_value;
};

// Messages may contain file names, so they are made printable.
void writeMessage(QtMsgType type, const QMessageLogContext &context, const QString &message) {
    const QString line = ZelPackage::printable(qFormatLogMessage(type, context, message));
    std::fprintf(stderr, "%s\n", line.toUtf8().constData());
}

} // namespace

int main(int argc, char **argv) {
    keepStandardStreamsTaken();
    // Merging freed blocks immediately halves the time to free a large package.
    mallopt(M_MXFAST, 0);
    const QString language = QLocale::system().uiLanguages().value(0); // before it is hidden
    // The reader of the output may close it. The parent may have set this signal to be ignored.
    std::signal(SIGPIPE, SIG_DFL);

    // Qt would replace invalid UTF-8.
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments += ZelPackage::nativeText(argv[i]);

    auto locale = std::make_optional<Utf8Locale>();
    const QCoreApplication application(argc, argv);
    locale.reset();
    QCoreApplication::setApplicationName(QStringLiteral("zel-package"));
    QCoreApplication::setApplicationVersion(QStringLiteral(ZEL_PACKAGE_VERSION));
    qSetMessagePattern(QStringLiteral("zel-package: %{message}"));
    qInstallMessageHandler(writeMessage);
    for (const char *catalogue : {"packagemodel", "zel-package"})
        Zel::installTranslation(QLatin1String(catalogue), QLocale(language));

    ZelPackage::Console console;
    const ZelPackage::ExitStatus status = ZelPackage::runProgram(arguments, console);
    return console.finish() ? status : ZelPackage::Failure;
}
