#include "recordings/ShellLink.h"

#include "recordings/ByteView.h"
#include "recordings/DrivePath.h"
#include "recordings/ShellItems.h"
#include "recordings/WindowsNames.h"
#include "recordings/WindowsPath.h"

#include <QHash>

namespace Recordings {

namespace {

constexpr quint32 headerSize = 0x4C;
constexpr qint64 flagsOffset = 0x14;

constexpr quint32 hasItemList = 0x001;
constexpr quint32 hasLinkInfo = 0x002;
constexpr quint32 hasName = 0x004;
constexpr quint32 hasRelativePath = 0x008;
constexpr quint32 hasWorkingFolder = 0x010;
constexpr quint32 hasArguments = 0x020;
constexpr quint32 hasIcon = 0x040;
constexpr quint32 isWide = 0x080;
constexpr quint32 ignoresLinkInfo = 0x100;
constexpr quint32 hasExpandable = 0x200;

constexpr quint32 linkInfoIsLocal = 1;
constexpr quint32 linkInfoIsNetwork = 2;
constexpr quint32 linkInfoWideHeader = 0x24;

constexpr quint32 expandableBlock = 0xA0000001;
constexpr qint64 expandableWideOffset = 8 + 260;

constexpr int longestTarget = 259; // what fits into a buffer of MAX_PATH characters

// The parts of a shortcut follow one another, each with a size that it states itself.
class Reader {
public:
    Reader(const QByteArray& bytes, int codePage)
        : m_bytes(bytes, codePage) {}

    bool read(ShellLink& link);

private:
    bool readItemList(ShellLink& link);
    bool readLinkInfo(ShellLink& link);
    bool readText(QString& text);
    bool readTexts(ShellLink& link);
    void readExpandable(ShellLink& link);

    bool has(quint32 flag) const { return (m_flags & flag) != 0; }

