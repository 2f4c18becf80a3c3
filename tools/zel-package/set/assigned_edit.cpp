#include "assigned_edit.h"

#include "arguments/language_argument.h"

#include <packagemodel/package_info_model.h>
#include <packagemodel/package_json.h>

#include <QCoreApplication>
#include <QJsonObject>

namespace ZelPackage {
namespace {

using Tano::FieldPath;
using Zel::PackageModel::Edit;
using Zel::PackageModel::FieldForm;
using Zel::PackageModel::FieldKind;
using Zel::PackageModel::FieldValue;

QString text(const char *source) {
    return QCoreApplication::translate("zel-package", source);
}

// An assignment that adds an entry: "[+]" after a list, optionally followed by a field of the
// entry.
struct Addition {
    FieldPath list;
    std::optional<std::string> field;
};

std::optional<Addition> additionOf(const FieldPath &path) {
    const auto isEnd = [](const FieldPath &part) {
        const auto &selectors = part.steps().back().selectors;
        return !selectors.empty() && selectors.back().appends;
    };
    if (isEnd(path))
        return Addition{path.parent(), {}};
    const FieldPath owner = path.parent();
    if (!owner.isEmpty() && path.steps().back().selectors.empty() && isEnd(owner))
        return Addition{owner.parent(), path.steps().back().field};
    return {};
}

// Warns that versions of packages are limited to three numbers.
QString remarkOnVersion(Zel::SoftwareVersion version) {
    if (version.fieldsCount() <= 3)
        return {};
    version.setFieldsCount(3);
    return text(QT_TRANSLATE_NOOP("zel-package",
                                  "The version of a package has three fields, so it becomes %1."))
        .arg(Zel::SoftwareVersionUtils::toString(version));
}

class Resolver {
public:
    Resolver(const Assignment &assignment, const Zel::PackageInfoModel &package)
        : m_assignment(assignment)
        , m_package(package) {}

    AssignedEdit resolve();

private:
    bool checkLanguage(const FieldForm &form, bool isAddition, QString &message) const;
    AssignedEdit resolved(const FieldForm &form, const std::optional<Addition> &addition) const;
    AssignedEdit add(const Addition &addition, const FieldForm &form) const;
    AssignedEdit remove() const;
    AssignedEdit set(const FieldForm &form) const;
    bool has(const FieldPath &path) const {
        return Zel::PackageModel::value(&m_package, path).has_value();
    }

    const Assignment &m_assignment;
    const Zel::PackageInfoModel &m_package;
};

// A language is given as a key, or as the entry to add.
bool Resolver::checkLanguage(const FieldForm &form, bool isAddition, QString &message) const {
    const auto &selectors = m_assignment.path.steps().back().selectors;
    if (!form.selectors.startsWith(QLatin1String("[CODE]")) || selectors.empty())
        return true;
    const QString code = isAddition && selectors.size() == 1
                             ? m_assignment.value.value_or(QString())
                             : Zel::fromUtf8(selectors.front().text);
    return languageArgument(code, message).has_value();
}

AssignedEdit Resolver::add(const Addition &addition, const FieldForm &form) const {
    const QString value = m_assignment.value.value_or(QString());
    if (value.isEmpty())
        return {{}, text(QT_TRANSLATE_NOOP("zel-package", "The value cannot be empty."))};
    AssignedEdit result;
    std::optional<FieldValue> entry =
        Zel::PackageModel::parsedValue(form.kind, value, &result.error);
    if (entry && addition.field) {
        const auto listForm = Zel::PackageModel::formOf(addition.list);
        const QJsonObject fields{
            {QString::fromStdString(*addition.field), Zel::PackageModel::toJson(*entry)}};
        entry = Zel::PackageModel::valueFromJson(listForm->kind, fields, &result.error);
    }
    if (!entry)
        return result;
    const auto entries = Zel::PackageModel::entries(&m_package, addition.list);
    const bool isThere = entries.contains(*entry) ||
                         (form.isKey && has(FieldPath(addition.list).key(Zel::toUtf8(value))));
    if (!isThere)
        result.edit = Edit{Edit::Action::Insert, addition.list, entry,
                           m_assignment.index.value_or(int(entries.size()))};
    return result;
}

AssignedEdit Resolver::remove() const {
    const FieldPath &path = m_assignment.path;
    if (has(path) || path.steps().back().selectors.back().toIndex())
        return {Edit{Edit::Action::Remove, path}};
    return {{},
            {},
            text(QT_TRANSLATE_NOOP("zel-package", "It does not exist, so nothing is removed."))};
}

AssignedEdit Resolver::set(const FieldForm &form) const {
    const QString value = m_assignment.value.value_or(QString());
    if (value.isEmpty() && !m_assignment.path.steps().back().selectors.empty())
        return remove();
    const bool isPackageVersion = m_assignment.path == FieldPath().field("version");
    if (value.isEmpty() && (form.isKey || isPackageVersion))
        return {{}, text(QT_TRANSLATE_NOOP("zel-package", "The value cannot be empty."))};
    AssignedEdit result;
    if (form.kind > FieldKind::Version)
        result.error =
            text(QT_TRANSLATE_NOOP("zel-package", "This is an entry: an empty VALUE removes it, "
                                                  "and '%1.FIELD=VALUE' sets one of its fields."))
                .arg(m_assignment.field);
    else if (const auto parsed = Zel::PackageModel::parsedValue(form.kind, value, &result.error))
        result.edit = Edit{Edit::Action::Set, m_assignment.path, parsed};
    if (result.edit && isPackageVersion)
        result.remark = remarkOnVersion(std::get<Zel::SoftwareVersion>(*result.edit->value));
    return result;
}

AssignedEdit Resolver::resolve() {
    QString error;
    const auto form = Zel::PackageModel::formOf(m_assignment.path, &error);
    if (!form && Zel::PackageModel::formOf(FieldPath(m_assignment.path).key("en_US")))
        return {{},
                text(QT_TRANSLATE_NOOP("zel-package", "It needs a language, as in %1[en_US]."))
                    .arg(m_assignment.field)};
    if (!form)
        return {{}, error};
    const auto addition = additionOf(m_assignment.path);
    if (form->isList)
        return {{},
                text(QT_TRANSLATE_NOOP("zel-package", "This is a list: '%1[+]=VALUE' adds to it, "
                                                      "'%1[+]@INDEX=VALUE' at an index."))
                    .arg(m_assignment.field)};
    if (m_assignment.index && m_assignment.value && !addition)
        return {{},
                text(QT_TRANSLATE_NOOP("zel-package", "'@INDEX' with a value adds an entry, so it "
                                                      "follows the key [+]."))};
    QString message;
    if (!checkLanguage(*form, addition.has_value(), message))
        return {{}, message};
    AssignedEdit result = resolved(*form, addition);
    if (result.remark.isEmpty())
        result.remark = message;
    return result;
}

AssignedEdit Resolver::resolved(const FieldForm &form,
                                const std::optional<Addition> &addition) const {
    if (addition)
        return add(*addition, form);
    if (m_assignment.value)
        return set(form);
    return {Edit{Edit::Action::Move, m_assignment.path, {}, *m_assignment.index}};
}

} // namespace

AssignedEdit assignedEdit(const Assignment &assignment, const Zel::PackageInfoModel &package) {
    return Resolver(assignment, package).resolve();
}

} // namespace ZelPackage
