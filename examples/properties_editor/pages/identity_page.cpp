#include "identity_page.h"

#include "widgets/hint_label.h"
#include "widgets/icon_button.h"
#include "widgets/icons.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

namespace Editor {

using Tano::FieldPath;

IdentityPage::IdentityPage(Document &document, QWidget *parent)
    : Page(document, tr("&Identity"), iconOf(Symbol::Identity), parent) {
    auto *form = new QFormLayout;
    form->setHorizontalSpacing(12);
    form->setVerticalSpacing(8);
    form->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    form->addRow(newHeading(tr("Package"), this));
    addText(form, tr("&UID:"), QStringLiteral("my-app"), "uid");
    addText(form, tr("Ve&rsion:"), QStringLiteral("1.0.0"), "version");
    addText(form, tr("&Type version:"), {}, "typeVersion");
    addText(form, tr("Path on the ro&bot:"), {}, "path");
    addText(form, tr("I&nstaller:"), {}, "installer");
    form->addItem(new QSpacerItem(0, 12));
    form->addRow(newHeading(tr("Publisher"), this));
    addText(form, tr("&Author:"), {}, "author");
    addText(form, tr("&Organization:"), {}, "organization");
    addText(form, tr("&Date:"), QStringLiteral("2026-09-14"), "date");
    addText(form, tr("&Channel:"), {}, "channel");
    addOthers(form);

    auto *icon = new IconButton(document, this);
    m_icon = icon;
    auto *choose = new QPushButton(iconOf(Symbol::Open), tr("Choose &Icon…"), this);
    choose->setAutoDefault(false);
    connect(choose, &QPushButton::clicked, icon, &IconButton::choose);
    auto *hint = new HintLabel(icon->fileState(), this);
    hint->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    hint->setWordWrap(true);
    hint->setMinimumHeight(3 * hint->fontMetrics().lineSpacing());
    connect(icon, &IconButton::refreshed, hint, [icon, hint] { hint->setText(icon->fileState()); });
    auto *iconLayout = new QVBoxLayout;
    iconLayout->setSpacing(8);
    iconLayout->addWidget(newHeading(tr("Icon"), this), 0, Qt::AlignHCenter);
    iconLayout->addWidget(icon, 0, Qt::AlignHCenter);
    iconLayout->addWidget(choose, 0, Qt::AlignHCenter);
    iconLayout->addWidget(hint);
    iconLayout->addStretch();

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(20, 16, 20, 16);
    layout->setSpacing(32);
    layout->addLayout(form, 1);
    layout->addLayout(iconLayout);
}

bool IdentityPage::showField(const FieldPath &path) {
    if (path != FieldPath().field("icon"))
        return Page::showField(path);
    m_icon->setFocus(Qt::OtherFocusReason);
    return true;
}

void IdentityPage::addText(QFormLayout *form, const QString &label, const QString &placeholder,
                           const char *field) {
    const FieldPath path = FieldPath().field(field);
    m_shown.insert(path);
    addTextRow(form, label, document(), {[path] { return path; }}, placeholder);
}

// Adds rows for the fields that are not laid out explicitly.
void IdentityPage::addOthers(QFormLayout *form) {
    for (const auto &field : Zel::PackageModel::plainFields(package())) {
        if (m_shown.count(field.path) == 0)
            addTextRow(form, tr("%1:").arg(field.label), document(),
                       {[path = field.path] { return path; }});
    }
}

} // namespace Editor
