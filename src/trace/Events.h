#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QtGlobal>

#include <optional>
#include <variant>

/// All that a trace can tell (docs/trace.md): one struct an event, for the library, which tells them, and for whoever
/// reads a trace. What their fields are called in a trace stands in Events.cpp, once for both.
namespace Trace {

/// The environment variable that names the file of the trace.
constexpr const char* environmentVariable = "LURULUDRI_TRACE";

/// The property of the host's QCoreApplication that holds a QIODevice for the trace to go to.
constexpr const char* deviceProperty = "luruludriTrace";

/// What the lists of what is installed are called, for those who make them and those who look for them in a trace.
namespace IndexName {
constexpr const char* uninstall = "Uninstall";
constexpr const char* gamesExplorer = "GamesExplorer";
constexpr const char* startMenu = "StartMenu";
constexpr const char* steamLibraries = "SteamLibraries";
constexpr const char* oculusLibraries = "OculusLibraries";
constexpr const char* epicManifests = "EpicManifests";
} // namespace IndexName

/// What an event is called in a trace: by the field "event", and by "what" where one word serves several.
struct EventName {
    const char* event;
    const char* what = nullptr;
};

/// What every trace in a file begins with.
struct Format {
    static constexpr EventName inTrace{"trace"};
    QString library = QStringLiteral("Luruludri");
    int version = 1;
};

struct KeyPlace {
    QString root; ///< "HKEY_LOCAL_MACHINE"
    int view = 0; ///< 64 or 32
    QString key;
};

struct Key {
    static constexpr EventName inTrace{"key"};
    KeyPlace place;
    quint32 error = 0; ///< Windows' code
};

struct Value {
    static constexpr EventName inTrace{"value"};
    KeyPlace place;
    QString name; ///< empty for the default value
    quint32 error = 0;
    quint32 type = 0; ///< Windows' number; told, as the data is, only without an error
    QByteArray data;  ///< as the registry stores it
};

struct SubKeys {
    static constexpr EventName inTrace{"subkeys"};
    KeyPlace place;
    QStringList names;
};

struct Exists {
    static constexpr EventName inTrace{"exists"};
    QString path;
    bool found = false;
};

struct List {
    static constexpr EventName inTrace{"list"};
    QString path;
    QString pattern;
    QStringList names;
};

struct Walk {
    static constexpr EventName inTrace{"walk"};
    QString path;
    QStringList folders;
    QStringList files;
    QStringList hidden; ///< those of both that have the attribute
    QStringList system;
};

struct Read {
    static constexpr EventName inTrace{"read"};
    QString path;
    int bytes = 0;
};

struct Shortcut {
    static constexpr EventName inTrace{"shortcut"};
    QString path;
    QString target; ///< empty when it leads nowhere
};

struct ShellFolder {
    static constexpr EventName inTrace{"shellFolder"};
    int csidl = 0;
    QString path; ///< empty when there is none
};

struct Volume {
    static constexpr EventName inTrace{"volume"};
    QString drive; ///< "C:\"
    QString name;
};

struct Environment {
    static constexpr EventName inTrace{"environment"};
    QString name;
    std::optional<QString> value; ///< none when there is no such variable
};

struct Package {
    static constexpr EventName inTrace{"package"};
    QString family;
    bool supported = false; ///< whether this Windows knows packages
    QString fullName;       ///< empty when it is not installed
    QStringList applicationIds;
};

struct UserLocation {
    static constexpr EventName inTrace{"userLocation"};
    QString key;
    QString path; ///< empty when the user has chosen none
};

struct Entry {
    static constexpr EventName inTrace{"entry"};
    QString name; ///< by which finders look it up
    QString folder;
};

struct Log {
    static constexpr EventName inTrace{"log"};
    QString logger;
    QString level; ///< "A", "E" or "W"
    QString text;
};

struct Note {
    static constexpr EventName inTrace{"note"};
    QString text;
};

struct FinderBegin {
    static constexpr EventName inTrace{"begin", "finder"};
    int number = 0; ///< which member of a multi finder, counted from 1
};

struct FinderEnd {
    static constexpr EventName inTrace{"end", "finder"};
    int number = 0;
    bool found = false;
};

struct IndexBegin {
    static constexpr EventName inTrace{"begin", "index"};
    QString name;
};

struct IndexEnd {
    static constexpr EventName inTrace{"end", "index"};
    QString name;
    int entries = 0;
};

using Event =
    std::variant<Format, Key, Value, SubKeys, Exists, List, Walk, Read, Shortcut, ShellFolder, Volume, Environment,
                 Package, UserLocation, Entry, Log, Note, FinderBegin, FinderEnd, IndexBegin, IndexEnd>;

/// The event as a trace has it: one line, its end included.
QByteArray toLine(const Event& event);

/// The event that a line tells; none when it tells no known one. A field that is missing, or of another type, is as if
/// empty.
std::optional<Event> fromLine(const QByteArray& line);

} // namespace Trace
