#include "observer_world.h"

#include "../tests/command_classes.h"

#include <memory>

namespace Observers {
namespace {

template<typename Object>
void callAny(World &world) {
    world.callAnySlot(world.any<Object>());
}

// Calls a function of the package that is not a slot.
template<auto function>
void callPackage(World &world) {
    if (auto *package = world.any<PackageInfoModel>()) {
        world.expectLag();
        static_cast<void>((package->*function)());
    }
}

template<auto function>
void callValidator(World &world) {
    if (auto *validator = world.any<PackageInfoValidator>())
        (validator->*function)();
}

template<typename Object>
void destroy(World &world) {
    world.expectLag();
    delete world.any<Object>();
}

void destroyPackage(World &world) {
    if (world.canDeletePackage())
        destroy<PackageInfoModel>(world);
}

void load(World &world) {
    auto *package = world.any<PackageInfoModel>();
    const std::size_t i = world.decisions.below(manifests().size());
    if (!package)
        return;
    world.trace(QStringLiteral("%1->load(%2)").arg(world.nameOf(package)).arg(i));
    world.expectRecord(package, loadedRecord(i));
    world.reset([&] { static_cast<void>(package->loadFromManifestContent(manifests().at(i))); });
}

void clear(World &world) {
    auto *package = world.any<PackageInfoModel>();
    if (!package)
        return;
    world.expectRecord(package, PackageInfoModel().packageInfo());
    world.reset([&] { package->clear(); });
}

void assign(World &world) {
    auto *to = world.any<PackageInfoModel>();
    const auto *from = world.any<PackageInfoModel>();
    if (!to)
        return;
    world.trace(QStringLiteral("%1 = %2").arg(world.nameOf(to), world.nameOf(from)));
    world.reset([&] { *to = *from; });
}

// A new package that replaces a deleted one, or is deleted at once.
void copy(World &world) {
    const auto *package = world.any<PackageInfoModel>();
    if (!package)
        return;
    world.reset([&] {
        auto copied = std::make_unique<PackageInfoModel>(*package);
        for (auto &place : world.packages) {
            if (!place) {
                place = world.watch(copied.release());
                return;
            }
        }
    });
}

void save(World &world) {
    if (const auto *package = world.any<PackageInfoModel>())
        static_cast<void>(package->saveToManifestContent());
}

void callBlocked(World &world) {
    const QPointer<BehaviorInfoModel> behavior = world.any<BehaviorInfoModel>();
    if (!behavior)
        return;
    world.expectLag();
    const bool wasBlocked = behavior->blockSignals(true);
    world.callAnySlot(behavior);
    if (behavior)
        behavior->blockSignals(wasBlocked);
}

void addValidator(World &world) {
    for (std::size_t i = 0; i < world.validators.size(); ++i) {
        auto &place = world.validators.at(i);
        if (place || !world.packages.at(i))
            continue;
        place = world.watch(new PackageInfoValidator(world.packages.at(i)));
        place->activate();
        return;
    }
}

void setKinds(World &world) {
    auto *validator = world.any<PackageInfoValidator>();
    if (!validator)
        return;
    const bool set = world.decisions.below(2) == 1;
    if (world.decisions.below(2))
        validator->setPackageErrors(PackageError::InvalidUID, set);
    else
        validator->setPackageWarnings(PackageWarning::MissingNames, set);
}

Commands::Arguments anyArguments(World &world, PackageInfoModel *package) {
    static const std::array texts{"a", "b", ".", "", "1.2", "2"};
    static const std::array codes{"en_US", "fr_FR", "ja_JP", "xx_YY"};
    const auto anyOf = [&world](const auto &choices) {
        return QString::fromLatin1(choices.at(world.decisions.below(choices.size())));
    };
    Commands::Arguments arguments;
    arguments.model = package;
    arguments.key = anyOf(texts);
    arguments.value.text = anyOf(texts);
    arguments.tag.code = anyOf(codes);
    arguments.index = int(world.decisions.below(4)) - 1;
    arguments.what.number = int(world.decisions.below(2));
    arguments.isAdd = world.decisions.below(2) == 1;
    arguments.isFinal = world.decisions.oneIn(4);
    return arguments;
}

void push(World &world) {
    auto *package = world.any<PackageInfoModel>();
    if (!package)
        return;
    const auto &classes = Commands::commandClasses();
    const Commands::CommandClass &chosen = classes.at(world.decisions.below(classes.size()));
    const Commands::Arguments arguments = anyArguments(world, package);
    world.onStack([&](QUndoStack &stack) {
        world.trace(QStringLiteral("push %1 %2 %3 %4 %5")
                        .arg(QLatin1String(chosen.name), arguments.key, arguments.value.text,
                             arguments.tag.code)
                        .arg(arguments.index));
        stack.push(chosen.make(arguments));
    });
}

template<auto function>
void callStack(World &world) {
    world.onStack([](QUndoStack &stack) { (stack.*function)(); });
}

} // namespace

const std::vector<Action> &actions() {
    static const std::vector<Action> all{
        {"package slot", Freedom::Edit, 24, callAny<PackageInfoModel>},
        {"behavior slot", Freedom::Edit, 16, callAny<BehaviorInfoModel>},
        {"dialog slot", Freedom::Edit, 4, callAny<DialogInfoModel>},
        {"service slot", Freedom::Edit, 3, callAny<ServiceInfoModel>},
        {"validator slot", Freedom::Read, 1, callAny<PackageInfoValidator>},
        {"validateAll", Freedom::Read, 1, callValidator<&PackageInfoValidator::validateAll>},
        {"activate", Freedom::Read, 2, callValidator<&PackageInfoValidator::activate>},
        {"deactivate", Freedom::Read, 1, callValidator<&PackageInfoValidator::deactivate>},
        {"add a validator", Freedom::Read, 2, addValidator},
        {"set errors", Freedom::Read, 1, setKinds},
        {"delete a validator", Freedom::Read, 1, destroy<PackageInfoValidator>},
        {"syncRecord", Freedom::Read, 2, callPackage<&PackageInfoModel::syncRecord>},
        {"trimExtraInfo", Freedom::Edit, 2, callPackage<&PackageInfoModel::trimExtraInfo>},
        {"save", Freedom::Read, 1, save},
        {"copy", Freedom::Read, 1, copy},
        {"load", Freedom::Reset, 4, load},
        {"clear", Freedom::Reset, 2, clear},
        {"assign", Freedom::Edit, 3, assign},
        {"createBehaviorInfoModels", Freedom::Edit, 1,
         callPackage<&PackageInfoModel::createBehaviorInfoModels>},
        {"genPlainTextFromScript", Freedom::Edit, 1,
         callPackage<&PackageInfoModel::genPlainTextFromScript>},
        {"blocked slot", Freedom::Edit, 1, callBlocked},
        {"delete a behavior", Freedom::Edit, 1, destroy<BehaviorInfoModel>},
        {"delete a dialog", Freedom::Edit, 1, destroy<DialogInfoModel>},
        {"delete a service", Freedom::Edit, 1, destroy<ServiceInfoModel>},
        {"delete a package", Freedom::Edit, 1, destroyPackage},
        {"push", Freedom::Edit, 16, push},
        {"undo", Freedom::Edit, 6, callStack<&QUndoStack::undo>},
        {"redo", Freedom::Edit, 3, callStack<&QUndoStack::redo>},
        {"clear the stack", Freedom::Edit, 1, callStack<&QUndoStack::clear>},
    };
    return all;
}

} // namespace Observers
