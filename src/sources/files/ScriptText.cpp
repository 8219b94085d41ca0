#include "sources/files/ScriptText.h"

#include "settings/Utf8.h"

#include <QStringDecoder>

#include <algorithm>
#include <array>

namespace tessaline {

namespace {

using Encoding = QStringConverter::Encoding;

/// One byte in so many may be a control character, which old editors leave behind. In compressed
/// data one in nine is.
constexpr qsizetype bytesPerControl = 200;

/// How much is looked at to tell UTF-16 without a mark.
constexpr qsizetype sampleSize = 4096;

/// Bytes 0x80 to 0x9F of Windows-1252; 0 where it has nothing.
constexpr std::array<char16_t, 32> windowsCharacters{
    u'€', 0,    u'‚', u'ƒ', u'„', u'…', u'†', u'‡', u'ˆ', u'‰', u'Š', u'‹', u'Œ', 0, u'Ž', 0,
    0,    u'‘', u'’', u'“', u'”', u'•', u'–', u'—', u'˜', u'™', u'š', u'›', u'œ', 0, u'ž', u'Ÿ'};
constexpr uchar firstWindows = 0x80;
constexpr uchar lastWindows = 0x9F;

bool isControl(uchar byte) {
    constexpr uchar firstPrintable = 0x20;
    constexpr uchar escape = 0x1B;
    constexpr uchar deletion = 0x7F;
    const bool isLayout = (byte >= '\t' && byte <= '\r') || byte == escape;
    const bool isNowhere =
        byte >= firstWindows && byte <= lastWindows && windowsCharacters[byte - firstWindows] == 0;
    return (byte < firstPrintable && !isLayout) || byte == deletion || isNowhere;
}

bool hasManyControls(QByteArrayView bytes) {
    const auto controls =
        std::count_if(bytes.begin(), bytes.end(), [](char byte) { return isControl(uchar(byte)); });
    return controls * bytesPerControl > bytes.size();
}

/// UTF-16 by its mark or, without one, by the zero bytes that at least its spaces and line ends
/// have, all in odd or all in even places.
std::optional<Encoding> utf16Of(QByteArrayView bytes) {
    if (bytes.startsWith("\xFF\xFE")) return Encoding::Utf16LE;
    if (bytes.startsWith("\xFE\xFF")) return Encoding::Utf16BE;
    const QByteArrayView sample = bytes.first(std::min(bytes.size(), sampleSize));
    qsizetype zeros[2] = {0, 0};
    for (qsizetype i = 0; i < sample.size(); ++i)
        if (sample[i] == 0) ++zeros[i % 2];
    const qsizetype enough = sample.size() / 10 + 1;
    const qsizetype few = sample.size() / 100;
    if (zeros[1] >= enough && zeros[0] <= few) return Encoding::Utf16LE;
    if (zeros[0] >= enough && zeros[1] <= few) return Encoding::Utf16BE;
    return {};
}

std::optional<QString> decodeUtf16(QByteArrayView bytes, Encoding encoding) {
    QStringDecoder decode(encoding, QStringDecoder::Flag::Stateless);
    QString text = decode(bytes);
    const bool isText = bytes.size() % 2 == 0 && text.isValidUtf16() && !text.contains(QChar::Null);
    if (!isText) return std::nullopt;
    if (text.startsWith(QChar::ByteOrderMark)) text.remove(0, 1);
    return text;
}

/// A UTF-8 text of which a few bytes are broken, with a replacement in their places. None where
/// the broken ones are not the exception.
std::optional<QString> decodeDamagedUtf8(QByteArrayView bytes) {
    constexpr qsizetype charactersPerError = 10;
    QString text = QStringDecoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless)(bytes);
    qsizetype errors = 0;
    qsizetype characters = 0;
    for (const QChar c : std::as_const(text)) {
        if (c == QChar::ReplacementCharacter) ++errors;
        if (c.unicode() >= firstWindows) ++characters;
    }
    if (errors * charactersPerError > characters) return std::nullopt;
    return text;
}

QString decodeWindows(QByteArrayView bytes) {
    QString text = QString::fromLatin1(bytes);
    for (QChar& c : text) {
        const char16_t unit = c.unicode();
        if (unit < firstWindows || unit > lastWindows) continue;
        const char16_t meant = windowsCharacters[unit - firstWindows];
        c = meant ? QChar(meant) : QChar(QChar::ReplacementCharacter);
    }
    return text;
}

} // namespace

bool isBinary(QByteArrayView beginning) {
    if (utf16Of(beginning)) return false;
    return beginning.contains('\0') || (!beginning.isValidUtf8() && hasManyControls(beginning));
}

std::optional<QString> decodeScript(QByteArrayView bytes) {
    if (const auto encoding = utf16Of(bytes)) return decodeUtf16(bytes, *encoding);
    if (isBinary(bytes)) return std::nullopt;
    if (auto text = decodeUtf8(bytes, ByteOrderMark::drop)) return text;
    if (auto text = decodeDamagedUtf8(bytes)) return text;
    return decodeWindows(bytes);
}

} // namespace tessaline
