#include "languages_model.h"

#include "document/field_edits.h"
#include "widgets/marks.h"
#include "widgets/plain_text.h"

#include <packagemodel/language_name.h>

#include <QLocale>

namespace Editor {
namespace {

using Tano::FieldPath;
using Zel::RobotLanguage;
using Zel::Language::languageInUse;
using Zel::PackageModel::Edit;
using Zel::PackageModel::LanguageCoverage;

} // namespace

FieldPath LanguagesModel::listOf(Column column) {
    return FieldPath().field(column == Supported ? "supportedLanguages" : "descriptionLanguages");
}

LanguagesModel::LanguagesModel(Document &document, QObject *parent)
    : TableModel(document, parent) {
    start();
}

QString LanguagesModel::summary() const {
    const auto &supported = package()->supportedLanguages();
    int names = 0;
    int descriptions = 0;
    for (const RobotLanguage &language : supported) {
        names += int(package()->hasNameFor(language));
        descriptions += int(package()->hasDescriptionFor(language));
    }
    return tr("Supported languages: %1. With a name: %2. With a description: %3.")
        .arg(supported.size())
        .arg(names)
        .arg(descriptions);
}

QStringList LanguagesModel::currentKeys() const {
    QStringList keys;
    for (const RobotLanguage &language : document().languages())
        keys.append(language.isoCode());
    return keys;
}

QStringList LanguagesModel::titles() const {
    return {tr("Language"), tr("Supported"),   tr("Described"),
            tr("Name"),     tr("Description"), tr("Coverage")};
}

int LanguagesModel::columnCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : 6;
}

FieldPath LanguagesModel::fieldOf(const QModelIndex &index) const {
    if (index.column() != Name && index.column() != Description)
        return {};
    return FieldPath()
        .field(index.column() == Name ? "names" : "descriptions")
        .key(Zel::toUtf8(key(index)));
}

QVariant LanguagesModel::display(const QModelIndex &index) const {
    if (index.column() == Language)
        return Zel::PackageModel::languageName(languageInUse(key(index)));
    if (index.column() != Coverage)
        return fieldText(package(), field(index));
    const auto total = document().coverage(key(index)).total();
    return total.expected == 0
               ? QString()
               : tr("%1 of %2")
                     .arg(QLocale().toString(total.present), QLocale().toString(total.expected));
}

QVariant LanguagesModel::data(const QModelIndex &index, int role) const {
    if (!index.isValid() || !checkIndex(index))
        return {};
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return display(index);
    case Qt::CheckStateRole:
        if (index.column() != Supported && index.column() != Described)
            return {};
        return isIn(Column(index.column()), key(index)) ? Qt::Checked : Qt::Unchecked;
    case CodeRole:
        return key(index);
    case PercentRole: {
        const LanguageCoverage coverage = document().coverage(key(index));
        return coverage.total().expected == 0 ? QVariant() : coverage.percent();
    }
    default:
        break;
    }
    const FieldPath marked =
        index.column() == Language ? listOf(Supported).key(Zel::toUtf8(key(index))) : field(index);
    const QVariant mark = markData(Mark::ofIssue(document().issueAt(marked)), role);
    if (!mark.isValid() && role == Qt::ToolTipRole)
        return toolTipOf(index.column() == Language ? key(index) : display(index).toString());
    return mark;
}

bool LanguagesModel::setData(const QModelIndex &index, const QVariant &value, int role) {
    if (!index.isValid() || !checkIndex(index))
        return false;
    const auto column = Column(index.column());
    if (role != Qt::CheckStateRole || (column != Supported && column != Described))
        return TableModel::setData(index, value, role);
    switchIn(column, key(index));
    return true;
}

bool LanguagesModel::isIn(Column column, const QString &code) const {
    const RobotLanguage language = languageInUse(code);
    return column == Supported ? package()->hasLanguageSupport(language)
                               : package()->hasLanguageDescription(language);
}

void LanguagesModel::switchIn(Column column, const QString &code) {
    const FieldPath list = listOf(column);
    document().edit({isIn(column, code)
                         ? Edit{Edit::Action::Remove, FieldPath(list).key(Zel::toUtf8(code))}
                         : appended(list, code)});
}

void LanguagesModel::add(const QString &code) {
    document().edit({appended(listOf(Supported), code)});
}

void LanguagesModel::remove(const QVector<int> &rows) {
    QStringList codes;
    Zel::PackageModel::Edits edits;
    for (const int row : rows) {
        codes.append(keys().at(row));
        edits += Zel::PackageModel::languageRemoval(package(), codes.last());
    }
    document().edit(edits, tr("Remove language %1").arg(codes.join(QStringLiteral(", "))));
}

Qt::ItemFlags LanguagesModel::extraFlags(const QModelIndex &index) const {
    switch (index.column()) {
    case Supported:
    case Described:
        return Qt::ItemIsUserCheckable;
    case Name:
    case Description:
        return Qt::ItemIsEditable;
    default:
        return Qt::NoItemFlags;
    }
}

} // namespace Editor
