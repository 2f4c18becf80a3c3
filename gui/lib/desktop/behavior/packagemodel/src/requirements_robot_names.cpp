#include <packagemodel/requirements.h>

#include "log_category.h"

#include <packagemodel/text_conversion.h>

#include <tano/log.h>
#include <zel/robot_model.h>

#include <QCoreApplication>

namespace Zel {
namespace {

template<typename Compose>
void logVerbose(Compose compose) {
    Tano::log::verbose(logCategory, "prettyRobotNames", compose);
}

void addModel(const Mel::Model &model, const QString &anyModel, QMap<QString, QString> &names) {
    const QString family = fromUtf8(Mel::Model::robotTypeString(model.kind())).toUpper();
    const QString shortName = model.displayName(false);
    if (!names.contains(family)) {
        logVerbose([&] {
            return QString(QStringLiteral("Additional robot family found: ") % model.name() %
                           QStringLiteral(" (a.k.a. ") % shortName % u')');
        });
        names.insert(family, QStringLiteral("%1 (%2)").arg(shortName, anyModel));
    }
    const QString key = QStringLiteral("%1_%2").arg(
        family, fromUtf8(Mel::Model::robotModelWithoutTypeString(model.kind())));
    names.insert(key, model.displayName(true));
}

QMap<QString, QString> readRobotNames() {
    logVerbose([] { return QStringLiteral("Initializing robot family list"); });
    const QFileInfoList files = RobotModel::modelFilesInfoList({});
    const QString anyModel = QCoreApplication::translate("Zel::RobotRequirement", "any model");
    if (files.isEmpty())
        logVerbose([] { return QStringLiteral("No model file found!"); });

    QMap<QString, QString> names;
    for (const QFileInfo &file : files) {
        logVerbose([&] {
            return QString(QStringLiteral("Model file found: ") % file.absoluteFilePath());
        });
        if (const auto model = RobotModel::model(file))
            addModel(*model, anyModel, names);
    }
    names.insert(QString(), QCoreApplication::translate("QObject", "Any robot"));
    return names;
}

} // namespace

const QMap<QString, QString> &RobotRequirement::prettyRobotNames() {
    static const QMap<QString, QString> names = readRobotNames();
    return names;
}

} // namespace Zel
