// The cases of script/bench, which runs each in its own process and compares the results. Sizes are
// numbers of behaviors. The manifests come from write_samples, so that each case starts with a
// fresh heap.

#include "sample_package.h"

#include <packagemodel/behavior_commands.h>
#include <packagemodel/issue_tracker.h>
#include <packagemodel/package_edit_command.h>
#include <packagemodel/package_info_model.h>
#include <packagemodel/package_info_utils.h>
#include <packagemodel/package_info_validator.h>

#include <QCoreApplication>
#include <QFile>
#include <QUndoStack>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <iostream>
#include <optional>

using namespace Zel;

// Registers a case for each size.
#define MEASURE(function) BENCHMARK(function)->Apply(addSizes)->Unit(benchmark::kMicrosecond)

namespace {

void addSizes(benchmark::internal::Benchmark *measured) {
    for (int size = 10; size <= 100000; size *= 10)
        measured->Arg(size)->Arg(3 * size);
}

[[noreturn]] void giveUp(const std::string &reason) {
    std::cerr << "benchmarks: " << reason << '\n';
    std::exit(EXIT_FAILURE);
}

int countOf(const benchmark::State &state) {
    return static_cast<int>(state.range(0));
}

// The manifest of a package with this number of behaviors.
QByteArray manifest(const benchmark::State &state) {
    QFile file(qEnvironmentVariable("ZEL_BENCHMARK_SAMPLES") + QLatin1Char('/') +
               QString::number(countOf(state)) + QLatin1String(".xml"));
    if (!file.open(QIODevice::ReadOnly))
        giveUp("no manifest \"" + file.fileName().toStdString() + '"');
    return file.readAll();
}

Tano::PackageInfo record(const benchmark::State &state) {
    Tano::PackageInfo record;
    if (!record.loadFromManifestContent(manifest(state).toStdString()))
        giveUp(record.errorString());
    return record;
}

// Times `make()`, but not the destruction of its result.
template<typename Make>
void timeMaking(benchmark::State &state, Make &&make) {
    for (auto _ : state) {
        std::optional made(make());
        benchmark::DoNotOptimize(*made);
        state.PauseTiming();
        made.reset();
        state.ResumeTiming();
    }
}

void load(benchmark::State &state) {
    const std::string bytes = manifest(state).toStdString();
    timeMaking(state, [&] {
        Tano::PackageInfo package;
        if (!package.loadFromManifestContent(bytes))
            giveUp(package.errorString());
        return package;
    });
}
MEASURE(load);

void tokenize(benchmark::State &state) {
    const QByteArray bytes = manifest(state);
    for (auto _ : state) {
        QXmlStreamReader reader(bytes);
        while (!reader.atEnd())
            benchmark::DoNotOptimize(reader.readNext());
        if (reader.hasError())
            giveUp(reader.errorString().toStdString());
    }
}
MEASURE(tokenize);

void save(benchmark::State &state) {
    const Tano::PackageInfo package = record(state);
    timeMaking(state, [&] { return package.saveToManifestContent(); });
}
MEASURE(save);

void loadAndSave(benchmark::State &state) {
    const std::string bytes = manifest(state).toStdString();
    timeMaking(state, [&] {
        Tano::PackageInfo package;
        if (!package.loadFromManifestContent(bytes))
            giveUp(package.errorString());
        return package.saveToManifestContent();
    });
}
MEASURE(loadAndSave);

// The decoded content of a document, so that only writing is measured.
struct Token {
    QXmlStreamReader::TokenType type;
    QString text; // or the name of the element
    QXmlStreamAttributes attributes;
};

std::vector<Token> tokensOf(const QByteArray &document) {
    std::vector<Token> tokens;
    QXmlStreamReader reader(document);
    while (!reader.atEnd()) {
        const auto type = reader.readNext();
        const bool isElement = type == QXmlStreamReader::StartElement;
        tokens.push_back({type, isElement ? reader.name().toString() : reader.text().toString(),
                          reader.attributes()});
    }
    return tokens;
}

QByteArray writeTokens(const std::vector<Token> &tokens) {
    QByteArray bytes;
    QXmlStreamWriter writer(&bytes);
    for (const Token &token : tokens) {
        switch (token.type) {
        case QXmlStreamReader::StartDocument:
            writer.writeStartDocument();
            writer.writeCharacters(QStringLiteral("\n"));
            break;
        case QXmlStreamReader::StartElement:
            writer.writeStartElement(token.text);
            writer.writeAttributes(token.attributes);
            break;
        case QXmlStreamReader::Characters:
            writer.writeCharacters(token.text);
            break;
        case QXmlStreamReader::EndElement:
            writer.writeEndElement();
            break;
        default:
            break;
        }
    }
    writer.writeCharacters(QStringLiteral("\n"));
    return bytes;
}

void writeWithQt(benchmark::State &state) {
    const QByteArray document = manifest(state);
    const std::vector<Token> tokens = tokensOf(document);
    if (writeTokens(tokens) != document)
        giveUp("QXmlStreamWriter writes another document");
    timeMaking(state, [&] { return writeTokens(tokens); });
}
MEASURE(writeWithQt);

// Models can neither be copied nor moved.
std::unique_ptr<PackageInfoModel> modelOf(const Tano::PackageInfo &package) {
    return std::make_unique<PackageInfoModel>(package);
}

void makeModels(benchmark::State &state) {
    const Tano::PackageInfo package = record(state);
    timeMaking(state, [&] { return modelOf(package); });
}
MEASURE(makeModels);

// Edits one child after the other, so that each is cold in the cache.
void editChild(benchmark::State &state) {
    const auto package = modelOf(record(state));
    const auto behaviors = package->behaviors();
    const RobotLanguage language = Language::defaultLanguage();
    const QString names[] = {QStringLiteral("A first name"), QStringLiteral("A second name")};
    int next = 0;
    int round = 0;
    for (auto _ : state) {
        behaviors.at(next)->setName(names[round], language);
        if (++next == behaviors.size()) {
            next = 0;
            round = 1 - round;
        }
    }
}
MEASURE(editChild);

void copyListDeeply(benchmark::State &state) {
    const Tano::PackageInfo package = record(state);
    timeMaking(state, [&] {
        std::vector<Tano::BehaviorInfo> copies = package.behaviors();
        for (Tano::BehaviorInfo &copy : copies)
            copy.setUserRequestable(copy.isUserRequestable()); // detaches its data
        return copies;
    });
}
MEASURE(copyListDeeply);

void addChildren(benchmark::State &state) {
    QStringList paths;
    for (int i = 0; i < countOf(state); ++i)
        paths.append(QString::fromStdString(SamplePackage::path(i)));
    timeMaking(state, [&] {
        auto package = std::make_unique<PackageInfoModel>();
        for (const QString &path : std::as_const(paths))
            package->addBehavior(path);
        return package;
    });
}
MEASURE(addChildren);

void validate(benchmark::State &state) {
    const auto package = modelOf(record(state));
    for (auto _ : state) {
        QStringList errors;
        QStringList warnings;
        benchmark::DoNotOptimize(PackageModel::validate(package.get(), errors, warnings));
    }
}
MEASURE(validate);

// Calls only the validator; editing behaviors is a separate case.
void recheckBehavior(benchmark::State &state) {
    const auto package = modelOf(record(state));
    PackageInfoValidator validator(package.get());
    validator.activate();
    const BehaviorInfoModel *behavior = package->behaviors().at(countOf(state) / 2);
    for (auto _ : state)
        validator.validateTriggerSentences(behavior);
}
MEASURE(recheckBehavior);

// A behavior whose name alternates between two values.
struct NameEdit {
    explicit NameEdit(const benchmark::State &state)
        : package(modelOf(record(state)))
        , behavior(package->behaviors().at(countOf(state) / 2)) {}

