// Undo commands bring QtWidgets and the libraries of a display along, which would double the time
// that the program takes to start. So "set" is a program of its own, which this one becomes.

#include "set_fields.h"

#include <QCoreApplication>

#include <cerrno>
#include <cstring>
#include <unistd.h>
#include <vector>

namespace ZelPackage {

ExitStatus setFields(const QCommandLineParser &, Console &console) {
    const QString program =
        QCoreApplication::applicationDirPath() % QLatin1String("/zel-package-set");
    QByteArrayList texts;
    const QStringList arguments = QCoreApplication::arguments();
    for (const QString &argument : arguments)
        texts.append(argument.toLocal8Bit());
    std::vector<char *> pointers;
    for (QByteArray &text : texts)
        pointers.push_back(text.data());
    pointers.push_back(nullptr);
    execv(program.toLocal8Bit().constData(), pointers.data());
    console.tell(program, QCoreApplication::translate("zel-package", "The file cannot be run: %1.")
                              .arg(QString::fromLocal8Bit(std::strerror(errno))));
    return Failure;
}

} // namespace ZelPackage
