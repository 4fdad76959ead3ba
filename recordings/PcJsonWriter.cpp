#include "recordings/PcJson.h"
#include "recordings/ShellFolderNames.h"

namespace Recordings {

namespace {

template <class Texts>
JsonValue stringsOf(const char* name, const Texts& texts) {
    JsonValue array = JsonValue::array(QLatin1String(name));
    for (const QString& text : texts) {
        array.items.push_back(JsonValue::string({}, text));
    }
    return array;
}

template <class Key>
JsonValue objectOf(const char* name, const QMap<Key, QString>& texts) {
    JsonValue object = JsonValue::object(QLatin1String(name));
    for (auto text = texts.begin(); text != texts.end(); ++text) {
        object.items.push_back(JsonValue::string(text.key(), text.value()));
    }
    return object;
}

JsonValue shellFoldersOf(const Pc& pc) {
    JsonValue object = JsonValue::object(QStringLiteral("shellFolders"));
    for (const ShellFolderName& known : shellFolders) {
        if (pc.shellFolders.contains(known.csidl)) {
            object.items.push_back(JsonValue::string(QLatin1String(known.name), pc.shellFolders[known.csidl]));
        }
    }
    return object;
}

JsonValue environmentOf(const Pc& pc) {
    JsonValue object = JsonValue::object(QStringLiteral("environment"));
    QStringList names = pc.environment.keys();
    names.sort();
    for (const QString& name : qAsConst(names)) {
        object.items.push_back(JsonValue::string(name, pc.environment.value(name)));
    }
    return object;
}

JsonValue packagesOf(const AppPackages& packages) {
    JsonValue array = JsonValue::array(QStringLiteral("packages"));
    for (const AppPackage& package : packages) {
        JsonValue object = JsonValue::object({});
        object.items = {JsonValue::string(QStringLiteral("family"), package.family),
                        JsonValue::string(QStringLiteral("fullName"), package.fullName),
                        stringsOf("applicationIds", package.applicationIds)};
        array.items.push_back(std::move(object));
    }
    return array;
}

JsonValue hostOf(const Pc& pc) {
    JsonValue object = JsonValue::object(QStringLiteral("host"));
    if (!pc.hostExecutable.isEmpty()) {
        object.items.push_back(JsonValue::string(QStringLiteral("executable"), pc.hostExecutable));
    }
    if (pc.hostVersion != 0) {
        QStringList numbers;
        for (int shift = 48; shift >= 0; shift -= 16) {
            numbers.append(QString::number((pc.hostVersion >> shift) & 0xFFFFU));
        }
        object.items.push_back(JsonValue::string(QStringLiteral("version"), numbers.join(QLatin1Char('.'))));
    }
    return object;
}

QStringList pathsOf(const Drives& drives, bool File::*attribute) {
    QStringList paths;
    drives.visit([&](const DrivePath& path, const File& file) {
        if (file.*attribute) {
            paths.append(path.text().replace(QLatin1Char('/'), QLatin1Char('\\')));
        }
    });
    return paths;
}

} // namespace

JsonValue pcJson(const Pc& pc) {
    JsonValue root = JsonValue::object({});
    const auto add = [&root](JsonValue value) {
        if (!value.items.empty()) {
            root.items.push_back(std::move(value));
        }
    };
    if (pc.codePage != westernCodePage) {
        root.items.push_back(JsonValue::number(QStringLiteral("codePage"), pc.codePage));
    }
    add(environmentOf(pc));
    add(stringsOf("hidden", pathsOf(pc.drives, &File::isHidden)));
    add(hostOf(pc));
    if (pc.packages) { // an empty list says something, too
        root.items.push_back(packagesOf(*pc.packages));
    }
    add(shellFoldersOf(pc));
    add(stringsOf("system", pathsOf(pc.drives, &File::isSystem)));
    add(objectOf("userLocations", pc.userLocations));
    add(objectOf("volumes", pc.volumes));
    return root;
}

} // namespace Recordings
