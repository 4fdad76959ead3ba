#include "find/record/RegFileWriter.h"

#include <QtEndian>

#include <algorithm>
#include <optional>

namespace Host {

namespace {

constexpr quint32 typeString = 1;
constexpr quint32 typeExpandable = 2;
constexpr quint32 typeBinary = 3;
constexpr quint32 typeDword = 4;
constexpr quint32 typeLink = 6;
constexpr quint32 typeStrings = 7;
constexpr quint32 typeQword = 11;

constexpr int bytesOfLine = 25;
constexpr const char* lineEnd = "\r\n";

bool isControl(QChar character) {
    return character.unicode() < 0x20;
}

/// The text of a plain string that is stored as programs should; anything else is written byte by byte.
std::optional<QString> wellFormedText(const RecordedValue& value) {
    if (value.type != typeString || value.data.size() % 2 != 0 || value.data.size() < 2) {
        return std::nullopt;
    }
    QString text(value.data.size() / 2, Qt::Uninitialized);
    qFromLittleEndian<char16_t>(value.data.constData(), text.size(), text.data());
    if (!text.endsWith(QChar(u'\0'))) {
        return std::nullopt;
    }
    text.chop(1);
    const bool isPlain = std::none_of(text.begin(), text.end(), isControl) && text.isValidUtf16();
    return isPlain ? std::make_optional(text) : std::nullopt;
}

QString quoted(QString text) {
    text.replace(QLatin1Char('\\'), QLatin1String("\\\\")).replace(QLatin1Char('"'), QLatin1String("\\\""));
    return QLatin1Char('"') + text + QLatin1Char('"');
}

QString renderBytes(const RecordedValue& value) {
    QString text = value.type == typeBinary ? QStringLiteral("hex:")
                                            : QStringLiteral("hex(%1):").arg(QString::number(value.type, 16));
    for (int begin = 0; begin < value.data.size(); begin += bytesOfLine) {
        if (begin > 0) {
            text += QLatin1String(",\\") + QLatin1String(lineEnd) + QLatin1String("  ");
        }
        text += QString::fromLatin1(value.data.mid(begin, bytesOfLine).toHex(','));
    }
    return text;
}

QString renderData(const RecordedValue& value) {
    if (const std::optional<QString> text = wellFormedText(value)) {
        return quoted(*text);
    }
    if (value.type == typeDword && value.data.size() == static_cast<int>(sizeof(quint32))) {
        const auto number = qFromLittleEndian<quint32>(value.data.constData());
        return QString::asprintf("dword:%08x", number);
    }
    return renderBytes(value);
}

RecordedValue neutral(RecordedValue value, const NeutralNames& names) {
    switch (value.type) {
    case typeDword:
    case typeQword:
        break;
    case typeString:
    case typeExpandable:
    case typeLink:
    case typeStrings:
        value.data = names.utf16(value.data);
        break;
    default:
        value.data = names.contents(names.utf16(value.data)); // it may hold text of either kind
    }
    return value;
}

QByteArray encoded(const QString& text) {
    QByteArray bytes(text.size() * 2, Qt::Uninitialized);
    qToLittleEndian<char16_t>(text.utf16(), text.size(), bytes.data());
    return "\xFF\xFE" + bytes;
}

} // namespace

QByteArray renderRegFile(const RegistryRecord& record, const NeutralNames& names, QStringList& leftOut) {
    const QString newline = QLatin1String(lineEnd);
    QString text = QStringLiteral("Windows Registry Editor Version 5.00") + newline;
    for (const auto& [folded, key] : record.keys()) {
        const QString root = key.root + QLatin1Char('\\'); // which has words of its own
        const QString path = key.path.join(QLatin1Char('\\'));
        if (std::any_of(path.begin(), path.end(), isControl)) {
            leftOut.append(root + path);
            continue;
        }
        text += newline + QLatin1Char('[') + root + names.text(path) + QLatin1Char(']') + newline;
        for (const auto& [foldedName, value] : key.values) {
            const QString name = value.name.isEmpty() ? QStringLiteral("@") : quoted(value.name);
            text += name + QLatin1Char('=') + renderData(neutral(value, names)) + newline;
        }
    }
    return encoded(text);
}

} // namespace Host
