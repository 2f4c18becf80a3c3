#pragma once

#include <packagemodel/package_info_model.h>
#include <packagemodel/text_exchange.h>

#include <QHash>

#include <optional>

namespace Zel::PackageModel {

/// A kind of texts that translators work on.
struct TextKind {
    const char *field;
    bool isList;
    bool isScript;
    // The texts in a language, of which a field that is no list has one or none. Null if the owner
    // has no such field.
    QStringList (*ofPackage)(const PackageInfoModel &package, const RobotLanguage &language);
    QStringList (*ofBehavior)(const BehaviorInfoModel &behavior, const RobotLanguage &language);

    /// Whether the text of such a field is a speech script.
    bool isMarkup(const QString &text) const;
    /// Why the text of such a field is a malformed script; empty if it is none.
    QString scriptError(const QString &text) const;
};

const std::vector<TextKind> &textKinds();

/// What the path of a text consists of.
struct TextPlace {
    Tano::FieldPath owner; ///< a behavior; empty for the package
    const TextKind *kind;
    QString code;  ///< of the language
    int index = 0; ///< in a list

    /// The path of the field in a language, without the index.
    Tano::FieldPath fieldPath() const;
    Tano::FieldPath path() const;
};

/// Nothing for a path that leads to no text for translators.
std::optional<TextPlace> textPlace(const Tano::FieldPath &path);

/// What a translator needs to know about a text.
QString noteOn(const TranslatableText &text);

/// Finds the owners of texts in constant time.
class TextOwners {
public:
    explicit TextOwners(const PackageInfoModel &package);

    /// The texts of the place's field in a language; nothing if the package has no such owner.
    std::optional<QStringList> texts(const TextPlace &place, const QString &code) const;

private:
    const PackageInfoModel &m_package;
    QHash<QString, const BehaviorInfoModel *> m_behaviors; // by their paths as fields
};

} // namespace Zel::PackageModel
