#include "recordings/PcJson.h"

#include "recordings/ShellFolderNames.h"

#include <algorithm>
#include <iterator>

namespace Recordings {

namespace {

bool hasControls(const QString& text) {
    return std::any_of(text.begin(), text.end(), [](QChar c) { return c.unicode() < 0x20; });
}

QString unknownName() {
    return QStringLiteral("nothing of this name is known");
}

QString placeOfItem(const QString& array, size_t index) {
    return array + QStringLiteral("[%1]").arg(index);
}

class Reader {
public:
    Reader(const QString& file, Pc& pc, std::vector<Problem>& problems)
        : m_file(file)
        , m_pc(pc)
        , m_problems(problems) {}

    void read(const JsonValue& json) { eachMember(json, {}, &Reader::readMember); }

private:
    using Kind = JsonValue::Kind;
    using Read = void (Reader::*)(const JsonValue&, const QString& place);

    void readMember(const JsonValue& value, const QString& place);
    void readShellFolder(const JsonValue& value, const QString& place);
    void readVolume(const JsonValue& value, const QString& place);
    void readVariable(const JsonValue& value, const QString& place);
    void readPackage(const JsonValue& value, const QString& place);
    void readUserLocation(const JsonValue& value, const QString& place);
    void readHost(const JsonValue& value, const QString& place);
    void readVersion(const JsonValue& value, const QString& place);

    void eachMember(const JsonValue& object, const QString& place, Read readOne);
    void eachItem(const JsonValue& array, const QString& place, Read readOne);
    void readCodePage(const JsonValue& value, const QString& place);
    void mark(const JsonValue& array, const QString& place, bool File::*attribute);
    QStringList texts(const JsonValue& array, const QString& place);
    QString text(const JsonValue& value, const QString& place);
    bool isOf(Kind kind, const JsonValue& value, const QString& place);
    void report(const JsonValue& value, const QString& place, const QString& message);

