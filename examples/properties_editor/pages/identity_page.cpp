#include "identity_page.h"

#include "document/field_edits.h"
#include "widgets/hint_label.h"
#include "widgets/icon_button.h"
#include "widgets/icons.h"

#include <packagemodel/package_edit_command.h>
#include <packagemodel/set_string.h>

#include <QFormLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

namespace Editor {

using Tano::FieldPath;
using Zel::PackageStringCommand;

IdentityPage::IdentityPage(Document &document, QWidget *parent)
    : Page(document, tr("&Identity"), iconOf(Symbol::Identity), parent) {
    auto *form = new QFormLayout;
    form->setHorizontalSpacing(12);
    form->setVerticalSpacing(8);
    form->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    form->addRow(newHeading(tr("Package"), this));
    m_uid = addText(form, tr("&UID:"), QStringLiteral("my-app"), PackageStringCommand::Uid, "uid");
    const FieldPath version = FieldPath().field("version");
    m_shown.insert(version);
    addTextRow(
        form, tr("Ve&rsion:"), document,
        {[version] { return version; },
         [=](const QString &text, bool isFinal) {
             const QString name =
                 Zel::PackageGenericValueCommand<Zel::SoftwareVersion>(package(), {}).commandName();
             return new Zel::PackageEditCommand(package(), {setText(version, text)}, name, isFinal);
         }},
        QStringLiteral("1.0.0"));
    addText(form, tr("&Type version:"), {}, PackageStringCommand::TypeVersion, "typeVersion");
    addText(form, tr("Path on the ro&bot:"), {}, PackageStringCommand::Path, "path");
    addText(form, tr("I&nstaller:"), {}, PackageStringCommand::Installer, "installer");
    form->addItem(new QSpacerItem(0, 12));
    form->addRow(newHeading(tr("Publisher"), this));
    addText(form, tr("&Author:"), {}, PackageStringCommand::Author, "author");
    addText(form, tr("&Organization:"), {}, PackageStringCommand::Organization, "organization");
    addText(form, tr("&Date:"), QStringLiteral("2026-09-14"), PackageStringCommand::Date, "date");
    addText(form, tr("&Channel:"), {}, PackageStringCommand::Channel, "channel");
    addOthers(form);

    auto *icon = new IconButton(document, this);
    auto *hint = new HintLabel(tr("Click, or drop a picture."), this);
    hint->setAlignment(Qt::AlignHCenter);
    auto *iconLayout = new QVBoxLayout;
    iconLayout->setSpacing(8);
    iconLayout->addWidget(newHeading(tr("Icon"), this), 0, Qt::AlignHCenter);
    iconLayout->addWidget(icon, 0, Qt::AlignHCenter);
    iconLayout->addWidget(hint);
    iconLayout->addStretch();

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(20, 16, 20, 16);
    layout->setSpacing(32);
    layout->addLayout(form, 1);
    layout->addLayout(iconLayout);
}

TextField *IdentityPage::addText(QFormLayout *form, const QString &label,
                                 const QString &placeholder, int what, const char *field) {
    m_shown.insert(FieldPath().field(field));
    return addTextRow(form, label, document(),
                      {[path = FieldPath().field(field)] { return path; },
                       [this, what](const QString &text, bool isFinal) {
                           return new PackageStringCommand(
                               package(), text, PackageStringCommand::WhatString(what), isFinal);
                       }},
                      placeholder);
}

// The fields that have no place of their own.
void IdentityPage::addOthers(QFormLayout *form) {
    for (const auto &field : Zel::PackageModel::plainFields(package())) {
        if (m_shown.count(field.path) > 0)
            continue;
        addTextRow(
            form, tr("%1:").arg(field.label), document(),
            {[path = field.path] { return path; },
             [this, path = field.path, label = field.label](const QString &text, bool isFinal) {
                 return new Zel::PackageEditCommand(package(), {setText(path, text)},
                                                    tr("Set %1").arg(label), isFinal);
             }},
            {});
    }
}

bool IdentityPage::showField(const FieldPath &path) {
    if (fieldName(path) != QLatin1String("uid"))
        return false;
    m_uid->widget()->setFocus(Qt::OtherFocusReason);
    return true;
}

} // namespace Editor
