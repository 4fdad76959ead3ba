#include "stores/OculusLibraries.h"

#include "platform/Folders.h"
#include "support/Files.h"
#include "support/Logger.h"
#include "support/Paths.h"
#include "support/RegistryKey.h"
#include "support/Trace.h"

#include <QDir>
#include <QMap>

#include <array>

namespace {

/// The roots ("D:\") of the drives by the names of their volumes.
using VolumeMap = QMap<QString, QString>;

void tellVolume(const QString& drive, const QString& name) {
    Trace::tell([&] { return Trace::Volume{drive, name}; });
}

VolumeMap mountedVolumes() {
    VolumeMap volumes;
    for (char letter = 'A'; letter <= 'Z'; ++letter) {
        const QString root = QString(QLatin1Char(letter)) + QLatin1String(":\\");
        std::array<char16_t, Platform::maxPath> name{};
        if (Platform::volumeName(root, name.data())) {
            name.back() = u'\0';
            volumes.insert(QString::fromUtf16(name.data()), root);
            tellVolume(root, QString::fromUtf16(name.data()));
        }
    }
    return volumes;
}

/// `path` with a drive's root instead of the volume that it begins with; unchanged when it begins with none.
QString withDrive(const QString& path, const VolumeMap& volumes) {
    for (auto volume = volumes.begin(); volume != volumes.end(); ++volume) {
        if (path.startsWith(volume.key(), Qt::CaseInsensitive)) {
            return volume.value() + path.mid(volume.key().size());
        }
    }
    return path;
}

void addLibrary(const QString& registered, const VolumeMap& volumes, QStringList& folders, Logger& logger) {
    const QString software = QStringLiteral("Software");
    const QString manifests = QStringLiteral("Manifests");
    const QString path = withDrive(registered, volumes);
    const QDir library(path);
    const bool hasSoftware = Files::exists(library.filePath(software));
    const bool hasManifests = Files::exists(library.filePath(manifests));
    if (hasSoftware && hasManifests) {
        QString folder = path;
        Files::enter(folder, manifests); // where a file has the name, the library itself is taken
        folders.append(Paths::absoluteFolder(folder));
        return;
    }
    logger.logError("OculusStore: Failed to open. UNC: %ls, path: %ls, %d, %d, %d", qUtf16Printable(registered),
                    qUtf16Printable(path), static_cast<int>(Files::folderExists(path)), static_cast<int>(hasSoftware),
                    static_cast<int>(hasManifests));
}

} // namespace

QStringList oculusLibraryFolders(Logger& logger) {
    const QString root = QStringLiteral("Software\\Oculus VR, LLC\\Oculus\\Libraries");
    QStringList libraries;
    if (!RegistryKey::open(root, Hive::currentUser, View::view64).subKeyNames(libraries)) {
        return {};
    }
    const VolumeMap volumes = mountedVolumes();
    QStringList folders;
    for (const QString& library : qAsConst(libraries)) {
        const QString key = root + QLatin1Char('\\') + library;
        addLibrary(readRegistryString(key, Hive::currentUser, View::view64, QStringLiteral("Path")), volumes, folders,
                   logger);
    }
    return folders;
}
