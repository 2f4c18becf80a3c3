#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>

namespace Editor {

/// A package to start from.
struct Template {
    QString name;
    QString resource;
};

QVector<Template> templates();

} // namespace Editor
