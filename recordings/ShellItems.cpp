#include "recordings/ShellItems.h"

#include "recordings/DrivePath.h"

#include <QStringList>

#include <vector>

namespace Recordings {

namespace {

// An item is its size, which counts itself, a type, and what the type says; an empty one ends the list.
constexpr qint64 typeOffset = 2;
constexpr int rootType = 0x1F;
constexpr int classMask = 0x70; // of a type
constexpr int driveClass = 0x20;
constexpr int hasNameFlag = 0x01;
constexpr int fileClass = 0x30;
constexpr int isFolderFlag = 0x01;
constexpr int isFileFlag = 0x02;
constexpr int isWideFlag = 0x04;

constexpr qint64 rootIdOffset = 4;
const char myComputer[] = "\xE0\x4F\xD0\x20\xEA\x3A\x69\x10\xA2\xD8\x08\x00\x2B\x30\x30\x9D";
constexpr int idSize = 16;

constexpr qint64 driveNameOffset = 3;

// A file's item: its size, dates and attributes, its short name, and a block with its name in UTF-16, whose offset is
// the item's last number. Before Windows XP it had no block, and the long name stood in place of the short one.
constexpr qint64 shortNameOffset = 14;
constexpr quint32 nameBlock = 0xBEEF0004;
constexpr qint64 blockTypeOffset = 4;
constexpr qint64 blockNameOffset = 16; // where the block says where its name is

int typeOf(const ByteView& item) {
    return item.number16(typeOffset - 1).value_or(0) >> 8U;
}

std::vector<ByteView> itemsOf(const ByteView& list) {
    std::vector<ByteView> items;
    for (qint64 position = 0;;) {
        const std::optional<quint16> size = list.number16(position);
        const std::optional<ByteView> item = size ? list.part(position, *size) : std::nullopt;
        if (!item || (*size > 0 && *size <= typeOffset)) {
            return {};
        }
        if (*size == 0) {
            return items;
        }
        items.push_back(*item);
        position += *size;
    }
}

bool isMyComputer(const ByteView& item) {
    const std::optional<ByteView> id = item.part(rootIdOffset, idSize);
    return typeOf(item) == rootType && id && id->isEqual(QByteArray::fromRawData(myComputer, idSize));
}

/// "C:"; empty for what is no drive.
QString driveOf(const ByteView& item) {
    const QString root = item.ansiText(driveNameOffset).value_or(QString());
    const bool isDrive = (typeOf(item) & (classMask | hasNameFlag)) == (driveClass | hasNameFlag) && root.size() == 3 &&
                         root.endsWith(QLatin1String(":\\")) && DrivePath::parse(root);
    return isDrive ? root.left(2) : QString();
}

QString nameIn(const ByteView& item) {
    const quint16 offset = item.number16(item.size() - 2).value_or(0);
    const std::optional<ByteView> rest = item.part(offset, item.size() - offset);
    const std::optional<ByteView> block = rest ? rest->part(0, rest->number16(0).value_or(0)) : std::nullopt;
    if (offset > shortNameOffset && block && block->number32(blockTypeOffset) == nameBlock) {
        return block->wideText(block->number16(blockNameOffset).value_or(0)).value_or(QString());
    }
    const bool isWide = (typeOf(item) & isWideFlag) != 0;
    return (isWide ? item.wideText(shortNameOffset) : item.ansiText(shortNameOffset)).value_or(QString());
}

/// Empty for what is no file and no folder. What is below the item must be in a folder.
QString nameOf(const ByteView& item, bool isLast) {
    const int type = typeOf(item);
    const bool isKind = (type & isFolderFlag) != 0 || ((type & isFileFlag) != 0 && isLast);
    const QString name = (type & classMask) == fileClass && isKind ? nameIn(item) : QString();
    return DrivePath::canName(name) ? name : QString();
}

} // namespace

QString pathOfShellItems(const ByteView& items) {
    const std::vector<ByteView> list = itemsOf(items);
    if (list.size() < 2 || !isMyComputer(list.front())) {
        return {};
    }
    QStringList names{driveOf(list.at(1))};
    for (std::size_t i = 2; i < list.size(); ++i) {
        names.append(nameOf(list.at(i), i + 1 == list.size()));
    }
    if (names.contains(QString())) {
        return {};
    }
    return names.size() == 1 ? names.first() + QLatin1Char('\\') : names.join(QLatin1Char('\\'));
}

} // namespace Recordings
