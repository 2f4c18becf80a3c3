#pragma once

#include "console/console.h"
#include "findings_writer.h"

#include <QCommandLineOption>
#include <QCommandLineParser>
#include <QSet>
#include <QStringList>

#include <optional>

namespace ZelPackage {

/// What the arguments of `zel-package validate` ask for.
struct ValidateRequest {
    QStringList arguments; ///< files and folders
    std::unique_ptr<FindingsWriter> (*makeWriter)(Console &console);
    Console::Color color;
    std::optional<Zel::PackageModel::Severity> failOn;
    QSet<QString> ignored; ///< the ids of rules
    bool isQuiet;
    bool explains;
    std::optional<Zel::PackageModel::FixChoice> fixes;
    bool showsDiff;
    QString stdinName; // of the following, each empty for none
    QString configuration;
    QString baseline;
    QString newBaseline;

    /// Whether standard output is for manifests or differences, so that findings go elsewhere.
    bool printsManifests() const;
};

QList<QCommandLineOption> validateOptions();

/// Returns nothing once the first mistake has been reported.
std::optional<ValidateRequest> validateRequest(const QCommandLineParser &arguments,
                                               Console &console);

} // namespace ZelPackage
