#include "identity_page.h"

#include "editor_commands.h"
#include "icon_button.h"
#include "marks.h"

#include <packagemodel/set_string.h>

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace Editor {

using Zel::PackageInfoModel;
using Zel::PackageStringCommand;

IdentityPage::IdentityPage(Document &document, QWidget *parent)
    : Page(document, tr("&Identity"),
           platformIcon(QStringLiteral("user-identity"), QStyle::SP_FileIcon), parent) {
    auto *form = new QFormLayout;
    form->setHorizontalSpacing(12);
    form->setVerticalSpacing(8);
    form->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    form->addRow(newHeading(tr("Package"), this));
    m_uid = addText(form, tr("&UID:"), QStringLiteral("my-app"), PackageStringCommand::Uid,
                    &PackageInfoModel::uid);
    addTextRow(form, tr("&Version:"), document,
               {[this] { return Zel::SoftwareVersionUtils::toString(package()->version()); },
                [this](const QString &text, bool isFinal) {
                    return newVersionCommand(package(), text, isFinal);
                },
                [] { return QStringLiteral("version"); }, versionRefusal},
               QStringLiteral("1.0.0"));
    addText(form, tr("&Type version:"), {}, PackageStringCommand::TypeVersion,
            &PackageInfoModel::typeVersion);
    addText(form, tr("&Path on the robot:"), {}, PackageStringCommand::Path,
            &PackageInfoModel::path);
    addText(form, tr("I&nstaller:"), {}, PackageStringCommand::Installer,
            &PackageInfoModel::installer);
    form->addItem(new QSpacerItem(0, 12));
    form->addRow(newHeading(tr("Publisher"), this));
    addText(form, tr("&Author:"), {}, PackageStringCommand::Author, &PackageInfoModel::author);
    addText(form, tr("&Organization:"), {}, PackageStringCommand::Organization,
            &PackageInfoModel::organization);
    addText(form, tr("&Date:"), QStringLiteral("2026-09-14"), PackageStringCommand::Date,
            &PackageInfoModel::date);
    addText(form, tr("&Channel:"), {}, PackageStringCommand::Channel, &PackageInfoModel::channel);

    auto *icon = new IconButton(document, this);
    auto *hint = new QLabel(tr("Click, or drop a picture."), this);
    hint->setAlignment(Qt::AlignHCenter);
    hint->setForegroundRole(QPalette::PlaceholderText);
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
                                 const QString &placeholder, int what,
                                 QString (PackageInfoModel::*read)() const) {
    const auto string = PackageStringCommand::WhatString(what);
    const QString path = string == PackageStringCommand::Uid ? QStringLiteral("uid") : QString();
    return addTextRow(form, label, document(),
                      {[this, read] { return (package()->*read)(); },
                       [this, string](const QString &text, bool isFinal) {
                           return new PackageStringCommand(package(), text, string, isFinal);
                       },
                       [path] { return QString(path); }},
                      placeholder);
}

bool IdentityPage::showField(const FieldPlace &path) {
    if (path.list != QLatin1String("uid"))
        return false;
    m_uid->widget()->setFocus(Qt::OtherFocusReason);
    return true;
}

} // namespace Editor
