#include "labeled_list.h"

#include "text_layout.h"

#include <algorithm>

namespace ZelPackage {
namespace {

constexpr int gap = 2;
constexpr int widestLabelColumn = 24;
constexpr int narrowestTextColumn = 16;

} // namespace

void LabeledList::add(const QString &label, const QString &text) {
    m_fields.push_back({printable(label), text, {}});
}

void LabeledList::addFilled(const QString &label, const QString &text) {
    if (!text.isEmpty())
        add(label, text);
}

void LabeledList::addMarked(const QString &label, const QString &text, const QString &remark) {
    m_fields.push_back({printable(label), text, u'(' % remark % u')'});
}

int LabeledList::labelWidth() const {
    int width = 0;
    for (const Field &field : m_fields)
        width = std::max(width, displayWidth(field.label));
    return std::min(width, widestLabelColumn);
}

QStringList LabeledList::linesOf(const Field &field, int width, const Console &console) {
    QStringList lines;
    if (!field.text.isEmpty() || field.remark.isEmpty())
        lines = wrapped(field.text, width);
    if (field.remark.isEmpty())
        return lines;
    const QString remark = console.styled(field.remark, Style::Caution);
    if (!lines.isEmpty() && displayWidth(lines.last() % u' ' % field.remark) <= width)
        lines.last() += u' ' % remark;
    else
        lines += remark;
    return lines;
}

QString LabeledList::toText(const Console &console, int indent, int labelWidth) const {
    labelWidth = std::min(labelWidth, console.width() - narrowestTextColumn - indent - gap);
    const int textColumn = indent + labelWidth + gap;
    const int textWidth = std::max(narrowestTextColumn, console.width() - textColumn);

    QString result;
    for (const Field &field : m_fields) {
        const bool isMarked = !field.remark.isEmpty();
        QString label =
            isMarked ? console.styled(QStringLiteral("!"), Style::Caution) : QStringLiteral(" ");
        label += QString(indent - 1, u' ') % console.styled(field.label, Style::Faint);
        const int labelSpace = textColumn - indent - displayWidth(field.label);
        // A label that does not fit into its column gets a separate line.
        label += labelSpace < gap ? u'\n' % QString(textColumn, u' ') : QString(labelSpace, u' ');

        QString margin = label;
        const QStringList lines = linesOf(field, textWidth, console);
        for (const QString &line : lines) {
            result += withoutSpacesAtEnd(margin % line) % u'\n';
            margin = QString(textColumn, u' ');
        }
    }
    return result;
}

} // namespace ZelPackage
