#include "observer_world.h"

#include "target.h"

#include <QIcon>
#include <QPixmap>

#include <numeric>

namespace Observers {
namespace {

const std::array texts{
    QStringLiteral("a"),
    QStringLiteral("b"),
    QStringLiteral("."),
    QString(),
    QStringLiteral("é<"),
    QStringLiteral("<speak>say <sub alias=\"x\">y</sub></speak>"),
    QStringLiteral("1.2"),
    QStringLiteral("a longer text, which lies on the heap in every encoding"),
};

const std::array codes{"en_US", "fr_FR", "ja_JP", "xx_YY", "fr_FR-x-scrpol"};

QString anyText(World &world) {
    return texts.at(world.decisions.below(texts.size()));
}

RobotLanguage anyLanguage(World &world) {
    const auto code = QString::fromLatin1(codes.at(world.decisions.below(codes.size())));
    const RobotLanguage known = robotLanguage(code);
    return known.isoCode().isEmpty() ? RobotLanguage(ISOCode(code), NuanceCode()) : known;
}

SoftwareVersion anyVersion(World &world) {
    return SoftwareVersion(
        std::vector<std::uint32_t>(world.decisions.below(5), world.decisions.below(4)));
}

template<typename Lists>
auto anyEntry(World &world, const Lists &lists) {
    return lists.empty() ? nullptr : &lists.at(world.decisions.below(lists.size()));
}

// A text inside a model, which the call or an observer may change; may be null.
const QString *anyTextInside(World &world) {
    if (const void *heard = world.heard("QString"); heard && world.decisions.below(2))
        return static_cast<const QString *>(heard);
    const auto *package = world.any<PackageInfoModel>();
    if (!package)
        return nullptr;
    const auto *entry =
        anyEntry(world, world.decisions.below(2) ? package->names() : package->descriptions());
    return entry ? &entry->first : nullptr;
}

const RobotLanguage *anyLanguageInside(World &world) {
    if (const void *heard = world.heard("RobotLanguage"); heard && world.decisions.below(2))
        return static_cast<const RobotLanguage *>(heard);
    const auto *package = world.any<PackageInfoModel>();
    if (!package)
        return nullptr;
    switch (world.decisions.below(4)) {
    case 0:
        return anyEntry(world, package->supportedLanguages());
    case 1:
        return anyEntry(world, package->descriptionLanguages());
    default:
        break;
    }
    const auto *entry = anyEntry(world, package->names());
    return entry ? &entry->second : nullptr;
}

template<typename Value>
void ownOrBorrow(World &world, CallArguments &arguments, Value (*make)(World &),
                 const Value *(*find)(World &)) {
    const Value *inside = world.decisions.oneIn(4) ? find(world) : nullptr;
    if (inside)
        arguments.borrow(inside);
    else
        arguments.own(make(world));
}

Tano::BehaviorInfo behaviorRecord(World &world) {
    Tano::BehaviorInfo record;
    record.setPath(anyText(world).toStdString());
    record.setUserRequestable(true);
    record.addTriggerSentence("go", "en_US");
    record.addTriggerSentence("go", "en_US");
    record.setName("Go", anyLanguage(world).isoCode().toStdString());
    return record;
}

Tano::DialogInfo dialogRecord(World &world) {
    Tano::DialogInfo record;
    record.setTopicName(anyText(world).toStdString());
    record.setTopic(anyLanguage(world).isoCode().toStdString(), "a.top");
    return record;
}

Tano::PackageService serviceRecord(World &world) {
    Tano::PackageService record;
    record.name = anyText(world).toStdString();
    record.properties = {{"nice", "1"}};
    return record;
}

BehaviorInfoModel *newChild(World &world, const BehaviorInfoModel *like) {
    return like ? new BehaviorInfoModel(*like) : new BehaviorInfoModel(behaviorRecord(world));
}

DialogInfoModel *newChild(World &world, const DialogInfoModel *like) {
    return like ? new DialogInfoModel(*like) : new DialogInfoModel(dialogRecord(world));
}

ServiceInfoModel *newChild(World &world, const ServiceInfoModel *like) {
    return like ? new ServiceInfoModel(*like) : new ServiceInfoModel(serviceRecord(world));
}

// Removals accept any address; everything else needs a living child.
template<typename Child>
void chooseChild(World &world, const QMetaMethod &method, CallArguments &arguments) {
    const auto *address = static_cast<const Child *>(nullptr);
    const unsigned choice = world.decisions.below(8);
    if (choice == 0 && method.name().startsWith("remove"))
        address = static_cast<const Child *>(world.anyAddress());
    else if (choice == 1)
        address = world.watch(newChild(world, world.any<Child>()));
    else if (choice == 2)
        address = world.watch(newChild(world, static_cast<const Child *>(nullptr)));
    else if (choice > 3)
        address = world.any<Child>();
    arguments.own(const_cast<Child *>(address));
}

void useBytes(const void *data, std::size_t size) {
    static volatile unsigned sink = 0;
    const auto *bytes = static_cast<const unsigned char *>(data);
    sink = std::accumulate(bytes, bytes + size, unsigned(sink));
}

void useText(const QString &text) {
    useBytes(text.constData(), std::size_t(text.size()) * sizeof(QChar));
}

template<typename Value>
const Value &as(const void *value) {
    return *static_cast<const Value *>(value);
}

template<typename Value>
QString noText(const void *) {
    return QStringLiteral("...");
}

template<typename Child>
ValueKind childKind(const char *type) {
    return {
        type, chooseChild<Child>, [](const void *value) { useBytes(value, sizeof(void *)); },
        [](const void *value) { return QString::number(quintptr(as<const void *>(value)), 16); }};
}

template<typename Value>
void copyValue(const void *value) {
    const auto copy = as<Value>(value);
    static_cast<void>(copy);
}

template<typename Value, Value (*make)(World &)>
void chooseOwn(World &world, const QMetaMethod &, CallArguments &arguments) {
    arguments.own(make(world));
}

int anyIndex(World &world) {
    return int(world.decisions.below(5)) - 1;
}

bool anyBool(World &world) {
    return world.decisions.below(2) == 1;
}

QIcon anyIcon(World &world) {
    static const auto colored = [](Qt::GlobalColor color) {
        QPixmap pixmap(2, 2);
        pixmap.fill(color);
        return QIcon(pixmap);
    };
    static const std::array icons{QIcon(), colored(Qt::red), colored(Qt::blue)};
    return icons.at(world.decisions.below(icons.size()));
}

RobotRequirement anyRobotRequirement(World &world) {
    RobotRequirement requirement;
    requirement.model = anyText(world);
    requirement.minHeadVersion = anyVersion(world);
    return requirement;
}

BrioRequirement anyBrioRequirement(World &world) {
    return {anyVersion(world), anyVersion(world)};
}

} // namespace

CallArguments::CallArguments()
    : m_result(std::make_shared<std::array<std::byte, 64>>())
    , m_pointers{m_result.get()} {
}

const ValueKind &valueKind(const QByteArray &type) {
    static const std::vector<ValueKind> kinds{
        {"QString",
         [](World &world, const QMetaMethod &, CallArguments &arguments) {
             ownOrBorrow(world, arguments, anyText, anyTextInside);
         },
         [](const void *value) { useText(as<QString>(value)); },
         [](const void *value) { return QStringLiteral("\"%1\"").arg(as<QString>(value)); }},
        {"RobotLanguage",
         [](World &world, const QMetaMethod &, CallArguments &arguments) {
             ownOrBorrow(world, arguments, anyLanguage, anyLanguageInside);
         },
         [](const void *value) { useText(as<RobotLanguage>(value).isoCode()); },
         [](const void *value) { return as<RobotLanguage>(value).isoCode(); }},
        {"RobotLanguages", nullptr,
         [](const void *value) {
             for (const RobotLanguage &language : as<RobotLanguages>(value))
                 useText(language.isoCode());
         },
         noText<RobotLanguages>},
        {"int", chooseOwn<int, anyIndex>, copyValue<int>,
         [](const void *value) { return QString::number(as<int>(value)); }},
        {"bool", chooseOwn<bool, anyBool>, copyValue<bool>,
         [](const void *value) { return QString::number(as<bool>(value)); }},
        {"SoftwareVersion", chooseOwn<SoftwareVersion, anyVersion>,
         [](const void *value) {
             const auto &fields = as<SoftwareVersion>(value).fields();
             useBytes(fields.data(), fields.size() * sizeof(fields.front()));
         },
         [](const void *value) {
             return SoftwareVersionUtils::toString(as<SoftwareVersion>(value));
         }},
        {"RobotRequirement", chooseOwn<RobotRequirement, anyRobotRequirement>,
         [](const void *value) { useText(as<RobotRequirement>(value).model); },
         noText<RobotRequirement>},
        {"BrioRequirement", chooseOwn<BrioRequirement, anyBrioRequirement>,
         copyValue<BrioRequirement>, noText<BrioRequirement>},
        {"QIcon", chooseOwn<QIcon, anyIcon>, copyValue<QIcon>, noText<QIcon>},
        {"Tano::BehaviorInfo", chooseOwn<Tano::BehaviorInfo, behaviorRecord>,
         copyValue<Tano::BehaviorInfo>, noText<Tano::BehaviorInfo>},
        {"Tano::DialogInfo", chooseOwn<Tano::DialogInfo, dialogRecord>, copyValue<Tano::DialogInfo>,
         noText<Tano::DialogInfo>},
        {"Tano::PackageService", chooseOwn<Tano::PackageService, serviceRecord>,
         copyValue<Tano::PackageService>, noText<Tano::PackageService>},
        childKind<BehaviorInfoModel>("BehaviorInfoModel*"),
        childKind<BehaviorInfoModel>("const BehaviorInfoModel*"),
        childKind<DialogInfoModel>("DialogInfoModel*"),
        childKind<ServiceInfoModel>("ServiceInfoModel*"),
        {"QObject*", nullptr, copyValue<QObject *>, noText<QObject *>},
    };
    for (const ValueKind &kind : kinds) {
        if (type == kind.type)
            return kind;
    }
    require(false, "there are values of type " + type.toStdString());
    return kinds.front();
}

} // namespace Observers
