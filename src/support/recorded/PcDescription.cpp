#include "support/recorded/PcDescription.h"

#include "support/Platform.h"
#include "support/recorded/DrivePath.h"
#include "support/recorded/JsonPlaces.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <iterator>

namespace Recorded {

namespace {

struct FolderName {
    QLatin1String name;
    int csidl;
};

const FolderName folderNames[] = {
    {QLatin1String("personal"), Platform::csidlPersonal},
    {QLatin1String("startMenu"), Platform::csidlStartMenu},
    {QLatin1String("commonStartMenu"), Platform::csidlCommonStartMenu},
    {QLatin1String("localAppData"), Platform::csidlLocalAppData},
    {QLatin1String("commonAppData"), Platform::csidlCommonAppData},
};

bool hasControls(const QString& text) {
    return std::any_of(text.begin(), text.end(), [](QChar c) { return c.unicode() < 0x20; });
}

// Where a value stands in the description: the names of the members that lead to it, and the text for a report.
struct Place {
    QStringList names;
    QString text;

    Place member(const QString& name) const {
        return {names + QStringList{name}, text.isEmpty() ? name : text + QLatin1Char('.') + name};
    }

    Place item(int index) const { return {names, text + QStringLiteral("[%1]").arg(index)}; }
};

class Reader {
public:
    Reader(const QByteArray& json, const QString& file, std::vector<Recording::Problem>& problems)
        : m_json(json)
        , m_file(file)
        , m_problems(problems) {}

    PcDescription read();

private:
    using Item = void (Reader::*)(const Place&, const QJsonValue&);

    void readMember(const Place& place, const QJsonValue& value);
    void readShellFolder(const Place& place, const QJsonValue& value);
    void readVolume(const Place& place, const QJsonValue& value);
    void readVariable(const Place& place, const QJsonValue& value);
    void readPackage(const Place& place, const QJsonValue& value);
    void readHost(const Place& place, const QJsonValue& value);
    void readVersion(const Place& place, const QString& version);

    void eachMember(const Place& place, const QJsonValue& value, Item item);
    void eachItem(const Place& place, const QJsonValue& value, Item item);
    QStringList paths(const Place& place, const QJsonValue& value);
    QStringList texts(const Place& place, const QJsonValue& value);
    QString text(const Place& place, const QJsonValue& value);

    void unknown(const Place& place) { report(place, QStringLiteral("nothing of this name is known")); }

    void report(const Place& place, const QString& message);

