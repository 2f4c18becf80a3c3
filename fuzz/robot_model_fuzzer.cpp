// A description of a robot model results in a complete model, or in none.

#include "target.h"

#include <mel/model.h>
#include <zel/robot_model.h>

#include <QFile>
#include <QTemporaryDir>

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    static const QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("robot.json"));
    QFile file(path);
    require(file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) &&
                file.write(reinterpret_cast<const char *>(data), qint64(size)) == qint64(size),
            "the description can be written");
    file.close();

    require(Zel::RobotModel::modelFilesInfoList(dir.path()).size() == 1,
            "the description is found");
    const auto model = Zel::RobotModel::model(QFileInfo(path));
    if (!model)
        return 0;
    require(!model->name().isEmpty() && !model->displayName(true).isEmpty() &&
                !model->displayName(false).isEmpty(),
            "a model has names");
    require(!Mel::Model::robotTypeString(model->kind()).empty() &&
                !Mel::Model::robotModelWithoutTypeString(model->kind()).empty(),
            "a kind has a type and a model");
    const auto again = Zel::RobotModel::model(QFileInfo(path));
    require(again && again->kind() == model->kind(), "the same description has the same kind");
    return 0;
}
