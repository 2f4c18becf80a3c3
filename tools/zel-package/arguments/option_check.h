#pragma once

#include <QCommandLineOption>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

namespace ZelPackage {

/// The first argument that looks like an option but is not one of `options`, without its value.
/// QCommandLineParser splits "-check" into five single-letter options, of which it knows "-h".
std::optional<QString> unknownOption(const QStringList &arguments,
                                     const QList<QCommandLineOption> &options);

} // namespace ZelPackage
