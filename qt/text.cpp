#include "qt/text.h"

#include "platform/code_page.h"
#include "toolkit/dialog_description.h"

#include <QStringDecoder>
#include <QStringEncoder>
#include <QTextDocument>

namespace orrelix {

namespace {

constexpr char16_t kFirstEscape = 0xDC00; // and the byte

// The length of the UTF-8 character at the start of the bytes, 0 when there is none.
qsizetype CharacterLength(QByteArrayView bytes) {
    const unsigned char nLead = static_cast<unsigned char>(bytes[0]);
    const qsizetype nLength = nLead < 0x80 ? 1 : nLead < 0xC2 ? 0 : nLead < 0xE0 ? 2 : nLead < 0xF0 ? 3 : 4;
    return nLength > 0 && nLength <= bytes.size() && bytes.first(nLength).isValidUtf8() ? nLength : 0;
}

QString WithEscapes(QByteArrayView bytes) {
    QString text;
    while (!bytes.isEmpty()) {
        const qsizetype nLength = CharacterLength(bytes);
        if (nLength > 0)
            text += QString::fromUtf8(bytes.first(nLength));
        else
            text += QChar(static_cast<char16_t>(kFirstEscape + static_cast<unsigned char>(bytes[0])));
        bytes = bytes.sliced(nLength > 0 ? nLength : 1);
    }
    return text;
}

bool IsEscape(const QString& text, qsizetype nAt) {
    const char16_t character = text[nAt].unicode();
    const bool bByte = character >= kFirstEscape + 0x80 && character <= kFirstEscape + 0xFF;
    return bByte && (nAt == 0 || !text[nAt - 1].isHighSurrogate());
}

QByteArray WithoutEscapes(const QString& text) {
    QByteArray bytes;
    qsizetype nPlain = 0; // where the characters begin that aren't in `bytes` yet
    for (qsizetype nAt = 0; nAt < text.size(); ++nAt) {
        if (!IsEscape(text, nAt))
            continue;
        bytes += QStringView(text).sliced(nPlain, nAt - nPlain).toUtf8();
        bytes += static_cast<char>(text[nAt].unicode() - kFirstEscape);
        nPlain = nAt + 1;
    }
    return bytes + QStringView(text).sliced(nPlain).toUtf8();
}

} // namespace

QString ToQt(const CString& text) {
    const QByteArrayView bytes(text.View().data(), text.GetLength());
    if (GetCodePage() == kUtf8CodePage)
        return bytes.isValidUtf8() ? QString::fromUtf8(bytes) : WithEscapes(bytes);
    QStringDecoder decode(GetEncoding().c_str());
    return decode.isValid() ? QString(decode(bytes)) : QString::fromLatin1(bytes);
}

CString FromQt(const QString& text) {
    QByteArray bytes;
    if (GetCodePage() == kUtf8CodePage) {
        bytes = WithoutEscapes(text);
    } else {
        QStringEncoder encode(GetEncoding().c_str());
        bytes = encode.isValid() ? QByteArray(encode(text)) : text.toLatin1();
    }
    return CString(bytes.toStdString());
}

QString LinesToQt(const CString& text) {
    return ToQt(text).replace("\r\n", "\n");
}

CString LinesFromQt(QString text) {
    return FromQt(text.replace("\n", "\r\n"));
}

QString PathToQt(const CString& path) {
    return ToQt(path).replace('\\', '/');
}

CString PathFromQt(QString path) {
    return FromQt(path.replace('/', '\\'));
}

QString PlainTip(const QString& text) {
    return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text) : text;
}

QString CaptionToQt(const char* pDescribed, const CString& shown) {
    return WithoutMnemonic(pDescribed) == shown ? ToQt(pDescribed) : ToQt(shown).replace('&', "&&");
}

} // namespace orrelix
