#include "common/recorded/RecordingFolder.h"

#include <filesystem>
#include <fstream>

namespace {

std::filesystem::path pathOf(const QByteArray& path) {
    return path.toStdString();
}

} // namespace

RecordingFolder::RecordingFolder() {
    m_folder.setAutoRemove(false);
    folder("drives");
}

RecordingFolder::~RecordingFolder() {
    qunsetenv(Recordings::environmentVariable);
    // Qt could not remove a file whose name is no text.
    std::error_code ignored;
    std::filesystem::remove_all(pathOf(path({})), ignored);
}

void RecordingFolder::file(const QByteArray& below, const QByteArray& contents) {
    write(below, contents);
    Recorded::forgetPc();
}

void RecordingFolder::write(const QByteArray& below, const QByteArray& contents) {
    std::filesystem::create_directories(pathOf(path(below)).parent_path());
    std::ofstream stream(pathOf(path(below)), std::ios::binary);
    stream.write(contents.constData(), contents.size());
}

void RecordingFolder::folder(const QByteArray& below) {
    std::filesystem::create_directories(pathOf(path(below)));
    Recorded::forgetPc();
}

void RecordingFolder::link(const QByteArray& below, const QByteArray& target) {
    std::filesystem::create_directories(pathOf(path(below)).parent_path());
    std::filesystem::create_symlink(pathOf(target), pathOf(path(below)));
    Recorded::forgetPc();
}

void RecordingFolder::registry(const QByteArray& lines) {
    m_registry += lines;
    write("registry/test.reg", "Windows Registry Editor Version 5.00\r\n\r\n" + m_registry);
}

std::shared_ptr<const Recorded::RecordedPc> RecordingFolder::choose() {
    qputenv(Recordings::environmentVariable, path({}));
    Recorded::forgetPc();
    return Recorded::currentPc();
}

QByteArray RecordingFolder::path(const QByteArray& below) const {
    const QByteArray folder = m_folder.path().toUtf8();
    return below.isEmpty() ? folder : folder + '/' + below;
}
