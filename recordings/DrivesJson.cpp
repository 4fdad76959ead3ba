#include "recordings/DrivesJson.h"

#include "recordings/ShellLink.h"
#include "recordings/Utf8Text.h"
#include "recordings/WindowsNames.h"

namespace Recordings {

namespace {

const QLatin1String folderMember("folder");
const QLatin1String entriesMember("entries");
const QLatin1String fileMember("file");
const QLatin1String textMember("text");
const QLatin1String bytesMember("base64");
const QLatin1String shortcutMember("shortcut");
const QLatin1String targetMember("target");
const QLatin1String hiddenMember("hidden");
const QLatin1String systemMember("system");

/// The target of a shortcut that tells nothing else; empty for any other contents.
QString onlyTarget(const QByteArray& contents) {
    const std::optional<ShellLink> link = parseShellLink(contents);
    return link && renderShellLink(link->localPath) == contents ? link->localPath : QString();
}

void addContents(const QByteArray& contents, JsonValue& file) {
    const std::optional<QString> text = decoded(contents);
    if (text && text->toUtf8() == contents) {
        file.items.push_back(JsonValue::string(textMember, *text));
    } else {
        file.items.push_back(JsonValue::string(bytesMember, QString::fromLatin1(contents.toBase64())));
    }
}

JsonValue truth(QLatin1String name) {
    JsonValue value = JsonValue::string(name, QStringLiteral("true"));
    value.kind = JsonValue::Kind::Boolean;
    return value;
}

JsonValue entriesOf(const Drives& drives, const QString& name, const DrivePath& folder);

JsonValue entryOf(const Drives& drives, const DrivePath& path, const File& file) {
    const QByteArray contents = file.contents.read().value_or(QByteArray());
    if (!file.isFolder() && contents.isEmpty() && !file.isHidden && !file.isSystem) {
        return JsonValue::string({}, file.name);
    }
    JsonValue object = JsonValue::object({});
    const QString target = onlyTarget(contents);
    const QLatin1String kind = file.isFolder() ? folderMember : target.isEmpty() ? fileMember : shortcutMember;
    object.items.push_back(JsonValue::string(kind, file.name));
    if (file.isHidden) {
        object.items.push_back(truth(hiddenMember));
    }
    if (file.isSystem) {
        object.items.push_back(truth(systemMember));
    }
    if (!target.isEmpty()) {
        object.items.push_back(JsonValue::string(targetMember, target));
    } else if (!contents.isEmpty()) {
        addContents(contents, object);
    }
    if (file.isFolder()) {
        object.items.push_back(entriesOf(drives, entriesMember, path));
    }
    return object;
}

JsonValue entriesOf(const Drives& drives, const QString& name, const DrivePath& folder) {
    JsonValue list = JsonValue::array(name);
    for (const QString& below : drives.list(folder)) {
        const DrivePath path = pathIn(folder, below);
        if (const File* const file = drives.find(path)) {
            list.items.push_back(entryOf(drives, path, *file));
        }
    }
    return list;
}

class Reader {
public:
    Reader(const QString& file, Drives& drives, std::vector<Problem>& problems)
        : m_file(file)
        , m_drives(drives)
        , m_problems(problems) {}

    void readEntries(const JsonValue& json, const QString& folder);
    void report(const JsonValue& json, const QString& message);

private:
    void readEntry(const JsonValue& json, const QString& folder);
    void readMembers(const JsonValue& json, File& file);

    const QString& m_file;
    Drives& m_drives;
    std::vector<Problem>& m_problems;
};

void Reader::report(const JsonValue& json, const QString& message) {
    m_problems.push_back({m_file, json.line, drivesMember + QLatin1String(": ") + message});
}

void Reader::readEntries(const JsonValue& json, const QString& folder) {
    if (json.kind != JsonValue::Kind::Array) {
        report(json, QStringLiteral("a list is expected"));
        return;
    }
    for (const JsonValue& item : json.items) {
        readEntry(item, folder);
    }
}

void Reader::readEntry(const JsonValue& json, const QString& folder) {
    const JsonValue* name = json.kind == JsonValue::Kind::String ? &json : nullptr;
    for (const QLatin1String kind : {folderMember, fileMember, shortcutMember}) {
        name = name ? name : json.member(kind);
    }
    if (!name || !DrivePath::canName(name->text) || name->text.isEmpty()) {
        report(json, name ? QStringLiteral("no file of Windows can be named \"%1\"").arg(name->text)
                          : QStringLiteral("the name of a file is expected, or an object with one"));
        return;
    }
    File* const file = m_drives.add(folder, name->text);
    if (!file) {
        report(json, QStringLiteral("for Windows the name \"%1\" is there twice").arg(name->text));
        return;
    }
    readMembers(json, *file);
    if (const JsonValue* const entries = json.member(entriesMember)) { // last, as `file` is then gone
        file->kind = File::Kind::Folder;
        readEntries(*entries, folder + QLatin1Char('/') + foldName(name->text));
    }
}

void Reader::readMembers(const JsonValue& json, File& file) {
    for (const JsonValue& member : json.items) {
        if (member.name == folderMember) {
            file.kind = File::Kind::Folder;
        } else if (member.name == hiddenMember || member.name == systemMember) {
            (member.name == hiddenMember ? file.isHidden : file.isSystem) = member.text == QLatin1String("true");
        } else if (member.name == textMember) {
            file.contents = member.text.toUtf8();
        } else if (member.name == bytesMember) {
            file.contents = QByteArray::fromBase64(member.text.toLatin1());
        } else if (member.name == targetMember) {
            file.contents = renderShellLink(member.text);
        } else if (member.name != fileMember && member.name != shortcutMember && member.name != entriesMember) {
            report(member, QStringLiteral("nothing is known of the name \"%1\"").arg(member.name));
        }
    }
}

} // namespace

JsonValue drivesJson(const Drives& drives) {
    JsonValue object = JsonValue::object(drivesMember);
    const QStringList letters = drives.letters();
    for (const QString& letter : letters) {
        object.items.push_back(entriesOf(drives, letter, rootOf(letter.at(0))));
    }
    return object;
}

Drives readDrivesJson(const JsonValue& json, const QString& file, std::vector<Problem>& problems) {
    Drives drives;
    Reader reader(file, drives, problems);
    for (const JsonValue& drive : json.items) {
        const std::optional<DrivePath> root = DrivePath::parse(drive.name + QLatin1String(":/"));
        if (drive.name.size() != 1 || !root) {
            reader.report(drive, QStringLiteral("\"%1\" is no drive's letter").arg(drive.name));
        } else {
            drives.make(*root, File::Kind::Folder);
            reader.readEntries(drive, foldedPath(*root));
        }
    }
    return drives;
}

} // namespace Recordings
