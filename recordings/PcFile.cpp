#include "recordings/PcFile.h"

#include "recordings/DrivesJson.h"
#include "recordings/PcJson.h"
#include "recordings/RegistryJson.h"

#include <algorithm>

namespace Recordings {

namespace {

const QLatin1String formatMember("format");
const QLatin1String versionMember("version");
const QLatin1String format("luruludri-pc");
constexpr int formatVersion = 1;

} // namespace

bool isPcFile(const JsonValue& json) {
    const JsonValue* const member = json.member(formatMember);
    return member && member->kind == JsonValue::Kind::String && member->text == format;
}

Pc readPcFile(const JsonValue& json, const QString& file, QString& fault, std::vector<Problem>& problems) {
    Pc pc;
    const JsonValue* const version = json.member(versionMember);
    if (!version || version->text.toInt() != formatVersion) {
        fault = QStringLiteral("its format is not version %1, the only one that is known here").arg(formatVersion);
        return pc;
    }
    JsonValue rest = JsonValue::object({});
    for (const JsonValue& member : json.items) {
        if (member.name == drivesMember) {
            pc.drives = readDrivesJson(member, file, problems);
        } else if (member.name == registryMember) {
            readRegistryJson(member, file, pc.registry, problems);
        } else if (member.name != formatMember && member.name != versionMember) {
            rest.items.push_back(member);
        }
    }
    readPcJson(rest, file, pc, problems);
    return pc;
}

QByteArray renderPcFile(const Pc& pc) {
    JsonValue root = pcJson(pc);
    const auto isOfFiles = [](const JsonValue& member) { // which tell it themselves here
        return member.name == QLatin1String("hidden") || member.name == QLatin1String("system");
    };
    root.items.erase(std::remove_if(root.items.begin(), root.items.end(), isOfFiles), root.items.end());
    root.items.push_back(JsonValue::string(formatMember, format));
    root.items.push_back(JsonValue::number(versionMember, formatVersion));
    root.items.push_back(drivesJson(pc.drives));
    root.items.push_back(registryJson(pc.registry));
    std::sort(root.items.begin(), root.items.end(),
              [](const JsonValue& a, const JsonValue& b) { return a.name < b.name; });
    return renderJson(root);
}

} // namespace Recordings