    ByteView m_bytes;
    quint32 m_flags = 0;
    qint64 m_position = headerSize;
};

bool Reader::read(ShellLink& link) {
    static const char classId[] = "\x01\x14\x02\0\0\0\0\0\xC0\0\0\0\0\0\0\x46";
    const std::optional<ByteView> id = m_bytes.part(4, 16);
    const bool isShortcut =
        m_bytes.number32(0) == headerSize && id && id->isEqual(QByteArray::fromRawData(classId, 16));
    if (!isShortcut || !m_bytes.part(0, headerSize)) {
        return false;
    }
    m_flags = m_bytes.number32(flagsOffset).value_or(0);
    if ((has(hasItemList) && !readItemList(link)) || (has(hasLinkInfo) && !readLinkInfo(link)) || !readTexts(link)) {
        return false;
    }
    if (has(hasExpandable)) {
        readExpandable(link);
    }
    return true;
}

bool Reader::readItemList(ShellLink& link) {
    const std::optional<quint16> size = m_bytes.number16(m_position);
    const std::optional<ByteView> items = size ? m_bytes.part(m_position + 2, *size) : std::nullopt;
    if (!items) {
        return false;
    }
    link.itemPath = pathOfShellItems(*items);
    m_position += 2 + *size;
    return true;
}

// A text of the link information, whose offset stands at `ansi` or, where there is one in UTF-16, at `wide`.
std::optional<QString> textAt(const ByteView& info, bool isWideInfo, qint64 ansi, qint64 wide) {
    const std::optional<quint32> wideOffset = isWideInfo ? info.number32(wide) : std::nullopt;
    if (wideOffset && *wideOffset != 0) {
        return info.wideText(*wideOffset);
    }
    const std::optional<quint32> offset = info.number32(ansi);
    return offset ? info.ansiText(*offset) : std::nullopt;
}

std::optional<QString> networkName(const ByteView& info) {
    const quint32 offset = info.number32(20).value_or(0);
    const quint32 size = info.number32(offset).value_or(0);
    const std::optional<ByteView> network = info.part(offset, size);
    if (!network || offset == 0) {
        return std::nullopt;
    }
    const bool isWideInfo = network->number32(8).value_or(0) > 0x14;
    return textAt(*network, isWideInfo, 8, 20);
}

QString joinedPath(const QString& folder, const QString& rest) {
    const bool needsSeparator = !rest.isEmpty() && !folder.endsWith(QLatin1Char('\\'));
    return needsSeparator ? folder + QLatin1Char('\\') + rest : folder + rest;
}

bool Reader::readLinkInfo(ShellLink& link) {
    const std::optional<quint32> size = m_bytes.number32(m_position);
    const std::optional<ByteView> info = size ? m_bytes.part(m_position, *size) : std::nullopt;
    if (!info) {
        return false;
    }
    m_position += *size;
    const quint32 flags = info->number32(8).value_or(0);
    const bool isWideInfo = info->number32(4).value_or(0) >= linkInfoWideHeader;
    const std::optional<QString> suffix = textAt(*info, isWideInfo, 24, 32);
    if (has(ignoresLinkInfo) || !suffix) {
        return has(ignoresLinkInfo);
    }
    if (flags & linkInfoIsLocal) {
        const std::optional<QString> base = textAt(*info, isWideInfo, 16, 28);
        link.localPath = base ? *base + *suffix : QString();
    }
    if (flags & linkInfoIsNetwork) {
        const std::optional<QString> base = networkName(*info);
        link.networkPath = base ? joinedPath(*base, *suffix) : QString();
    }
    return true;
}

bool Reader::readText(QString& text) {
    const std::optional<quint16> length = m_bytes.number16(m_position);
    const qint64 size = qint64{length.value_or(0)} * (has(isWide) ? 2 : 1);
    const std::optional<ByteView> bytes = length ? m_bytes.part(m_position + 2, size) : std::nullopt;
    if (!bytes) {
        return false;
    }
    text = has(isWide) ? bytes->asWide() : bytes->asAnsi();
    m_position += 2 + size;
    return true;
}

bool Reader::readTexts(ShellLink& link) {
    for (const quint32 flag : {hasName, hasRelativePath, hasWorkingFolder, hasArguments, hasIcon}) {
        QString text;
        if (has(flag) && !readText(text)) {
            return false;
        }
        if (flag == hasRelativePath) {
            link.relativePath = text;
        }
    }
    return true;
}

void Reader::readExpandable(ShellLink& link) {
    while (const std::optional<quint32> size = m_bytes.number32(m_position)) {
        const std::optional<ByteView> block = m_bytes.part(m_position, *size);
        if (!block || *size < 8) {
            return;
        }
        if (block->number32(4) == expandableBlock) {
            const QString wide = block->wideText(expandableWideOffset).value_or(QString());
            link.expandable = wide.isEmpty() ? block->ansiText(8).value_or(QString()) : wide;
            return;
        }
        m_position += *size;
    }
}

// Empty when it names a variable that isn't set. Windows ignores the letter case of their names.
QString expanded(const QString& text, const QProcessEnvironment& environment) {
    const QStringList parts = text.split(QLatin1Char('%'));
    if (parts.size() % 2 == 0) {
        return {};
    }
    QHash<QString, QString> values; // by folded name
    for (const QString& name : environment.keys()) {
        values.insert(foldName(name), environment.value(name));
    }
    QString result = parts.first();
    for (int i = 1; i < parts.size(); i += 2) {
        const auto value = values.constFind(foldName(parts.at(i)));
        if (value == values.constEnd()) {
            return {};
        }
        result += *value + parts.at(i + 1);
    }
    return result;
}

} // namespace

std::optional<ShellLink> parseShellLink(const QByteArray& bytes, int codePage) {
    ShellLink link;
    if (!Reader(bytes, codePage).read(link)) {
        return std::nullopt;
    }
    return link;
}

QString targetOf(const ShellLink& link, const QProcessEnvironment& environment, const QString& folder) {
    QString target = expanded(link.expandable, environment);
    for (const QString& path : {link.localPath, link.networkPath, link.itemPath}) {
        if (target.isEmpty()) {
            target = path;
        }
    }
    if (target.isEmpty() && !link.relativePath.isEmpty()) {
        const auto path = DrivePath::parse(folder + QLatin1Char('/') + link.relativePath);
        target = path ? path->text() : QString();
    }
    return target.size() > longestTarget ? QString() : Path(target).text();
}

} // namespace Recordings