    std::unique_ptr<PackageInfoModel> package;
    BehaviorInfoModel *behavior;
    RobotLanguage language = Language::defaultLanguage();
    QString oldName = behavior->name(language);
    QString newName = QStringLiteral("Another name");
};

void setToAndFro(benchmark::State &state) {
    const NameEdit edit(state);
    for (auto _ : state) {
        edit.behavior->setName(edit.newName, edit.language);
        edit.behavior->setName(edit.oldName, edit.language);
    }
}
MEASURE(setToAndFro);

void redoAndUndo(benchmark::State &state) {
    const NameEdit edit(state);
    QUndoStack stack;
    stack.push(new BehaviorNameCommand(edit.package.get(), edit.behavior->path(), edit.newName,
                                       edit.language, true));
    stack.undo();
    if (edit.behavior->name(edit.language) != edit.oldName)
        giveUp("the command was not undone");
    for (auto _ : state) {
        stack.redo();
        stack.undo();
    }
}
MEASURE(redoAndUndo);

// Takes the first behavior out and puts it back; the latter is timed.
void undoRemoval(benchmark::State &state) {
    const auto package = modelOf(record(state));
    const auto path = Tano::FieldPath().field("behaviors").entry(SamplePackage::path(0));
    QUndoStack stack;
    stack.push(new PackageEditCommand(package.get(), {{PackageModel::Edit::Action::Remove, path}}));
    for (auto _ : state) {
        stack.undo();
        state.PauseTiming();
        stack.redo();
        state.ResumeTiming();
    }
}
MEASURE(undoRemoval);

// An edit of one text, with the list of issues brought up to date.
void editWithIssues(benchmark::State &state) {
    const NameEdit edit(state);
    PackageModel::IssueTracker tracker(edit.package.get());
    for (auto _ : state) {
        edit.behavior->setName(edit.newName, edit.language);
        benchmark::DoNotOptimize(tracker.update());
        edit.behavior->setName(edit.oldName, edit.language);
        benchmark::DoNotOptimize(tracker.update());
    }
}
MEASURE(editWithIssues);

void findChild(benchmark::State &state) {
    const auto package = modelOf(record(state));
    QStringList paths;
    for (int i = 0; i < countOf(state); ++i)
        paths.append(QString::fromStdString(SamplePackage::path(i)));
    int next = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(package->behavior(paths.at(next)));
        next = next + 1 == paths.size() ? 0 : next + 1;
    }
}
MEASURE(findChild);

} // namespace

int main(int argc, char **argv) {
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return EXIT_FAILURE;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return EXIT_SUCCESS;
}