    const QByteArray& m_json;
    const QString& m_file;
    std::vector<Recording::Problem>& m_problems;
    PcDescription m_pc;
};

PcDescription Reader::read() {
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(m_json, &error);
    const int stray = strayBackslash(m_json);
    if (error.error != QJsonParseError::NoError) {
        m_problems.push_back({m_file, lineAt(m_json, error.offset), error.errorString()});
    } else if (stray >= 0) {
        m_problems.push_back(
            {m_file, lineAt(m_json, stray), QStringLiteral("a backslash in a string must be doubled")});
    } else if (!document.isObject()) {
        m_problems.push_back({m_file, 1, QStringLiteral("an object is expected")});
    } else {
        eachMember({}, document.object(), &Reader::readMember);
    }
    return std::move(m_pc);
}

void Reader::readMember(const Place& place, const QJsonValue& value) {
    const QString& name = place.names.last();
    if (name == QLatin1String("shellFolders")) {
        eachMember(place, value, &Reader::readShellFolder);
    } else if (name == QLatin1String("volumes")) {
        eachMember(place, value, &Reader::readVolume);
    } else if (name == QLatin1String("environment")) {
        eachMember(place, value, &Reader::readVariable);
    } else if (name == QLatin1String("packages")) {
        m_pc.packages.emplace();
        eachItem(place, value, &Reader::readPackage);
    } else if (name == QLatin1String("host")) {
        eachMember(place, value, &Reader::readHost);
    } else if (name == QLatin1String("hidden")) {
        m_pc.hidden = paths(place, value);
    } else if (name == QLatin1String("system")) {
        m_pc.system = paths(place, value);
    } else {
        unknown(place);
    }
}

void Reader::readShellFolder(const Place& place, const QJsonValue& value) {
    const auto* const folder =
        std::find_if(std::begin(folderNames), std::end(folderNames),
                     [&place](const FolderName& known) { return place.names.last() == known.name; });
    if (folder == std::end(folderNames)) {
        unknown(place);
    } else {
        m_pc.shellFolders.insert(folder->csidl, text(place, value));
    }
}

void Reader::readVolume(const Place& place, const QJsonValue& value) {
    const QString& drive = place.names.last();
    if (drive.size() != 1 || !DrivePath::parse(drive + QLatin1Char(':'))) {
        report(place, QStringLiteral("a drive letter is expected"));
        return;
    }
    const QString name = text(place, value);
    if (name.startsWith(QLatin1String("\\\\?\\Volume{")) && name.endsWith(QLatin1String("}\\"))) {
        m_pc.volumes.insert(drive.at(0).toUpper(), name);
    } else if (value.isString()) {
        report(place, QStringLiteral("“\\\\?\\Volume{…}\\” is expected"));
    }
}

void Reader::readVariable(const Place& place, const QJsonValue& value) {
    if (value.isString()) {
        m_pc.environment.insert(place.names.last(), value.toString());
    } else {
        text(place, value);
    }
}

void Reader::readPackage(const Place& place, const QJsonValue& value) {
    const QJsonObject object = value.toObject();
    if (!value.isObject()) {
        report(place, QStringLiteral("an object is expected"));
        return;
    }
    AppPackage package;
    for (auto member = object.begin(); member != object.end(); ++member) {
        const Place at = place.member(member.key());
        if (member.key() == QLatin1String("family")) {
            package.family = text(at, *member);
        } else if (member.key() == QLatin1String("fullName")) {
            package.fullName = text(at, *member);
        } else if (member.key() == QLatin1String("applicationIds")) {
            package.applicationIds = texts(at, *member);
        } else {
            unknown(at);
        }
    }
    if (package.family.isEmpty() || package.fullName.isEmpty()) {
        report(place, QStringLiteral("a “family” and a “fullName” are expected"));
    } else {
        m_pc.packages->push_back(std::move(package));
    }
}

void Reader::readHost(const Place& place, const QJsonValue& value) {
    const QString& name = place.names.last();
    if (name == QLatin1String("executable")) {
        m_pc.hostExecutable = text(place, value);
    } else if (name == QLatin1String("version")) {
        readVersion(place, text(place, value));
    } else {
        unknown(place);
    }
}

void Reader::readVersion(const Place& place, const QString& version) {
    const QStringList parts = version.split(QLatin1Char('.'));
    quint64 number = 0;
    bool isGood = parts.size() == 4;
    for (const QString& part : parts) {
        bool isNumber = false;
        number = (number << 16U) | part.toUShort(&isNumber);
        isGood = isGood && isNumber;
    }
    if (isGood) {
        m_pc.hostVersion = number;
    } else if (!version.isEmpty()) {
        report(place, QStringLiteral("four numbers up to 65535 are expected, as in “1.2.3.4”"));
    }
}

void Reader::eachMember(const Place& place, const QJsonValue& value, Item item) {
    if (!value.isObject()) {
        report(place, QStringLiteral("an object is expected"));
        return;
    }
    const QJsonObject object = value.toObject();
    for (auto member = object.begin(); member != object.end(); ++member) {
        (this->*item)(place.member(member.key()), *member);
    }
}

void Reader::eachItem(const Place& place, const QJsonValue& value, Item item) {
    if (!value.isArray()) {
        report(place, QStringLiteral("an array is expected"));
        return;
    }
    const QJsonArray array = value.toArray();
    for (int i = 0; i < array.size(); ++i) {
        (this->*item)(place.item(i), array.at(i));
    }
}

QStringList Reader::texts(const Place& place, const QJsonValue& value) {
    QStringList list;
    if (!value.isArray()) {
        report(place, QStringLiteral("an array is expected"));
        return list;
    }
    const QJsonArray array = value.toArray();
    for (int i = 0; i < array.size(); ++i) {
        const QString item = text(place.item(i), array.at(i));
        if (!item.isEmpty()) {
            list.append(item);
        }
    }
    return list;
}

QStringList Reader::paths(const Place& place, const QJsonValue& value) {
    QStringList list = texts(place, value);
    const auto isBad = [this, &place](const QString& path) {
        const bool bad = !DrivePath::parse(path);
        if (bad) {
            report(place, QStringLiteral("“%1” has no drive letter").arg(path));
        }
        return bad;
    };
    list.erase(std::remove_if(list.begin(), list.end(), isBad), list.end());
    return list;
}

// Empty when it is no text, or none that could be a name or a path.
QString Reader::text(const Place& place, const QJsonValue& value) {
    if (!value.isString()) {
        report(place, QStringLiteral("a string is expected"));
        return {};
    }
    if (hasControls(value.toString())) {
        report(place, QStringLiteral("a control character; are all backslashes doubled?"));
        return {};
    }
    return value.toString();
}

void Reader::report(const Place& place, const QString& message) {
    m_problems.push_back({m_file, lineOfMember(m_json, place.names), place.text + QLatin1String(": ") + message});
}

} // namespace

PcDescription parsePcDescription(const QByteArray& json, const QString& file,
                                 std::vector<Recording::Problem>& problems) {
    return Reader(json, file, problems).read();
}

} // namespace Recorded
