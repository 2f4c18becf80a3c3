#pragma once

#include <packagemodel/package_info_model.h>

#include <QtGlobal>

#include <array>

namespace Zel {

/// A plain text of a package: its names, and the operations of record and model from which setters,
/// commands and the field table are generated.
struct PackageText {
    const char *field; ///< in field paths
    const char *label; ///< for users
    const std::string &(Tano::PackageInfo::*recorded)() const;
    void (Tano::PackageInfo::*record)(const std::string &text);
    QString (PackageInfoModel::*text)() const;
    void (PackageInfoModel::*setText)(const QString &text);
    void (PackageInfoModel::*updated)(const QString &text);
    const char *word; ///< in the texts of PackageStringCommand; null if it has no command
};

inline constexpr PackageText uidText{"uid",
                                     QT_TRANSLATE_NOOP("Zel::PackageModel", "UID"),
                                     &Tano::PackageInfo::uuid,
                                     &Tano::PackageInfo::setUuid,
                                     &PackageInfoModel::uid,
                                     &PackageInfoModel::setUid,
                                     &PackageInfoModel::uidUpdated,
                                     QT_TRANSLATE_NOOP("Zel::PackageStringCommand", "id")};

inline constexpr PackageText typeVersionText{
    "typeVersion",
    QT_TRANSLATE_NOOP("Zel::PackageModel", "Type version"),
    &Tano::PackageInfo::typeVersion,
    &Tano::PackageInfo::setTypeVersion,
    &PackageInfoModel::typeVersion,
    &PackageInfoModel::setTypeVersion,
    &PackageInfoModel::typeVersionUpdated,
    QT_TRANSLATE_NOOP("Zel::PackageStringCommand", "type version")};

inline constexpr PackageText installerText{
    "installer",
    QT_TRANSLATE_NOOP("Zel::PackageModel", "Installer"),
    &Tano::PackageInfo::installer,
    &Tano::PackageInfo::setInstaller,
    &PackageInfoModel::installer,
    &PackageInfoModel::setInstaller,
    &PackageInfoModel::installerUpdated,
    QT_TRANSLATE_NOOP("Zel::PackageStringCommand", "installer")};

inline constexpr PackageText authorText{"author",
                                        QT_TRANSLATE_NOOP("Zel::PackageModel", "Author"),
                                        &Tano::PackageInfo::author,
                                        &Tano::PackageInfo::setAuthor,
                                        &PackageInfoModel::author,
                                        &PackageInfoModel::setAuthor,
                                        &PackageInfoModel::authorUpdated,
                                        QT_TRANSLATE_NOOP("Zel::PackageStringCommand", "author")};

inline constexpr PackageText organizationText{
    "organization",
    QT_TRANSLATE_NOOP("Zel::PackageModel", "Organization"),
    &Tano::PackageInfo::organization,
    &Tano::PackageInfo::setOrganization,
    &PackageInfoModel::organization,
    &PackageInfoModel::setOrganization,
    &PackageInfoModel::organizationUpdated,
    QT_TRANSLATE_NOOP("Zel::PackageStringCommand", "organization")};

inline constexpr PackageText dateText{"date",
                                      QT_TRANSLATE_NOOP("Zel::PackageModel", "Date"),
                                      &Tano::PackageInfo::date,
                                      &Tano::PackageInfo::setDate,
                                      &PackageInfoModel::date,
                                      &PackageInfoModel::setDate,
                                      &PackageInfoModel::dateUpdated,
                                      QT_TRANSLATE_NOOP("Zel::PackageStringCommand", "date")};

inline constexpr PackageText channelText{"channel",
                                         QT_TRANSLATE_NOOP("Zel::PackageModel", "Channel"),
                                         &Tano::PackageInfo::channel,
                                         &Tano::PackageInfo::setChannel,
                                         &PackageInfoModel::channel,
                                         &PackageInfoModel::setChannel,
                                         &PackageInfoModel::channelUpdated,
                                         QT_TRANSLATE_NOOP("Zel::PackageStringCommand", "channel")};

inline constexpr PackageText pathText{"path",
                                      QT_TRANSLATE_NOOP("Zel::PackageModel", "Path"),
                                      &Tano::PackageInfo::path,
                                      &Tano::PackageInfo::setPath,
                                      &PackageInfoModel::path,
                                      &PackageInfoModel::setPath,
                                      &PackageInfoModel::pathUpdated,
                                      QT_TRANSLATE_NOOP("Zel::PackageStringCommand", "path")};

/// All plain texts, in manifest order.
inline constexpr std::array packageTexts{&uidText,     &typeVersionText,  &installerText,
                                         &authorText,  &organizationText, &dateText,
                                         &channelText, &pathText};

} // namespace Zel
