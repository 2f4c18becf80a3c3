#pragma once

#include <zel/software_version.h>
#include <zel/zel_language_export.h>

#include <QMetaType>
#include <QSharedDataPointer>
#include <QString>

#include <utility>
#include <vector>

namespace Zel {

/// A text that says in its type what it stands for, so that the texts of a language cannot be
/// taken for one another.
template<typename Tag>
class TypedString {
public:
    TypedString() = default;
    explicit TypedString(QString text)
        : m_text(std::move(text)) {}

    const QString &text() const { return m_text; }

    friend bool operator==(const TypedString &a, const TypedString &b) {
        return a.m_text == b.m_text;
    }
    friend bool operator!=(const TypedString &a, const TypedString &b) { return !(a == b); }

private:
    QString m_text;
};

namespace LanguagesTags {
struct ISOCode;
struct Name;
struct EnglishName;
struct NativeName;
struct NuanceCode;
} // namespace LanguagesTags

/// A language code with an optional territory, such as "en" or "en_US" (ISO 639-1 and ISO 3166-1).
using ISOCode = TypedString<LanguagesTags::ISOCode>;
/// The name under which the language is offered to the user.
using Name = TypedString<LanguagesTags::Name>;
/// The name of the language alone, in English.
using EnglishName = TypedString<LanguagesTags::EnglishName>;
/// The name of the language in itself.
using NativeName = TypedString<LanguagesTags::NativeName>;
/// The code by which the speech engine knows the language's voices.
using NuanceCode = TypedString<LanguagesTags::NuanceCode>;

class RobotLanguageData;

/// Describes a language that a robot can speak or an application can be written in.
///
/// It is an implicitly shared value. Its identity is its ISO code alone, compared exactly and
/// case-sensitively; a descriptor whose code is empty stands for "no such language".
class ZEL_LANGUAGE_EXPORT RobotLanguage {
public:
    /// The language with an empty ISO code.
    RobotLanguage();
    /// A partial descriptor: a code without names.
    RobotLanguage(const ISOCode &isoCode, const NuanceCode &nuanceCode);
    RobotLanguage(const ISOCode &isoCode, const Name &name, const EnglishName &englishName,
                  const NativeName &nativeName, const NuanceCode &nuanceCode,
                  const SoftwareVersion &version);
    RobotLanguage(const RobotLanguage &other);
    RobotLanguage(RobotLanguage &&other) noexcept;
    ~RobotLanguage();
    RobotLanguage &operator=(const RobotLanguage &other);
    RobotLanguage &operator=(RobotLanguage &&other) noexcept;

    const QString &isoCode() const;
    const QString &name() const;
    const QString &englishName() const;
    const QString &nativeName() const;
    const QString &nuanceCode() const;
    const SoftwareVersion &version() const;
    void setVersion(const SoftwareVersion &version);

    /// The text that names the language to the user: its name, or its ISO code where the name is
    /// empty, so that a language unknown to the table is named too.
    const QString &uiName() const;

private:
    friend class LanguageTable;
    friend ZEL_LANGUAGE_EXPORT bool operator==(const RobotLanguage &a, const RobotLanguage &b);

    const RobotLanguageData &data() const;
    /// Whether other descriptors share this one's data.
    bool hasCopies() const;

    QSharedDataPointer<RobotLanguageData> m_data; // null while all texts and the version are empty
};

ZEL_LANGUAGE_EXPORT bool operator==(const RobotLanguage &a, const RobotLanguage &b);
inline bool operator!=(const RobotLanguage &a, const RobotLanguage &b) {
    return !(a == b);
}

using RobotLanguages = std::vector<RobotLanguage>;

/// Looks a language up by its ISO code among Language::knownLanguages(). An unknown code gives a
/// descriptor whose ISO code is empty.
ZEL_LANGUAGE_EXPORT RobotLanguage robotLanguage(const ISOCode &isoCode);
ZEL_LANGUAGE_EXPORT RobotLanguage robotLanguage(const QString &isoCode);

} // namespace Zel

Q_DECLARE_METATYPE(Zel::RobotLanguage)
Q_DECLARE_METATYPE(Zel::RobotLanguages)
