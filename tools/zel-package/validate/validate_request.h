#pragma once

#include "console/console.h"
#include "findings_writer.h"

#include <QCommandLineOption>
#include <QCommandLineParser>
#include <QSet>
#include <QStringList>

#include <optional>

namespace ZelPackage {

/// The parsed arguments of `zel-package validate`.
struct ValidateRequest {
    QStringList arguments; ///< files and folders
    std::unique_ptr<FindingsWriter> (*makeWriter)(Console &console);
    Console::Color color;
    std::optional<Zel::PackageModel::Severity> failOn;
    QSet<QString> ignored; ///< rule ids
    bool isQuiet;
    bool explains;
    std::optional<Zel::PackageModel::FixChoice> fixes;
    bool showsDiff;
    QString stdinName; // this and the following are empty if not given
    QString configuration;
    QString baseline;
    QString newBaseline;

    /// Whether manifests or differences use standard output, so that findings must go elsewhere.
    bool printsManifests() const;
};

QList<QCommandLineOption> validateOptions();

/// Returns nullopt after reporting the first mistake.
std::optional<ValidateRequest> validateRequest(const QCommandLineParser &arguments,
                                               Console &console);

} // namespace ZelPackage
