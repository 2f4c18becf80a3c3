#pragma once

#include "arguments/language_argument.h"
#include "arguments/suggestion.h"
#include "assignment.h"
#include "console/console.h"

#include <packagemodel/package_info_model.h>
#include <packagemodel/text_conversion.h>

#include <QCoreApplication>

#include <optional>

namespace ZelPackage {

/// The key that appends to a list.
const QLatin1String appendKey("+");

/// An assignment on its way to the model, and the console that its faults are reported to.
class Edit {
public:
    Edit(const Assignment &assignment, Console &console)
        : m_assignment(assignment)
        , m_console(console) {}

    const Tano::FieldPath &path() const { return m_assignment.path; }
    const QString &value() const { return m_assignment.value; }

    /// Reports what is wrong with the field or its value. Always false.
    bool refuse(const QString &message) const;

    // The meaning of a key or a value; on failure, reports the reason and returns nothing.

    std::optional<Zel::RobotLanguage> language(const QString &key) const;
    /// A version, which an empty value clears.
    std::optional<Zel::SoftwareVersion> version() const;
    /// "true" or "false".
    std::optional<bool> flag() const;
    /// A position in a list of `size` items.
    std::optional<int> index(const QString &key, int size) const;

private:
    const Assignment &m_assignment;
    Console &m_console;
};

/// One field of an owner: its name, the rest of its path ("[CODE][N]"), and the function that sets
/// it, which returns false if it refuses the edit. "FIELD" means a field of a part of the owner.
template<typename Owner>
struct FieldRow {
    const char *name;
    const char *rest;
    bool (*set)(const Edit &edit, Owner &owner, const QStringList &keys);
};

/// Sets the field whose row the step of the edit's path names; false if the edit is refused.
template<typename Table, typename Owner>
bool setField(const Table &table, const Edit &edit, Owner &owner, std::size_t step) {
    const auto &steps = edit.path().steps();
    const QString field = Zel::fromUtf8(steps.at(step).field);
    QStringList keys;
    for (const auto &selector : steps.at(step).selectors)
        keys += Zel::fromUtf8(selector.text);
    QStringList names;
    for (const auto &row : table)
        names += QLatin1String(row.name);
    const auto index = names.indexOf(field);
    if (index < 0)
        return edit.refuse(QCoreApplication::translate("zel-package", "There is no field '%1'%2")
                               .arg(field, suggestion(field, names,
                                                      QCoreApplication::translate(
                                                          "zel-package", "; the fields are %1.")
                                                          .arg(names.join(QStringLiteral(", "))))));
    const auto &row = table[std::size_t(index)];
    const QLatin1String rest(row.rest);
    const bool hasParts = QString(rest).endsWith(QLatin1String("FIELD"));
    if (keys.size() != QString(rest).count(u'[') || steps.size() != step + (hasParts ? 2 : 1))
        return edit.refuse(
            QCoreApplication::translate("zel-package", "It is written '%1%2'.").arg(field, rest));
    return row.set(edit, owner, keys);
}

} // namespace ZelPackage
