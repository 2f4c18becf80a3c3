#pragma once

#include <zel/software_version.h>
#include <zel/zel_language_export.h>

#include <QMetaType>
#include <QSharedDataPointer>
#include <QString>

#include <utility>
#include <vector>

namespace Zel {

/// A text with its meaning in its type, so that the texts of a language cannot be mixed up.
///
/// ```cpp
/// const Zel::ISOCode code(QStringLiteral("fr_FR"));
/// Zel::robotLanguage(code).englishName(); // -> French
/// ```
template<typename Tag>
class TypedString {
public:
    /// The empty text.
    TypedString() = default;
    /// Wraps a text.
    explicit TypedString(QString text)
        : m_text(std::move(text)) {}

    /// The text itself.
    const QString &text() const { return m_text; }

    /// @{
    /// Compares the texts.
    friend bool operator==(const TypedString &a, const TypedString &b) {
        return a.m_text == b.m_text;
    }
    friend bool operator!=(const TypedString &a, const TypedString &b) { return !(a == b); }
    /// @}

private:
    QString m_text;
};

/// The meanings of TypedString.
namespace LanguagesTags {
/// @cond
struct ISOCode;
struct Name;
struct EnglishName;
struct NativeName;
struct NuanceCode;
/// @endcond
} // namespace LanguagesTags

/// A language code with an optional territory, such as "en" or "en_US" (ISO 639-1 and ISO 3166-1).
using ISOCode = TypedString<LanguagesTags::ISOCode>;
/// The name of the language in menus.
using Name = TypedString<LanguagesTags::Name>;
/// The name of the language in English, without a territory.
using EnglishName = TypedString<LanguagesTags::EnglishName>;
/// The name of the language in that language.
using NativeName = TypedString<LanguagesTags::NativeName>;
/// The code of the language's voices in the speech engine.
using NuanceCode = TypedString<LanguagesTags::NuanceCode>;

class RobotLanguageData;

/// Describes a language that a robot can speak or an application can be written in.
///
/// An implicitly shared value. Its identity is its ISO code alone, compared case-sensitively; an
/// empty code means "no such language".
///
/// ```cpp
/// const Zel::RobotLanguage japanese = Zel::robotLanguage(QStringLiteral("ja_JP"));
/// out << japanese.uiName() << ' ' << japanese.nuanceCode(); // -> Japanese (Japan) jpj
/// ```
class ZEL_LANGUAGE_EXPORT RobotLanguage {
public:
    /// The language with an empty ISO code.
    RobotLanguage();
    /// A partial descriptor: a code without a name.
    RobotLanguage(const ISOCode &isoCode, const NuanceCode &nuanceCode);
    /// A full descriptor.
    RobotLanguage(const ISOCode &isoCode, const Name &name, const EnglishName &englishName,
                  const NativeName &nativeName, const NuanceCode &nuanceCode,
                  const SoftwareVersion &version);
    /// @{
    /// Copies share their data; a moved-from language has an empty code.
    RobotLanguage(const RobotLanguage &other);
    RobotLanguage(RobotLanguage &&other) noexcept;
    ~RobotLanguage();
    RobotLanguage &operator=(const RobotLanguage &other);
    RobotLanguage &operator=(RobotLanguage &&other) noexcept;
    /// @}

    /// @{
    /// One of the texts of the descriptor; empty if unknown.
    const QString &isoCode() const;
    const QString &name() const;
    const QString &englishName() const;
    const QString &nativeName() const;
    const QString &nuanceCode() const;
    /// @}
    /// The version of the language; not set in a partial descriptor.
    const SoftwareVersion &version() const;
    /// Changes version() of this descriptor.
    void setVersion(const SoftwareVersion &version);

    /// The name to show to users: name(), or the ISO code if the name is empty, so that users can
    /// identify unknown languages too.
    const QString &uiName() const;

private:
    friend class LanguageTable;
    friend ZEL_LANGUAGE_EXPORT bool operator==(const RobotLanguage &a, const RobotLanguage &b);

    const RobotLanguageData &data() const;
    /// Whether other descriptors share this one's data.
    bool hasCopies() const;

    QSharedDataPointer<RobotLanguageData> m_data; // null while all texts and the version are empty
};

/// @{
/// Compares the ISO codes.
ZEL_LANGUAGE_EXPORT bool operator==(const RobotLanguage &a, const RobotLanguage &b);
inline bool operator!=(const RobotLanguage &a, const RobotLanguage &b) {
    return !(a == b);
}
/// @}

/// An ordered list of languages.
using RobotLanguages = std::vector<RobotLanguage>;

/// @{
/// Looks up a language by its ISO code among Language::knownLanguages(). An unknown code gives a
/// descriptor with an empty ISO code.
ZEL_LANGUAGE_EXPORT RobotLanguage robotLanguage(const ISOCode &isoCode);
ZEL_LANGUAGE_EXPORT RobotLanguage robotLanguage(const QString &isoCode);
/// @}

} // namespace Zel

Q_DECLARE_METATYPE(Zel::RobotLanguage)
Q_DECLARE_METATYPE(Zel::RobotLanguages)
