#include "text_cells.h"

#include "document/field_edits.h"
#include "widgets/marks.h"
#include "widgets/plain_text.h"

#include <packagemodel/language_name.h>

#include <QApplication>
#include <QFont>
#include <QLocale>
#include <QPalette>

#include <array>

namespace Editor {

using Tano::FieldPath;
using Zel::PackageModel::Severity;
using Zel::PackageModel::TextState;
using Zel::PackageModel::TranslatableText;

namespace {

struct StateRow {
    const char *words;
    std::optional<Severity> severity; // of the mark
};

// In the order of TextState.
const std::array stateRows{
    StateRow{QT_TRANSLATE_NOOP("Editor::TextCells", "Missing"), Severity::Warning},
    StateRow{QT_TRANSLATE_NOOP("Editor::TextCells", "Malformed script"), Severity::Error},
    StateRow{QT_TRANSLATE_NOOP("Editor::TextCells", "Source changed"), Severity::Warning},
    StateRow{QT_TRANSLATE_NOOP("Editor::TextCells", "Same as source"), Severity::Note},
    StateRow{QT_TRANSLATE_NOOP("Editor::TextCells", "Translated"), std::nullopt},
};

QString inWords(const char *text) {
    return QCoreApplication::translate("Editor::TextCells", text);
}

// "Name" or "Tag 2", without owner and language, which are in the headings.
QString fieldWords(const FieldPath &path) {
    const auto form = Zel::PackageModel::formOf(path);
    const QString label = form ? form->label : QString();
    return path.steps().back().selectors.size() < 2
               ? label
               : QStringLiteral("%1 %2").arg(label, QLocale().toString(itemIndex(path) + 1));
}

// In one line.
QString excerptOf(const QString &text) {
    constexpr int longest = 300;
    return text.left(longest).simplified();
}

QString ofLanguage(const QString &title, const QString &code) {
    return code.isEmpty()
               ? title
               : QStringLiteral("%1: %2").arg(
                     title, Zel::PackageModel::languageName(Zel::Language::languageInUse(code)));
}

QString shownText(const TranslatableText &text, TextState state, TextColumn column) {
    switch (column) {
    case TextColumn::Field:
        return fieldWords(text.path);
    case TextColumn::Source:
        return excerptOf(text.source);
    case TextColumn::Target:
        return excerptOf(text.target);
    case TextColumn::State:
        break;
    }
    return stateWords(state);
}

QString wholeText(const TranslatableText &text, TextColumn column) {
    return column == TextColumn::Source   ? text.source
           : column == TextColumn::Target ? text.target
                                          : Zel::PackageModel::label(text.path);
}

} // namespace

QString columnTitle(TextColumn column, const LanguagePair &languages) {
    switch (column) {
    case TextColumn::Field:
        return inWords(QT_TRANSLATE_NOOP("Editor::TextCells", "Field"));
    case TextColumn::Source:
        return ofLanguage(inWords(QT_TRANSLATE_NOOP("Editor::TextCells", "Source")),
                          languages.sourceLanguage);
    case TextColumn::Target:
        return ofLanguage(inWords(QT_TRANSLATE_NOOP("Editor::TextCells", "Translation")),
                          languages.language);
    case TextColumn::State:
        break;
    }
    return inWords(QT_TRANSLATE_NOOP("Editor::TextCells", "State"));
}

QString stateWords(TextState state) {
    return inWords(stateRows[std::size_t(state)].words);
}

QVariant headingCell(const TextGroup &group, TextColumn column, int role) {
    const QString title = group.owner.isEmpty()
                              ? inWords(QT_TRANSLATE_NOOP("Editor::TextCells", "Package"))
                              : Zel::PackageModel::label(group.owner);
    const QPalette palette = QApplication::palette();
    switch (role) {
    case Qt::DisplayRole:
        if (column == TextColumn::State)
            return inWords(QT_TRANSLATE_NOOP("Editor::TextCells", "%1 of %2"))
                .arg(QLocale().toString(group.present()), QLocale().toString(group.texts.size()));
        return column == TextColumn::Field ? title : QString();
    case Qt::ToolTipRole:
        return toolTipOf(title);
    case Qt::FontRole: {
        QFont font = QApplication::font("QAbstractItemView");
        font.setBold(true);
        return font;
    }
    case Qt::ForegroundRole: // although it is disabled, so that the cursor skips it
        return palette.brush(QPalette::Active, QPalette::Text);
    case Qt::BackgroundRole:
        return palette.brush(QPalette::Active, QPalette::Window);
    default:
        return {};
    }
}

QVariant textCell(const TranslatableText &text, TextState state, TextColumn column, int role) {
    const auto &severity = stateRows[std::size_t(state)].severity;
    switch (role) {
    case Qt::DisplayRole:
        return shownText(text, state, column);
    case Qt::EditRole:
        return column == TextColumn::Target ? text.target : QVariant();
    case Qt::ToolTipRole:
        return toolTipOf(wholeText(text, column));
    case Qt::BackgroundRole:
        return column == TextColumn::State && severity ? severityColor(*severity) : QVariant();
    default:
        return {};
    }
}

} // namespace Editor
