#include "problem_details.h"

#include "widgets/hint_label.h"

#include <QLabel>
#include <QPushButton>
#include <QStringBuilder>
#include <QVBoxLayout>

#include <algorithm>
#include <memory>

namespace Editor {

using Zel::PackageModel::Fix;
using Zel::PackageModel::Issue;

ProblemDetails::ProblemDetails(QWidget *parent)
    : QScrollArea(parent)
    , m_hint(new HintLabel(
          tr("The explanation of the selected problem and ways to correct it appear here."), this))
    , m_explanation(new QLabel(this))
    , m_buttons(new QVBoxLayout) {
    m_hint->setWordWrap(true);
    m_explanation->setWordWrap(true);
    m_explanation->setTextFormat(Qt::PlainText);
    m_explanation->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto *content = new QWidget(this);
    auto *layout = new QVBoxLayout(content);
    layout->addWidget(m_hint);
    layout->addLayout(m_buttons);
    layout->addWidget(m_explanation);
    layout->addStretch();
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setWidget(content);
}

void ProblemDetails::show(const Issue *issue, const QVector<Fix> &fixes, QWidget *previous) {
    while (m_buttons->count() > 0) {
        const std::unique_ptr<QLayoutItem> item(m_buttons->takeAt(0));
        item->widget()->deleteLater();
    }
    m_hint->setVisible(!issue);
    m_explanation->setVisible(issue);
    if (!issue)
        return;
    const auto rules = Zel::PackageModel::rules();
    const auto rule = std::find_if(rules.begin(), rules.end(),
                                   [&](const auto &each) { return each.id == issue->id; });
    m_explanation->setText(issue->plainText() % QLatin1String("\n\n") % rule->explanation % u' ' %
                           rule->remedy);
    const auto add = [&](QPushButton *button) {
        m_buttons->addWidget(button, 0, Qt::AlignLeft);
        if (previous->window() == button->window())
            setTabOrder(previous, button);
        previous = button;
    };
    for (const Fix &fix : fixes) {
        auto *button = new QPushButton(withoutMnemonics(fix.title));
        connect(button, &QPushButton::clicked, this,
                [this, title = fix.title] { Q_EMIT fixWanted(title); });
        add(button);
    }
    auto *ignore = new QPushButton(tr("Ignore"));
    ignore->setToolTip(tr("Writes a comment that turns off the rule here"));
    connect(ignore, &QPushButton::clicked, this, &ProblemDetails::ignoreWanted);
    add(ignore);
}

QString withoutMnemonics(QString text) {
    return text.replace(u'&', QStringLiteral("&&"));
}

} // namespace Editor
