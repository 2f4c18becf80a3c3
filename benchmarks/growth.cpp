// Usage: growth write SHAPE NUMBER
//        growth run OPERATION FILE
//
// Writes a large manifest of some shape to standard output, or runs an operation on a manifest and
// prints the processor time in seconds and the peak resident memory in bytes. script/growth makes a
// table of both.

#include <packagemodel/package_info_model.h>
#include <packagemodel/package_info_utils.h>

#include <QString>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <iostream>
#include <string>
#include <sys/resource.h>

namespace {

using Zel::PackageInfoModel;

std::string codeOf(int number) {
    return "q" + std::to_string(number) + "_QQ";
}

std::string textOf(const char *what, int number) {
    return what + (' ' + std::to_string(number));
}

void addSentences(Tano::PackageInfo &package, int number) {
    Tano::BehaviorInfo behavior;
    behavior.setPath("greet");
    for (int i = 0; i < number; ++i)
        behavior.addTriggerSentence(textOf("say hello", i), "en_US");
    package.addBehavior(behavior);
    package.addSupportedLanguage("en_US");
}

void addLanguages(Tano::PackageInfo &package, int number) {
    for (int i = 0; i < number; ++i)
        package.addSupportedLanguage(codeOf(i));
}

void addNamedLanguages(Tano::PackageInfo &package, int number) {
    addLanguages(package, number);
    for (int i = 0; i < number; ++i)
        package.setName(textOf("name", i), codeOf(i));
}

void addTranslations(Tano::PackageInfo &package, int number) {
    addNamedLanguages(package, number);
    Tano::BehaviorInfo behavior;
    behavior.setPath("greet");
    for (int i = 0; i < number; ++i) {
        behavior.setName(textOf("name", i), codeOf(i));
        behavior.addTriggerSentence(textOf("hello", i), codeOf(i));
    }
    package.addBehavior(behavior);
}

// As many behaviors as languages, each with a sentence in only one language.
void addGrid(Tano::PackageInfo &package, int number) {
    addLanguages(package, number);
    for (int i = 0; i < number; ++i) {
        Tano::BehaviorInfo behavior;
        behavior.setPath(textOf("behavior", i));
        behavior.addTriggerSentence("hello", codeOf(i));
        package.addBehavior(behavior);
    }
}

void addLongPath(Tano::PackageInfo &package, int number) {
    addLanguages(package, number);
    Tano::BehaviorInfo behavior;
    behavior.setPath(std::string(4000, 'p'));
    behavior.addTriggerSentence("hello", codeOf(0));
    package.addBehavior(behavior);
}

void addDialogs(Tano::PackageInfo &package, int number) {
    for (int i = 0; i < number; ++i) {
        Tano::DialogInfo dialog;
        dialog.setTopicName(textOf("topic", i));
        package.addDialog(dialog);
    }
}

void addConditions(Tano::PackageInfo &package, int number) {
    Tano::BehaviorInfo behavior;
    behavior.setPath("greet");
    for (int i = 0; i < number; ++i)
        behavior.addCondition(textOf("someone is there", i), "start");
    package.addBehavior(behavior);
}

void addRequirements(Tano::PackageInfo &package, int number) {
    for (int i = 0; i < number; ++i)
        package.addRobotRequirement({textOf("model", i), "1.0", "2.0", "1.0", "2.0"});
}

struct Shape {
    const char *name;
    void (*fill)(Tano::PackageInfo &package, int number);
};

constexpr std::array shapes{Shape{"sentences", addSentences},
                            Shape{"languages", addLanguages},
                            Shape{"named", addNamedLanguages},
                            Shape{"translations", addTranslations},
                            Shape{"grid", addGrid},
                            Shape{"longPath", addLongPath},
                            Shape{"dialogs", addDialogs},
                            Shape{"conditions", addConditions},
                            Shape{"requirements", addRequirements}};

int write(const std::string &shape, int number) {
    const auto *found = std::find_if(shapes.begin(), shapes.end(),
                                     [&](const Shape &known) { return shape == known.name; });
    if (found == shapes.end())
        return EXIT_FAILURE;
    Tano::PackageInfo package;
    package.setUuid("growth");
    found->fill(package, number);
    std::cout << package.saveToManifestContent();
    return std::cout ? EXIT_SUCCESS : EXIT_FAILURE;
}

// Timed from the end of loading.

void nothing(PackageInfoModel &) {
}

void reload(PackageInfoModel &package) {
    static_cast<void>(package.loadFromManifestContent(package.saveToManifestContent()));
}

void copy(PackageInfoModel &package) {
    const PackageInfoModel copied(package);
}

void clear(PackageInfoModel &package) {
    package.clear();
}

void collectIssues(PackageInfoModel &package) {
    Zel::PackageModel::issues(&package);
}

void makeMessages(PackageInfoModel &package) {
    QStringList errors;
    QStringList warnings;
    Zel::PackageModel::validate(&package, errors, warnings);
}

void trim(PackageInfoModel &package) {
    package.trimExtraInfo();
}

void generatePlainText(PackageInfoModel &package) {
    package.genPlainTextFromScript();
}

// As many conditions as the package already has.
void appendConditions(PackageInfoModel &package) {
    Zel::BehaviorInfoModel &behavior = *package.behaviors().constFirst();
    const QString purpose = QStringLiteral("start");
    const auto number = behavior.conditions(purpose).size();
    for (int i = 0; i < number; ++i)
        behavior.addCondition(QStringLiteral("nobody sleeps %1").arg(i), purpose);
}

void updateRequirements(PackageInfoModel &package) {
    const auto number = int(package.robotRequirements().size());
    for (int i = 0; i < number; ++i)
        package.updateRobotRequirement(i, {QStringLiteral("another %1").arg(i), {}, {}, {}, {}});
}

struct Operation {
    const char *name;
    void (*run)(PackageInfoModel &package);
};

constexpr std::array operations{Operation{"load", nothing},
                                Operation{"reload", reload},
                                Operation{"copy", copy},
                                Operation{"clear", clear},
                                Operation{"issues", collectIssues},
                                Operation{"messages", makeMessages},
                                Operation{"trim", trim},
                                Operation{"plainText", generatePlainText},
                                Operation{"addCondition", appendConditions},
                                Operation{"updateRequirement", updateRequirements}};

double processorSeconds() {
    return double(std::clock()) / CLOCKS_PER_SEC;
}

long long peakBytes() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss * 1024LL;
}

int run(const std::string &name, const char *file) {
    const auto *operation =
        std::find_if(operations.begin(), operations.end(),
                     [&](const Operation &known) { return name == known.name; });
    if (operation == operations.end())
        return EXIT_FAILURE;
    double start = processorSeconds();
    PackageInfoModel package;
    if (!package.loadFromManifestFile(QString::fromLocal8Bit(file)))
        return EXIT_FAILURE;
    if (operation->run != nothing)
        start = processorSeconds();
    operation->run(package);
    std::printf("%.4f %lld\n", processorSeconds() - start, peakBytes());
    std::fflush(stdout);
    std::_Exit(EXIT_SUCCESS); // excludes the destruction of the package
}

} // namespace

int main(int argc, char **argv) {
    const std::string mode = argc == 4 ? argv[1] : "";
    if (mode == "write")
        return write(argv[2], std::atoi(argv[3]));
    if (mode == "run")
        return run(argv[2], argv[3]);
    std::cerr << "Usage: growth write SHAPE NUMBER\n       growth run OPERATION FILE\n";
    return EXIT_FAILURE;
}
