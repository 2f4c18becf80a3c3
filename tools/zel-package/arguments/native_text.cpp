#include "native_text.h"

namespace ZelPackage {
namespace {

constexpr ushort byteBase = 0xDC00;

// After a high surrogate, a low one is half of a character.
bool isByte(const QString &text, int at) {
    const ushort code = text.at(at).unicode();
    return code >= byteBase + 0x80 && code <= byteBase + 0xFF &&
           (at == 0 || !text.at(at - 1).isHighSurrogate());
}

int sequenceLength(uchar lead) {
    if (lead < 0xC0)
        return 1;
    return lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
}

// The letter in front protects a byte order mark.
QString decoded(const QByteArray &bytes) {
    return QString::fromUtf8(QByteArray('x' + bytes)).mid(1);
}

} // namespace

QString nativeText(const QByteArray &bytes) {
    const QString text = decoded(bytes);
    if (text.toUtf8() == bytes)
        return text;
    QString result;
    for (int i = 0; i < bytes.size();) {
        const auto lead = uchar(bytes.at(i));
        const QByteArray sequence = bytes.mid(i, sequenceLength(lead));
        const QString character = decoded(sequence);
        const bool isValid = character.toUtf8() == sequence;
        result += isValid ? character : QString(QChar(ushort(byteBase + lead)));
        i += isValid ? int(sequence.size()) : 1;
    }
    return result;
}

std::string nativeBytes(const QString &text) {
    std::string bytes;
    for (int i = 0; i < text.size();) {
        int end = i;
        while (end < text.size() && !isByte(text, end))
            ++end;
        bytes += text.mid(i, end - i).toStdString();
        if (end < text.size())
            bytes += char(text.at(end).unicode() - byteBase);
        i = end + 1;
    }
    return bytes;
}

bool hasForeignBytes(const QString &text) {
    for (int i = 0; i < text.size(); ++i) {
        if (isByte(text, i))
            return true;
    }
    return false;
}

QString withVisibleBytes(const QString &text) {
    if (!hasForeignBytes(text))
        return text;
    QString result;
    for (int i = 0; i < text.size(); ++i) {
        if (isByte(text, i))
            result += QStringLiteral("<%1>").arg(text.at(i).unicode() - byteBase, 2, 16).toUpper();
        else
            result += text.at(i);
    }
    return result;
}

} // namespace ZelPackage
