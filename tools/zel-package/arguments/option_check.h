#pragma once

#include <QCommandLineOption>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

namespace ZelPackage {

/// The first argument that has the form of an option but is none of `options`, without its value.
/// QCommandLineParser takes "-check" for five options of one letter, of which it knows "-h".
std::optional<QString> unknownOption(const QStringList &arguments,
                                     const QList<QCommandLineOption> &options);

} // namespace ZelPackage