    const QString& m_file;
    Pc& m_pc;
    std::vector<Problem>& m_problems;
};

void Reader::readMember(const JsonValue& value, const QString& place) {
    if (value.name == QLatin1String("shellFolders")) {
        eachMember(value, place, &Reader::readShellFolder);
    } else if (value.name == QLatin1String("volumes")) {
        eachMember(value, place, &Reader::readVolume);
    } else if (value.name == QLatin1String("environment")) {
        eachMember(value, place, &Reader::readVariable);
    } else if (value.name == QLatin1String("packages")) {
        m_pc.packages.emplace();
        eachItem(value, place, &Reader::readPackage);
    } else if (value.name == QLatin1String("userLocations")) {
        eachMember(value, place, &Reader::readUserLocation);
    } else if (value.name == QLatin1String("host")) {
        eachMember(value, place, &Reader::readHost);
    } else if (value.name == QLatin1String("hidden")) {
        mark(value, place, &File::isHidden);
    } else if (value.name == QLatin1String("system")) {
        mark(value, place, &File::isSystem);
    } else if (value.name == QLatin1String("codePage")) {
        readCodePage(value, place);
    } else {
        report(value, place, unknownName());
    }
}

void Reader::readShellFolder(const JsonValue& value, const QString& place) {
    const auto* const folder =
        std::find_if(std::begin(shellFolders), std::end(shellFolders),
                     [&value](const auto& known) { return value.name == QLatin1String(known.name); });
    if (folder == std::end(shellFolders)) {
        report(value, place, unknownName());
    } else {
        m_pc.shellFolders.insert(folder->csidl, text(value, place));
    }
}

void Reader::readVolume(const JsonValue& value, const QString& place) {
    if (value.name.size() != 1 || !DrivePath::parse(value.name + QLatin1Char(':'))) {
        report(value, place, QStringLiteral("a drive letter is expected"));
        return;
    }
    const QString name = text(value, place);
    if (name.startsWith(QLatin1String("\\\\?\\Volume{")) && name.endsWith(QLatin1String("}\\"))) {
        m_pc.volumes.insert(value.name.at(0).toUpper(), name);
    } else if (value.kind == Kind::String) {
        report(value, place, QStringLiteral("\"\\\\?\\Volume{…}\\\" is expected"));
    }
}

void Reader::readVariable(const JsonValue& value, const QString& place) {
    if (isOf(Kind::String, value, place)) {
        m_pc.environment.insert(value.name, value.text);
    }
}

void Reader::readPackage(const JsonValue& value, const QString& place) {
    if (!isOf(Kind::Object, value, place)) {
        return;
    }
    AppPackage package;
    for (const JsonValue& member : value.items) {
        const QString at = place + QLatin1Char('.') + member.name;
        if (member.name == QLatin1String("family")) {
            package.family = text(member, at);
        } else if (member.name == QLatin1String("fullName")) {
            package.fullName = text(member, at);
        } else if (member.name == QLatin1String("applicationIds")) {
            package.applicationIds = texts(member, at);
        } else {
            report(member, at, unknownName());
        }
    }
    if (package.family.isEmpty() || package.fullName.isEmpty()) {
        report(value, place, QStringLiteral("a \"family\" and a \"fullName\" are expected"));
    } else {
        m_pc.packages->push_back(std::move(package));
    }
}

void Reader::readUserLocation(const JsonValue& value, const QString& place) {
    const QString folder = text(value, place);
    if (!folder.isEmpty()) {
        m_pc.userLocations.insert(value.name, folder);
    }
}

void Reader::readHost(const JsonValue& value, const QString& place) {
    if (value.name == QLatin1String("executable")) {
        m_pc.hostExecutable = text(value, place);
    } else if (value.name == QLatin1String("version")) {
        readVersion(value, place);
    } else {
        report(value, place, unknownName());
    }
}

void Reader::readVersion(const JsonValue& value, const QString& place) {
    const QStringList parts = text(value, place).split(QLatin1Char('.'));
    quint64 number = 0;
    bool isGood = parts.size() == 4;
    for (const QString& part : parts) {
        bool isNumber = false;
        number = (number << 16U) | part.toUShort(&isNumber);
        isGood = isGood && isNumber;
    }
    if (isGood) {
        m_pc.hostVersion = number;
    } else if (value.kind == Kind::String) {
        report(value, place, QStringLiteral("four numbers up to 65535 are expected, as in \"1.2.3.4\""));
    }
}

void Reader::eachMember(const JsonValue& object, const QString& place, Read readOne) {
    if (!isOf(Kind::Object, object, place)) {
        return;
    }
    for (const JsonValue& member : object.items) {
        (this->*readOne)(member, place.isEmpty() ? member.name : place + QLatin1Char('.') + member.name);
    }
}

void Reader::eachItem(const JsonValue& array, const QString& place, Read readOne) {
    if (!isOf(Kind::Array, array, place)) {
        return;
    }
    for (size_t i = 0; i < array.items.size(); ++i) {
        (this->*readOne)(array.items[i], placeOfItem(place, i));
    }
}

QStringList Reader::texts(const JsonValue& array, const QString& place) {
    QStringList list;
    if (!isOf(Kind::Array, array, place)) {
        return list;
    }
    for (size_t i = 0; i < array.items.size(); ++i) {
        const QString item = text(array.items[i], placeOfItem(place, i));
        if (!item.isEmpty()) {
            list.append(item);
        }
    }
    return list;
}

void Reader::readCodePage(const JsonValue& value, const QString& place) {
    const int codePage = value.kind == Kind::Number ? value.text.toInt() : 0;
    if (isKnownCodePage(codePage)) {
        m_pc.codePage = codePage;
    } else {
        report(value, place, QStringLiteral("the number of an ANSI code page is expected, as 1252"));
    }
}

/// Gives the files and folders at these paths an attribute.
void Reader::mark(const JsonValue& array, const QString& place, bool File::*attribute) {
    const QStringList paths = texts(array, place);
    for (const QString& text : paths) {
        const std::optional<DrivePath> path = DrivePath::parse(text);
        File* const file = path ? m_pc.drives.find(*path) : nullptr;
        if (!path) {
            report(array, place, QStringLiteral("\"%1\" has no drive letter").arg(text));
        } else if (file) {
            file->*attribute = true;
        }
    }
}

// Empty when it is no text, or none that could be a name or a path.
QString Reader::text(const JsonValue& value, const QString& place) {
    if (!isOf(Kind::String, value, place)) {
        return {};
    }
    if (hasControls(value.text)) {
        report(value, place, QStringLiteral("a control character; are all backslashes doubled?"));
        return {};
    }
    return value.text;
}

bool Reader::isOf(Kind kind, const JsonValue& value, const QString& place) {
    if (value.kind == kind) {
        return true;
    }
    report(value, place,
           kind == Kind::Object  ? QStringLiteral("an object is expected")
           : kind == Kind::Array ? QStringLiteral("an array is expected")
                                 : QStringLiteral("a string is expected"));
    return false;
}

void Reader::report(const JsonValue& value, const QString& place, const QString& message) {
    const QString text = place.isEmpty() ? message : place + QLatin1String(": ") + message;
    m_problems.push_back({m_file, value.line, text});
}

} // namespace

void readPcJson(const JsonValue& json, const QString& file, Pc& pc, std::vector<Problem>& problems) {
    Reader(file, pc, problems).read(json);
}

} // namespace Recordings
