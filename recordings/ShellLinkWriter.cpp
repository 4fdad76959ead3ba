#include "recordings/ShellLink.h"

#include "recordings/Utf16Text.h"

#include <QDataStream>

namespace Recordings {

namespace {

constexpr quint32 headerSize = 0x4C;
constexpr quint32 hasLinkInfo = 0x02;
constexpr quint32 isUnicode = 0x80;
constexpr quint32 linkInfoHeaderSize = 0x24; // with the offsets of the Unicode texts
constexpr quint32 volumeIdAndLocalBasePath = 0x01;
constexpr quint32 volumeIdSize = 0x11;
constexpr quint32 driveFixed = 3;
constexpr quint32 linkInfoOffset = 0;

void writeHeader(QDataStream& stream) {
    stream << headerSize;
    const char classId[] = "\x01\x14\x02\x00\x00\x00\x00\x00\xC0\x00\x00\x00\x00\x00\x00\x46";
    stream.writeRawData(classId, 16);
    stream << (hasLinkInfo | isUnicode);
    const QByteArray restOfHeader(static_cast<int>(headerSize) - 24, '\0');
    stream.writeRawData(restOfHeader.constData(), restOfHeader.size());
}

} // namespace

QByteArray renderShellLink(const QString& target) {
    const QByteArray ansi = toAnsi(target) + '\0';
    const QByteArray unicode = toUtf16(target + QChar(u'\0'));

    const quint32 volumeId = linkInfoHeaderSize;
    const quint32 ansiPath = volumeId + volumeIdSize;
    const quint32 ansiSuffix = ansiPath + static_cast<quint32>(ansi.size());
    const quint32 unicodePath = ansiSuffix + 1;
    const quint32 unicodeSuffix = unicodePath + static_cast<quint32>(unicode.size());
    const quint32 linkInfoSize = unicodeSuffix + 2;

    QByteArray link;
    QDataStream stream(&link, QIODevice::WriteOnly);
    stream.setByteOrder(QDataStream::LittleEndian);
    writeHeader(stream);
    stream << linkInfoSize << linkInfoHeaderSize << volumeIdAndLocalBasePath << volumeId << ansiPath << linkInfoOffset
           << ansiSuffix << unicodePath << unicodeSuffix;
    stream << volumeIdSize << driveFixed << quint32(0) << quint32(0x10) << quint8(0); // no serial number, no label
    stream.writeRawData(ansi.constData(), ansi.size());
    stream << quint8(0);
    stream.writeRawData(unicode.constData(), unicode.size());
    stream << quint16(0);
    stream << quint32(0); // no extra data
    return link;
}

} // namespace Recordings
