#include "recordings/Recording.h"

#include "recordings/DriveFolders.h"
#include "recordings/HostFiles.h"
#include "recordings/PcFile.h"
#include "recordings/PcJson.h"
#include "recordings/PcPage.h"
#include "recordings/RegFileWriter.h"

namespace Recordings {

namespace {

constexpr const char* registryFolder = "/registry";
constexpr const char* drivesFolder = "/drives";
constexpr const char* descriptionFile = "/pc.json";

bool isRecordingFolder(const QByteArray& folder) {
    return HostFiles::isFolder(folder + registryFolder) || HostFiles::isFolder(folder + drivesFolder) ||
           HostFiles::isFile(folder + descriptionFile);
}

class FolderReader {
public:
    explicit FolderReader(Recording& recording)
        : m_recording(recording) {}

    void read(const QByteArray& folder);

private:
    void readRegistry(const QByteArray& folder);
    void readDescription(const QByteArray& file);
    void report(const QByteArray& path, int line, const QString& message);

    Recording& m_recording;
};

void FolderReader::read(const QByteArray& folder) {
    if (HostFiles::isFolder(folder + registryFolder)) {
        readRegistry(folder + registryFolder);
    }
    // The drives first, as the description speaks of files; their problems last.
    std::vector<Problem> problems;
    if (HostFiles::isFolder(folder + drivesFolder)) {
        m_recording.pc.drives = readDriveFolders(folder + drivesFolder, problems);
    }
    if (HostFiles::isFile(folder + descriptionFile) || HostFiles::isFolder(folder + descriptionFile)) {
        readDescription(folder + descriptionFile);
    }
    m_recording.problems.insert(m_recording.problems.end(), problems.begin(), problems.end());
}

void FolderReader::readRegistry(const QByteArray& folder) {
    const auto entries = HostFiles::list(folder);
    if (!entries) {
        report(folder, 0, QStringLiteral("the folder cannot be read"));
        return;
    }
    for (const HostFiles::Entry& entry : *entries) {
        if (!entry.name.toLower().endsWith(".reg")) {
            continue;
        }
        const QByteArray path = folder + '/' + entry.name;
        const std::optional<QByteArray> bytes = HostFiles::read(path);
        if (!bytes) {
            report(path, 0, QStringLiteral("the file cannot be read"));
            continue;
        }
        const RegFile file = parseRegFile(*bytes, QString::fromUtf8(path));
        m_recording.pc.registry.apply(file.keys);
        m_recording.problems.insert(m_recording.problems.end(), file.problems.begin(), file.problems.end());
    }
}

void FolderReader::readDescription(const QByteArray& file) {
    const std::optional<QByteArray> bytes = HostFiles::read(file);
    JsonFault fault;
    if (!bytes) {
        report(file, 0, QStringLiteral("the file cannot be read"));
    } else if (const std::optional<JsonValue> json = parseJson(*bytes, fault)) {
        readPcJson(*json, QString::fromUtf8(file), m_recording.pc, m_recording.problems);
    } else {
        report(file, fault.line, fault.message);
    }
}

void FolderReader::report(const QByteArray& path, int line, const QString& message) {
    m_recording.problems.push_back({QString::fromUtf8(path), line, message});
}

QString noRecording() {
    return QStringLiteral("no recorded PC here");
}

Recording readFile(const QByteArray& path) {
    Recording recording;
    const std::optional<QByteArray> contents = HostFiles::read(path);
    if (contents) {
        return parseRecording(*contents, QString::fromUtf8(path));
    }
    recording.fault = QStringLiteral("the file cannot be read");
    return recording;
}

} // namespace

Recording parseRecording(const QByteArray& contents, const QString& name) {
    Recording recording;
    const std::optional<QByteArray> text = isPage(contents) ? pcInPage(contents, recording.fault) : contents;
    if (!text) {
        return recording;
    }
    JsonFault fault;
    const std::optional<JsonValue> json = parseJson(*text, fault);
    if (!json && text->trimmed().startsWith('{')) {
        recording.fault = fault.message;
        recording.faultLine = fault.line;
    } else if (!json || !isPcFile(*json)) {
        recording.fault = noRecording();
    } else {
        recording.pc = readPcFile(*json, name, recording.fault, recording.problems);
    }
    return recording;
}

Recording readRecording(const QByteArray& path) {
    if (HostFiles::isFile(path)) {
        return readFile(path);
    }
    Recording recording;
    if (isRecordingFolder(path)) {
        FolderReader(recording).read(path);
    } else if (HostFiles::isFolder(path)) {
        recording.fault = noRecording();
    } else {
        recording.fault = HostFiles::exists(path) ? QStringLiteral("a pipe or a device, not a file or a folder")
                                                  : QStringLiteral("no such file or folder");
    }
    return recording;
}

std::vector<QByteArray> recordingsIn(const QByteArray& folder) {
    std::vector<QByteArray> names;
    for (const HostFiles::Entry& entry : HostFiles::list(folder).value_or(std::vector<HostFiles::Entry>())) {
        const QByteArray path = folder + '/' + entry.name;
        const QByteArray name = entry.name.toLower();
        const bool isFile = (name.endsWith(".json") || name.endsWith(".html")) && HostFiles::isFile(path);
        if (isRecordingFolder(path) || (isFile && readRecording(path).fault.isEmpty())) {
            names.push_back(entry.name);
        }
    }
    return names;
}

QByteArray writeRecordingFolder(const Pc& pc, const QByteArray& folder, QStringList& leftOut) {
    const QByteArray registry = QByteArray(registryFolder) + "/recorded.reg";
    if (!HostFiles::write(folder + registry, renderRegFile(pc.registry, leftOut))) {
        return folder + registry;
    }
    if (!HostFiles::write(folder + descriptionFile, renderJson(pcJson(pc)))) {
        return folder + descriptionFile;
    }
    return HostFiles::makeFolder(folder + drivesFolder) ? writeDriveFolders(pc.drives, folder + drivesFolder)
                                                        : folder + drivesFolder;
}

} // namespace Recordings
