#include "Bare.h"

#include "platform/Clocks.h"
#include "platform/Files.h"
#include "platform/Folders.h"
#include "platform/Listing.h"
#include "platform/Paths.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <array>

namespace Bare {

namespace {

QString qt(const Text& text) {
    return QString::fromUtf16(text.data(), static_cast<int>(text.size()));
}

template <class Each>
void eachEntry(const Text& folder, Each each) {
    Platform::FolderEntry entry;
    const Platform::ListingHandle listing = Platform::firstEntry(qt(folder), entry);
    for (bool isThere = listing != nullptr; isThere; isThere = Platform::nextEntry(listing, entry)) {
        each(entry);
    }
}

} // namespace

bool readKey(const Key& key, const std::vector<Text>& values) {
    Platform::KeyHandle opened;
    const quint32 view = key.view == 0 ? Platform::keyWow64_64Key : Platform::keyWow64_32Key;
    Platform::openKey(key.root, qt(key.path), Platform::keyRead | view, opened);
    for (const Text& value : values) {
        std::array<char, 510> data;
        auto size = static_cast<quint32>(data.size());
        quint32 type = 0;
        Platform::queryValue(opened, qt(value), type, data.data(), size);
    }
    return opened != nullptr;
}

std::size_t readSubKeys(const Key& key, const std::vector<Text>& values) {
    Platform::KeyHandle opened;
    const quint32 view = key.view == 0 ? Platform::keyWow64_64Key : Platform::keyWow64_32Key;
    Platform::openKey(key.root, qt(key.path), Platform::keyRead | view, opened);
    std::vector<Text> names;
    std::array<char16_t, 256> name;
    auto length = static_cast<quint32>(name.size());
    for (quint32 i = 0; opened && Platform::enumKey(opened, i, name.data(), length) == Platform::errorSuccess; ++i) {
        names.emplace_back(name.data(), length);
        length = static_cast<quint32>(name.size());
    }
    for (const Text& subKey : names) {
        readKey({key.root, key.path + u'\\' + subKey, key.view}, values);
    }
    return names.size();
}

std::size_t walk(const Text& folder) {
    std::size_t files = 0;
    std::vector<Text> folders;
    eachEntry(folder, [&files, &folders](const Platform::FolderEntry& entry) {
        if ((entry.attributes & Platform::attributeFolder) == 0) {
            ++files;
        } else if (!entry.name.startsWith(QLatin1Char('.'))) {
            folders.push_back(entry.name.toStdU16String());
        }
    });
    for (const Text& name : folders) {
        files += walk(folder + u'\\' + name);
    }
    return files;
}

std::vector<Text> list(const Text& folder) {
    std::vector<Text> names;
    eachEntry(folder, [&names](const Platform::FolderEntry& entry) {
        if ((entry.attributes & Platform::attributeFolder) == 0) {
            names.push_back(entry.name.toStdU16String());
        }
    });
    return names;
}

std::size_t read(const Text& path) {
    QFile file(Platform::pathOnPc(qt(path)));
    return file.open(QIODevice::ReadOnly) ? static_cast<std::size_t>(file.readAll().size()) : 0;
}

bool exists(const Text& path) {
    return QFile::exists(Platform::pathOnPc(qt(path)));
}

Text shellFolder(int csidl) {
    std::array<char16_t, Platform::maxPath> path{};
    Platform::folderPath(csidl, path.data());
    return path.data();
}

void volumes() {
    for (char16_t letter = u'A'; letter <= u'Z'; ++letter) {
        std::array<char16_t, Platform::maxPath> name{};
        Platform::volumeName(QChar(letter) + QStringLiteral(":\\"), name.data());
    }
}

void writeLog(const std::string& name, const std::vector<std::string>& pieces) {
    const Text wideName(name.begin(), name.end());
    readKey({Platform::RootKey::CurrentUser, u"Software\\Veltrane\\" + wideName, 1}, {});
    readKey({Platform::RootKey::LocalMachine, u"Software\\Veltrane\\" + wideName, 1}, {});
    std::array<char16_t, Platform::maxPath> data{};
    Platform::ownFolderPath(Platform::csidlLocalAppData, data.data());
    const QString folder = QDir(QString::fromUtf16(data.data())).filePath(QStringLiteral("Veltrane/Logs"));
    Platform::createFolder(folder);
    QFile file(QDir(folder).filePath(QString::fromStdString(name) + QLatin1String(".log")));
    Platform::fileSize(file.fileName());
    file.open(QIODevice::Append | QIODevice::Unbuffered);
    for (const std::string& piece : pieces) {
        Platform::localTime();
        file.write(piece.data(), static_cast<qint64>(piece.size()));
    }
}

} // namespace Bare
