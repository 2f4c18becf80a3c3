#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>

namespace Editor {

/// A template for new packages.
struct Template {
    QString name;
    QString resource;
};

QVector<Template> templates();

} // namespace Editor
