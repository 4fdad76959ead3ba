#include "recordings/RegFileWriter.h"

#include "recordings/RegValues.h"
#include "recordings/Utf16Text.h"

#include <QtEndian>

#include <algorithm>

namespace Recordings {

namespace {

constexpr int bytesOfLine = 25;
constexpr const char* lineEnd = "\r\n";

bool isControl(QChar character) {
    return character.unicode() < 0x20;
}

QString quoted(QString text) {
    text.replace(QLatin1Char('\\'), QLatin1String("\\\\")).replace(QLatin1Char('"'), QLatin1String("\\\""));
    return QLatin1Char('"') + text + QLatin1Char('"');
}

QString renderBytes(const RegistryNode::Value& value) {
    QString text = value.type == RegType::binary ? QStringLiteral("hex:")
                                                 : QStringLiteral("hex(%1):").arg(QString::number(value.type, 16));
    for (int begin = 0; begin < value.data.size(); begin += bytesOfLine) {
        if (begin > 0) {
            text += QLatin1String(",\\") + QLatin1String(lineEnd) + QLatin1String("  ");
        }
        text += QString::fromLatin1(value.data.mid(begin, bytesOfLine).toHex(','));
    }
    return text;
}

QString renderData(const RegistryNode::Value& value) {
    const std::optional<QString> text = textOf(value.type, value.data);
    if (text && std::none_of(text->begin(), text->end(), isControl) && text->isValidUtf16()) {
        return quoted(*text);
    }
    if (value.type == RegType::dword && value.data.size() == static_cast<int>(sizeof(quint32))) {
        return QString::asprintf("dword:%08x", qFromLittleEndian<quint32>(value.data.constData()));
    }
    return renderBytes(value);
}

bool canStand(const QString& name) {
    return !name.contains(QLatin1Char('\n')) && !name.contains(QLatin1Char('\r'));
}

} // namespace

QByteArray renderRegFile(const Registry& registry, QStringList& leftOut) {
    const QString newline = QLatin1String(lineEnd);
    QString text = QStringLiteral("Windows Registry Editor Version 5.00") + newline;
    registry.visit([&](RegKey::Root root, const QStringList& path, const RegistryNode& key) {
        const QString name = (QStringList{rootName(root)} + path).join(QLatin1Char('\\'));
        if (!canStand(name)) {
            leftOut.append(name);
            return;
        }
        if (key.values().empty() && !key.children().empty()) {
            return; // the keys below it name it
        }
        text += newline + QLatin1Char('[') + name + QLatin1Char(']') + newline;
        for (const auto& [folded, value] : key.values()) {
            if (canStand(value.name)) {
                text += (value.name.isEmpty() ? QStringLiteral("@") : quoted(value.name)) + QLatin1Char('=') +
                        renderData(value) + newline;
            } else {
                leftOut.append(name + QLatin1Char('\\') + value.name);
            }
        }
    });
    return "\xFF\xFE" + toUtf16(text);
}

} // namespace Recordings
