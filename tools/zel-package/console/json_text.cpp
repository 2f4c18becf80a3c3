#include "json_text.h"

#include "text_layout.h"

namespace ZelPackage {

QString jsonText(const QJsonObject &object, QJsonDocument::JsonFormat format) {
    return printableJson(QJsonDocument(object).toJson(format));
}

QString printableJson(const QByteArray &bytes) {
    const QString json = QString::fromUtf8(bytes);
    QString result;
    result.reserve(json.size());
    // Such characters only occur within strings, line feeds only between them.
    for (const QChar character : json) {
        if (character != u'\n' && isUnprintable(character.unicode()))
            result += QStringLiteral("\\u%1").arg(uint(character.unicode()), 4, 16, QChar(u'0'));
        else
            result += character;
    }
    return result;
}

} // namespace ZelPackage
