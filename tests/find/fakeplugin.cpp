// A plug-in that searches nothing. It writes down what it is asked, in the file that LURULUDRI_FAKE_LOG names, and a
// finder finds when what it searches for contains "installed". LURULUDRI_FAKE_MODE makes it misbehave.
//
// Its answers are literals on purpose: they lie in this library, so that a host that keeps one too long crashes.

#include "core/GameLocation.h"
#include "core/IGameFinder.h"
#include "core/IGameFinderFactory.h"

#include <QFile>
#include <QString>
#include <QStringList>
#include <QThread>

#include <memory>
#include <new>
#include <vector>

extern "C" Q_DECL_EXPORT IGameFinderFactory* Create();

namespace {

using Finder = std::unique_ptr<IGameFinder>;

void note(const QString& line) {
    QFile log(qEnvironmentVariable("LURULUDRI_FAKE_LOG"));
    if (log.open(QIODevice::WriteOnly | QIODevice::Append)) {
        log.write(line.toUtf8() + '\n');
    }
}

bool isMode(const char* mode) {
    return qEnvironmentVariable("LURULUDRI_FAKE_MODE") == QLatin1String(mode);
}

/// Notes when the library leaves the process.
struct UnloadNote {
    ~UnloadNote() { note(QStringLiteral("unloaded")); }
} unloadNote;

class FakeFinder final : public IGameFinder {
public:
    FakeFinder(const QString& call, bool finds, std::vector<Finder> members = {})
        : m_name(call)
        , m_finds(finds)
        , m_members(std::move(members)) {
        note(call);
    }

    ~FakeFinder() override { note(QStringLiteral("~") + m_name.section(QLatin1Char('('), 0, 0)); }

    bool find(GameLocation& location) override {
        if (isMode("endless")) {
            note(QStringLiteral("searching"));
            QThread::sleep(600); // until the test ends it
        }
        if (isMode("slow") || isMode("slow and loud")) {
            QThread::msleep(50);
        }
        if (isMode("slow and loud")) {
            qWarning("searching %s", qUtf8Printable(m_name));
        }
        location.installFolder = QStringLiteral("rest of a search in vain");
        for (const Finder& member : m_members) {
            if (member->find(location)) {
                return true;
            }
        }
        if (m_finds) {
            location.installFolder = QStringLiteral("D:\\Spiele\\Käfer");
            location.executablePath = QStringLiteral("D:\\Spiele\\Käfer\\kaefer.exe");
            location.launchCommand = QStringLiteral("steam://launch/42/VR");
            location.executablePaths = QStringList{location.executablePath, QStringLiteral("D:\\Spiele\\b.exe")};
        }
        return m_finds;
    }

    QString userLocation() override {
        const bool isForgetful = isMode("no locations");
        return m_hasLocation != isForgetful ? QStringLiteral("D:\\Spiele\\Gewählt") : QStringLiteral("");
    }

    void setUserLocation(const QString& path) override {
        note(QStringLiteral("setUserLocation(%1)").arg(path));
        m_hasLocation = !path.isEmpty();
    }

private:
    QString m_name;
    bool m_finds;
    bool m_hasLocation = false;
    std::vector<Finder> m_members;
};

Finder makeFinder(const char* operation, const QStringList& arguments) {
    const QString call =
        QLatin1String(operation) + QLatin1Char('(') + arguments.join(QLatin1Char('|')) + QLatin1Char(')');
    if (isMode("no finders")) {
        return nullptr;
    }
    return std::make_unique<FakeFinder>(call, arguments.first().contains(QLatin1String("installed")));
}

QString joined(const QStringList& executables) {
    return executables.join(QLatin1Char(','));
}

class FakeFactory final : public IGameFinderFactory {
public:
    FakeFactory() { note(QStringLiteral("Create")); }

    ~FakeFactory() override { note(QStringLiteral("~Create")); }

    Finder createUninstallFinder(const QString& displayName, const QStringList& executables, int matchMode) override {
        return makeFinder("uninstall", {displayName, joined(executables), QString::number(matchMode)});
    }

    Finder createGameForWindowFinder(const QString& title, const QStringList& executables) override {
        return makeFinder("gameForWindow", {title, joined(executables)});
    }

    Finder createSteamFinder(const QString& appId, const QString& installFolderName,
                             const QStringList& executables) override {
        return makeFinder("steam", {appId, installFolderName, joined(executables)});
    }

    Finder createMultiFinder(Finder&& finder1, Finder&& finder2, Finder&& finder3, Finder&& finder4, Finder&& finder5,
                             Finder&& finder6, Finder&& finder7, Finder&& finder8, Finder&& finder9, Finder&& finder10,
                             Finder&& finder11) override {
        std::vector<Finder> members;
        QString places;
        for (Finder* finder : {&finder1, &finder2, &finder3, &finder4, &finder5, &finder6, &finder7, &finder8, &finder9,
                               &finder10, &finder11}) {
            places += QLatin1Char(*finder ? '1' : '0');
            if (*finder) {
                members.push_back(std::move(*finder));
            }
        }
        if (isMode("no multi finder")) {
            return nullptr;
        }
        return std::make_unique<FakeFinder>(QStringLiteral("multi(%1)").arg(places), false, std::move(members));
    }

    Finder createStartMenuFinder(const QString& name, const QStringList& executables, int matchMode) override {
        return makeFinder("startMenu", {name, joined(executables), QString::number(matchMode)});
    }

    Finder createFolderFinder(const QString& folder, const QStringList& executables) override {
        return makeFinder("folder", {folder, joined(executables)});
    }

    Finder createOculusStoreFinder(const QString& appId, const QStringList& executables,
                                   const QString& softwareFolder) override {
        return makeFinder("oculusStore", {appId, joined(executables), softwareFolder});
    }

    Finder createEpicStoreFinder(const QString& name, const QStringList& executables, int matchMode) override {
        return makeFinder("epicStore", {name, joined(executables), QString::number(matchMode)});
    }

    Finder createUniversalAppFinder(const QString& packageFamily) override {
        return makeFinder("universalApp", {packageFamily});
    }

    Finder createUserProvidedLocationFinder(const QString& key, const QStringList& executables) override {
        return makeFinder("userProvidedLocation", {key, joined(executables)});
    }

    QStringList oculusLibraryFolders() override {
        return isMode("no runtimes") ? QStringList()
                                     : QStringList{QStringLiteral("slot 11 first"), QStringLiteral("slot 11 second")};
    }

    QString oculusRuntimeFolder() override { return answer(QStringLiteral("slot 12")); }

    QString steamExecutablePath() override { return answer(QStringLiteral("slot 13")); }

    QString steamConfigFolder() override { return answer(QStringLiteral("slot 14")); }

    QString varjoRuntimeFolder() override { return answer(QStringLiteral("slot 15")); }

    QString openXrActiveRuntime() override { return answer(QStringLiteral("slot 16")); }

    QString lumavexStandaloneLocation() override { return answer(QStringLiteral("slot 17")); }

    QString steamVrFolder() override { return answer(QStringLiteral("slot 18")); }

private:
    static QString answer(const QString& text) { return isMode("no runtimes") ? QString() : text; }
};

} // namespace

IGameFinderFactory* Create() {
    if (isMode("no memory")) {
        throw std::bad_alloc(); // as the real one may
    }
    return isMode("no factory") ? nullptr : std::make_unique<FakeFactory>().release();
}
