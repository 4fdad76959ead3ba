#include "recordings/RegistryJson.h"

#include "recordings/RegValues.h"

#include <QRegularExpression>

namespace Recordings {

namespace {

const QLatin1String typeMember("type");
const QLatin1String bytesMember("bytes");
constexpr QLatin1Char backslash('\\');

JsonValue valueJson(const RegistryNode::Value& value) {
    if (const std::optional<QString> text = textOf(value.type, value.data)) {
        return JsonValue::string(value.name, *text);
    }
    JsonValue object = JsonValue::object(value.name);
    object.items = {JsonValue::number(typeMember, value.type),
                    JsonValue::string(bytesMember, QString::fromLatin1(value.data.toHex()))};
    return object;
}

std::optional<RegValue> valueOf(const JsonValue& json) {
    static const QRegularExpression hex(QStringLiteral("^([0-9A-Fa-f]{2})*$"));
    if (json.kind == JsonValue::Kind::String) {
        return RegValue{json.name, false, RegType::string, storedText(json.text)};
    }
    const JsonValue* const type = json.member(typeMember);
    const JsonValue* const bytes = json.member(bytesMember);
    bool isNumber = false;
    const quint32 number = type ? type->text.toUInt(&isNumber) : 0;
    if (!isNumber || !bytes || !hex.match(bytes->text).hasMatch()) {
        return std::nullopt;
    }
    return RegValue{json.name, false, number, QByteArray::fromHex(bytes->text.toLatin1())};
}

} // namespace

JsonValue registryJson(const Registry& registry) {
    JsonValue keys = JsonValue::object(registryMember);
    registry.visit([&keys](RegKey::Root root, const QStringList& path, const RegistryNode& key) {
        if (key.values().empty() && !key.children().empty()) {
            return; // the keys below it name it
        }
        JsonValue values = JsonValue::object((QStringList{rootName(root)} + path).join(backslash));
        for (const auto& [folded, value] : key.values()) {
            values.items.push_back(valueJson(value));
        }
        keys.items.push_back(std::move(values));
    });
    return keys;
}

void readRegistryJson(const JsonValue& json, const QString& file, Registry& registry, std::vector<Problem>& problems) {
    const auto report = [&](const JsonValue& value, const QString& message) {
        problems.push_back(
            {file, value.line, registryMember + QLatin1String(": ") + value.name + QLatin1String(": ") + message});
    };
    for (const JsonValue& item : json.items) {
        const QStringList path = item.name.split(backslash, Qt::SkipEmptyParts);
        const RegKey::Root root = rootNamed(path.value(0));
        if (root == RegKey::Root::Other || item.kind != JsonValue::Kind::Object || path.size() > deepestKey) {
            report(item, QStringLiteral("a key with an object of values is expected"));
            continue;
        }
        RegistryNode& key = registry.make(root, path.mid(1), RegistryView::Bits64);
        for (const JsonValue& member : item.items) {
            if (const std::optional<RegValue> value = valueOf(member)) {
                key.apply(*value);
            } else {
                report(member,
                       QStringLiteral("a string is expected, or a \"type\" and \"bytes\" in hexadecimal digits"));
            }
        }
    }
}

} // namespace Recordings
