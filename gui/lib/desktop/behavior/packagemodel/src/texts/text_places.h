#pragma once

#include <packagemodel/package_info_model.h>
#include <packagemodel/text_exchange.h>

#include <QHash>

#include <optional>

namespace Zel::PackageModel {

/// A kind of translatable text.
struct TextKind {
    const char *field;
    bool isList;
    bool isScript;
    // The texts in a language; at most one unless the field is a list. Null if the owner has no
    // such field.
    QStringList (*ofPackage)(const PackageInfoModel &package, const RobotLanguage &language);
    QStringList (*ofBehavior)(const BehaviorInfoModel &behavior, const RobotLanguage &language);

    /// Whether such a text is a speech script.
    bool isMarkup(const QString &text) const;
    /// The reason why such a text is a malformed script, empty if it is not.
    QString scriptError(const QString &text) const;
};

const std::vector<TextKind> &textKinds();

/// The parts of a text's path.
struct TextPlace {
    Tano::FieldPath owner; ///< a behavior, or empty for the package
    const TextKind *kind;
    QString code;  ///< the language
    int index = 0; ///< if the field is a list

    /// The path of the field in this language, without the index.
    Tano::FieldPath fieldPath() const;
    Tano::FieldPath path() const;
};

/// Parses a path; nullopt if it is not that of a translatable text.
std::optional<TextPlace> textPlace(const Tano::FieldPath &path);

/// Context about a text for translators.
QString noteOn(const TranslatableText &text);

/// Looks up the owners of texts in constant time.
class TextOwners {
public:
    explicit TextOwners(const PackageInfoModel &package);

    /// The texts of the place's field in a language, nullopt if the package has no such owner.
    std::optional<QStringList> texts(const TextPlace &place, const QString &code) const;

private:
    const PackageInfoModel &m_package;
    QHash<QString, const BehaviorInfoModel *> m_behaviors; // by field path
};

} // namespace Zel::PackageModel
