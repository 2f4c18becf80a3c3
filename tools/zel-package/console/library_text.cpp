#include "library_text.h"

#include "arguments/native_text.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <array>
#include <vector>

namespace ZelPackage {
namespace {

constexpr const char *context = "Tano";

// The first match counts. %1, %2... occur in this order.
constexpr std::array sentences{
    // Reading XML.
    QT_TRANSLATE_NOOP("Tano", "There is not enough memory for the manifest."),
    QT_TRANSLATE_NOOP("Tano", "The text is UTF-16; a manifest is UTF-8."),
    QT_TRANSLATE_NOOP("Tano", "XML version \"%1\" is not supported; a manifest is XML 1.0."),
    QT_TRANSLATE_NOOP("Tano", "The encoding \"%1\" is not supported; a manifest is UTF-8."),
    QT_TRANSLATE_NOOP("Tano", "A document type declaration is not allowed."),
    QT_TRANSLATE_NOOP("Tano",
                      "An \"&\" starts a reference here; write &amp; for the character itself."),
    QT_TRANSLATE_NOOP("Tano", "A NUL byte is not allowed."),
    QT_TRANSLATE_NOOP("Tano", "The bytes here are not valid UTF-8, or encode a character that "
                              "XML does not allow."),
    QT_TRANSLATE_NOOP("Tano", "A \"<\" starts a tag here; write &lt; for the character itself."),
    QT_TRANSLATE_NOOP("Tano", "The text is not well-formed XML."),
    QT_TRANSLATE_NOOP("Tano", "The text is not well-formed XML: %1."),
    QT_TRANSLATE_NOOP("Tano", "A control character is not allowed."),
    QT_TRANSLATE_NOOP("Tano", "The character \"%1\" is not allowed here."),
    QT_TRANSLATE_NOOP("Tano", "The manifest ends in the middle of a tag or character."),
    QT_TRANSLATE_NOOP("Tano", "The manifest ends in the middle of a CDATA section."),
    QT_TRANSLATE_NOOP("Tano", "The script ends in the middle of a tag or character."),
    QT_TRANSLATE_NOOP("Tano", "The script ends in the middle of a CDATA section."),
    QT_TRANSLATE_NOOP("Tano", "The end tag does not match the open element."),
    QT_TRANSLATE_NOOP("Tano", "An attribute occurs twice on one element."),
    QT_TRANSLATE_NOOP("Tano",
                      "The entity is not defined; only &amp;, &lt;, &gt;, &quot; and &apos; are."),
    QT_TRANSLATE_NOOP("Tano", "The text is not XML: it does not start with a tag."),
    QT_TRANSLATE_NOOP("Tano", "The reference denotes a character that XML does not allow."),
    QT_TRANSLATE_NOOP("Tano", "There is content after the end of the root element."),
    QT_TRANSLATE_NOOP("Tano", "The XML declaration must be at the very start."),
    QT_TRANSLATE_NOOP("Tano", "The name of a processing instruction, \"%1\", cannot contain a "
                              "colon."),
    QT_TRANSLATE_NOOP("Tano",
                      "The name \"%1\" is not a prefix and a name with a colon between them."),
    QT_TRANSLATE_NOOP("Tano", "The prefix \"%1\" is declared without a namespace."),
    QT_TRANSLATE_NOOP("Tano", "The prefix \"%1\" is not declared."),
    QT_TRANSLATE_NOOP("Tano", "The declaration \"%1\" is of a reserved prefix or namespace."),
    QT_TRANSLATE_NOOP("Tano", "The attribute \"%1\" occurs twice in the same namespace."),
    // Reading manifests.
    QT_TRANSLATE_NOOP("Tano", "The root element is <%1> instead of <package>."),
    QT_TRANSLATE_NOOP(
        "Tano",
        "The root element <package> is in the namespace \"%1\"; a manifest has no namespace."),
    QT_TRANSLATE_NOOP("Tano", "Text is not allowed in <%1>."),
    QT_TRANSLATE_NOOP("Tano", "The element %1 occurs twice in %2."),
    QT_TRANSLATE_NOOP("Tano", "The manifest is empty."),
    QT_TRANSLATE_NOOP("Tano", "The manifest ends before its root element."),
    QT_TRANSLATE_NOOP("Tano", "The manifest ends while %1 is open."),
    QT_TRANSLATE_NOOP("Tano", "The format \"%1\" is newer than the one that this version reads, "
                              "\"%2\"."),
    QT_TRANSLATE_NOOP("Tano", "The format \"%1\" is unknown; this version reads \"%2\"."),
    QT_TRANSLATE_NOOP("Tano", "The element <%1> lacks the attribute \"%2\"."),
    QT_TRANSLATE_NOOP("Tano", "The attribute \"%1\" of <%2> is longer than 4 KiB."),
    QT_TRANSLATE_NOOP("Tano",
                      "The attribute \"%1\" of <%2> is \"%3\" instead of \"true\" or \"false\"."),
    QT_TRANSLATE_NOOP("Tano", "A tag, comment or processing instruction is longer than 1 MiB."),
    QT_TRANSLATE_NOOP("Tano", "More than %1 elements are nested."),
    QT_TRANSLATE_NOOP("Tano", "The element <%1> has more than %2 attributes."),
    // Writing manifests.
    QT_TRANSLATE_NOOP(
        "Tano", "The field %1 contains the control character %2, which XML cannot represent."),
    QT_TRANSLATE_NOOP("Tano",
                      "The package contains the control character %1, which XML cannot represent."),
    QT_TRANSLATE_NOOP(
        "Tano", "The field %1 contains the byte %2, which does not start a valid XML character."),
    QT_TRANSLATE_NOOP(
        "Tano", "The package contains the byte %1, which does not start a valid XML character."),
    QT_TRANSLATE_NOOP("Tano", "The field %1 cannot be saved: its key is longer than 4 KiB."),
    QT_TRANSLATE_NOOP("Tano", "The field %1 is too long to be saved: a tag holds at most 1 MiB."),
    QT_TRANSLATE_NOOP("Tano", "The package is too long to be saved: a tag holds at most 1 MiB."),
    // Paths of fields.
    QT_TRANSLATE_NOOP("Tano", "A \".\" or \"[\" is missing after the selector."),
    QT_TRANSLATE_NOOP("Tano", "The name of a field is missing."),
    QT_TRANSLATE_NOOP("Tano", "The name of a field cannot contain \"]\" or \"\\\"."),
    QT_TRANSLATE_NOOP("Tano", "A \"\\\" must precede \"]\", \"\\\" or \"+\"."),
    QT_TRANSLATE_NOOP("Tano", "The \"]\" of this selector is missing."),
    // Speech scripts.
    QT_TRANSLATE_NOOP("Tano", "The end tag has no start tag."),
    QT_TRANSLATE_NOOP("Tano", "The element <speak> is within another element; it can only be the "
                              "root."),
    QT_TRANSLATE_NOOP("Tano", "The repeat \"%1\" is malformed; it is a number, or a range such as "
                              "0-1 or 1-."),
    QT_TRANSLATE_NOOP(
        "Tano", "There is text between the alternatives of <one-of>; each must be an <item>."),
    QT_TRANSLATE_NOOP("Tano", "The script ends while %1 is open."),
    // Files.
    QT_TRANSLATE_NOOP("Tano", "The file \"%1\" cannot be saved: %2. The old content of \"%3\" is "
                              "lost: %4."),
    QT_TRANSLATE_NOOP("Tano", "The file \"%1\" cannot be saved: %2."),
    QT_TRANSLATE_NOOP("Tano", "it is a symbolic link"),
    QT_TRANSLATE_NOOP("Tano", "it is a link to a missing file"),
    QT_TRANSLATE_NOOP("Tano", "it is not a regular file"),
    QT_TRANSLATE_NOOP("Tano", "another program has locked it"),
    QT_TRANSLATE_NOOP("Tano", "another program has changed it since it was read"),
    QT_TRANSLATE_NOOP("Tano", "another program has replaced it"),
    QT_TRANSLATE_NOOP("Tano", "%1, and its old content is lost; the new one is in \"%2\""),
    QT_TRANSLATE_NOOP("Tano", "it is a device"),
    QT_TRANSLATE_NOOP("Tano", "it is larger than %1"),
};

struct Pattern {
    const char *source;
    QRegularExpression form;
};

std::vector<Pattern> makePatterns() {
    static const QRegularExpression placeholder(QStringLiteral(R"(\\%[0-9])"));
    std::vector<Pattern> patterns;
    for (const char *source : sentences) {
        QString form = QRegularExpression::escape(QString::fromUtf8(source));
        form.replace(placeholder, QStringLiteral("(.*)"));
        patterns.push_back(
            {source, QRegularExpression(QRegularExpression::anchoredPattern(form),
                                        QRegularExpression::DotMatchesEverythingOption)});
    }
    return patterns;
}

QString translatedText(const QString &text) {
    static const std::vector<Pattern> patterns = makePatterns();
    for (const Pattern &pattern : patterns) {
        const auto match = pattern.form.match(text);
        if (!match.hasMatch())
            continue;
        QString result = QCoreApplication::translate(context, pattern.source);
        QStringList arguments = match.capturedTexts().mid(1);
        for (QString &argument : arguments) // may be a reason
            argument = translatedText(argument);
        // QString::arg() would treat a "%1" in an argument as a placeholder.
        static const QRegularExpression placeholder(QStringLiteral("%([1-9])"));
        QString filled;
        int done = 0;
        for (auto it = placeholder.globalMatch(result); it.hasNext();) {
            const auto place = it.next();
            filled += result.mid(done, place.capturedStart() - done) %
                      arguments.value(place.captured(1).toInt() - 1);
            done = int(place.capturedEnd());
        }
        return filled % result.mid(done);
    }
    return text;
}

} // namespace

QString translatedSentence(const std::string &sentence) {
    return translatedText(nativeText(QByteArray::fromStdString(sentence)));
}

QString reasonSentence(const std::string &reason) {
    QString sentence = translatedSentence(reason);
    if (!sentence.isEmpty())
        sentence[0] = sentence.at(0).toUpper();
    //: A reason as a sentence of its own.
    return QCoreApplication::translate("zel-package", "%1.").arg(sentence);
}

} // namespace ZelPackage
