#include <zel/robot_model.h>

#include "robot_kinds.h"

#include <tano/path.h>

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>

#include <algorithm>

namespace Zel::RobotModel {
namespace {

constexpr qint64 maxFileSize = 1 << 20;

class DescribedModel : public Mel::Model {
public:
    DescribedModel(ROBOT_MODEL kind, QString name, QString shortDisplayName, QString displayName)
        : m_kind(kind)
        , m_name(std::move(name))
        , m_shortDisplayName(std::move(shortDisplayName))
        , m_displayName(std::move(displayName)) {}

    QString name() const override { return m_name; }
    ROBOT_MODEL kind() const override { return m_kind; }
    QString displayName(bool full) const override {
        return full ? m_displayName : m_shortDisplayName;
    }

private:
    ROBOT_MODEL m_kind;
    QString m_name;
    QString m_shortDisplayName;
    QString m_displayName;
};

QFileInfoList filesIn(const QString &directory) {
    QFileInfoList files = QDir(directory).entryInfoList(QDir::Files, QDir::Name);
    const auto isOther = [](const QFileInfo &file) {
        return file.suffix().compare(QLatin1String("json"), Qt::CaseInsensitive) != 0;
    };
    files.erase(std::remove_if(files.begin(), files.end(), isOther), files.end());
    return files;
}

std::vector<std::string> dataDirectories() {
    const std::string application = "zentrix";
    const auto chosen = Tano::path::environmentDirectories(application);
    return chosen ? *chosen : Tano::path::dataDirectories(application, false);
}

} // namespace

QFileInfoList modelFilesInfoList(const QString &directory) {
    if (!directory.isEmpty())
        return filesIn(directory);
    QFileInfoList files;
    QSet<QString> names;
    for (const std::string &data : dataDirectories()) {
        const QFileInfoList found =
            filesIn(QString::fromStdString(data) + QLatin1String("/robots"));
        for (const QFileInfo &file : found) {
            if (names.contains(file.fileName()))
                continue;
            names.insert(file.fileName());
            files.append(file);
        }
    }
    return files;
}

std::unique_ptr<Mel::Model> model(const QFileInfo &file) {
    QFile source(file.filePath());
    if (!file.isFile() || file.size() > maxFileSize || !source.open(QIODevice::ReadOnly))
        return nullptr;
    const QJsonObject fields = QJsonDocument::fromJson(source.read(maxFileSize)).object();
    bool isComplete = true;
    const auto text = [&](const char *field) {
        QString value = fields.value(QLatin1String(field)).toString();
        isComplete = isComplete && !value.isEmpty();
        return value;
    };
    const QString type = text("type");
    const QString model = text("model");
    const QString name = text("name");
    const QString shortDisplayName = text("shortDisplayName");
    const QString displayName = text("displayName");
    if (!isComplete)
        return nullptr;
    return std::make_unique<DescribedModel>(Mel::robotKind(type, model), name, shortDisplayName,
                                            displayName);
}

} // namespace Zel::RobotModel
