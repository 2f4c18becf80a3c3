#include "option_check.h"

#include <algorithm>

namespace ZelPackage {
namespace {

const QCommandLineOption *optionNamed(const QString &name,
                                      const QList<QCommandLineOption> &options) {
    const auto it =
        std::find_if(options.begin(), options.end(), [&](const QCommandLineOption &option) {
            return option.names().contains(name);
        });
    return it == options.end() ? nullptr : &*it;
}

bool takesValue(const QCommandLineOption &option) {
    return !option.valueName().isEmpty();
}

} // namespace

std::optional<QString> unknownOption(const QStringList &arguments,
                                     const QList<QCommandLineOption> &options) {
    for (int i = 0; i < arguments.size() && arguments.at(i) != QLatin1String("--"); ++i) {
        const QString &argument = arguments.at(i);
        if (argument.size() < 2 || !argument.startsWith(u'-'))
            continue;
        const bool isLong = argument.startsWith(QLatin1String("--"));
        const QString start = argument.section(u'=', 0, 0);
        const QString name = isLong ? start.mid(2) : argument.mid(1, 1);
        const QCommandLineOption *option = optionNamed(name, options);
        const bool isKnown = option && (isLong == (name.size() > 1)) &&
                             (isLong || argument.size() == 2 || takesValue(*option));
        if (!isKnown)
            return start;
        const bool hasValue = isLong ? argument.contains(u'=') : argument.size() > 2;
        if (takesValue(*option) && !hasValue)
            ++i;
    }
    return {};
}

} // namespace ZelPackage
