#include "randompcs/Draft.h"

#include "recordings/RegValues.h"
#include "recordings/ShellLink.h"

namespace {

// Latin, Greek and Cyrillic letters, Chinese and Japanese ones, letters and pictures beyond the basic plane, marks that
// stand alone, and what is special to a format or a search.
constexpr const char* words[] = {"Wal", "Qualle", "KÄFER",  "Möwe",  "straße", "Ødegård", "Ñandú",   "Čáp",   "Ωmega",
                                 "Жук", "競走",   "クラブ", "龍",    "🎮",      "🚀🚀",      "𝄞",       "𐐔𐐯",    "e\u0301",
                                 "II",  "v1.2",   "a'b",    "x & y", "100%",   "[beta]",  "{final}", "(x86)", "semi;",
                                 "#1",  "~tilde", "a,b",    "=",     "+plus",  "!"};

constexpr const char* executableNames[] = {
    "game.exe", "Start.EXE", "bin\\win64\\spiel.exe", "bin/x.exe",      "Löwe.exe", "競走.exe",
    "🎮.exe",    "run.bat",   "tools\\setup.cmd",      "UPPER\\GAME.COM"};

constexpr const char* parents[] = {
    "C:\\Games", "D:\\Spiele", "D:\\Eigene Spiele", "E:\\競走", "C:\\Program Files", "C:\\Program Files (x86)",
    "D:",        "E:\\🎮\\x",
};

using Recordings::RegType::string;
constexpr quint32 expandString = 2;
constexpr quint32 multiString = 7;
constexpr quint32 bigNumber = 11;

Recordings::DrivePath parsed(const QString& path) {
    return *Recordings::DrivePath::parse(path);
}

Recordings::RegistryNode& nodeOf(Recordings::Registry& registry, const DraftKey& key) {
    return registry.make(key.root, key.path.split('\\', Qt::SkipEmptyParts), key.view);
}

/// Another way to store a text, or what a program stored in its place.
Recordings::RegValue oddValue(Dice& dice, const QString& name, const QString& text) {
    const QByteArray stored = Recordings::storedText(text);
    const QByteArray bare = stored.left(stored.size() - 2);
    const Recordings::RegValue values[] = {
        {name, false, string, bare},                                      // without its end
        {name, false, string, bare + '\0'},                               // with half of it
        {name, false, string, stored + stored},                           // with more behind it
        {name, false, string, bare + QByteArray("\0\xD8", 2)},            // and half of a pair
        {name, false, string, {}},                                        // nothing
        {name, false, string, Recordings::storedText({})},                //
        {name, false, string, Recordings::storedText(' ' + text + ' ')},  //
        {name, false, string, Recordings::storedText('"' + text + '"')},  //
        {name, false, string, Recordings::storedText(text.repeated(99))}, // too long for a name
        {name, false, expandString, stored},
        {name, false, expandString, Recordings::storedText("%ProgramFiles%\\x")},
        {name, false, multiString, stored + stored + QByteArray(2, '\0')},
        {name, false, Recordings::RegType::binary, stored},
        {name, false, Recordings::RegType::dword, QByteArray("\x01\x02\x03\x84", 4)},
        {name, false, Recordings::RegType::dword, QByteArray("\x07", 1)},
        {name, false, bigNumber, QByteArray(8, '\x11')},
        {name, false, 0xABCD, "x"},
    };
    return dice.pick(values);
}

} // namespace

Draft::Draft(quint32 seed, const QMap<QChar, QString>& volumes)
    : dice(seed) {
    pc.volumes = volumes;
    for (const QChar letter : volumes.keys()) {
        pc.drives.make(Recordings::rootOf(letter), Recordings::File::Kind::Folder);
    }
}

QString Draft::word() {
    return QString::fromUtf8(dice.pick(words));
}

QString Draft::newName() {
    QStringList parts;
    for (int count = dice.between(1, 3); count > 0; --count) {
        parts.append(word());
    }
    parts.append(QString::number(++m_names));
    return parts.join(' ');
}

QString Draft::inOtherCase(const QString& text) {
    const int way = dice.below(8);
    return way == 0 ? text.toUpper().replace("SS", "ß") : way == 1 ? text.toLower() : text;
}

QString Draft::sloppily(const QString& folder) {
    switch (dice.below(16)) {
    case 0:
        return folder + '\\';
    case 1:
        return folder + '/';
    case 2:
        return QString(folder).replace('\\', '/');
    case 3:
        return QString(folder).replace("\\", "\\\\");
    case 4:
        return folder + "\\.";
    case 5:
        return folder + "\\none\\..";
    case 6:
        return folder + "  ";
    case 7:
        return "\\\\?\\" + folder;
    default:
        return inOtherCase(folder);
    }
}

DraftGame Draft::newGame() {
    return newGameIn(QString::fromUtf8(dice.pick(parents)));
}

DraftGame Draft::newGameIn(const QString& parent) {
    DraftGame game{newName(), {}, newExecutables()};
    game.folder = parent + '\\' + game.name;
    const bool isThere = !dice.oneIn(8);
    if (isThere) {
        folder(game.folder);
    }
    for (const QString& executable : game.executables) {
        if (isThere && !dice.oneIn(5)) {
            file(game.folder + '\\' + inOtherCase(executable));
        }
    }
    return game;
}

QStringList Draft::newExecutables() {
    QStringList names;
    for (int count = dice.between(1, 3); count > 0; --count) {
        names.append(QString::fromUtf8(dice.pick(executableNames)));
    }
    return names;
}

QString Draft::partOf(const QString& name) {
    const QStringList parts = name.split(' ');
    return dice.oneIn(2) ? name : parts.mid(dice.below(parts.size())).join(' ');
}

void Draft::file(const QString& path, const QByteArray& contents) {
    pc.drives.make(parsed(path), Recordings::File::Kind::File).contents = contents;
}

void Draft::folder(const QString& path) {
    pc.drives.make(parsed(path), Recordings::File::Kind::Folder);
}

void Draft::shortcut(const QString& path, const QString& target) {
    file(path, Recordings::renderShellLink(target));
}

void Draft::key(const DraftKey& key) {
    nodeOf(pc.registry, key);
}

void Draft::text(const DraftKey& key, const QString& name, const QString& text) {
    nodeOf(pc.registry, key).apply({name, false, string, Recordings::storedText(text)});
}

void Draft::oddText(const DraftKey& key, const QString& name, const QString& text) {
    if (!dice.oneIn(5)) {
        this->text(key, inOtherCase(name), text);
    } else if (!dice.oneIn(4)) { // or not at all
        nodeOf(pc.registry, key).apply(oddValue(dice, name, text));
    }
}

void Draft::lookFor(const QJsonObject& finder) {
    games.append(QJsonObject{{"name", QString("Game %1").arg(games.size())}, {"finders", QJsonArray{finder}}});
}

QJsonArray Draft::executablesOf(const DraftGame& game) {
    QStringList names = game.executables;
    if (dice.oneIn(6)) {
        names.prepend("none.exe");
    }
    if (dice.oneIn(10)) {
        names = QStringList{"other.exe"};
    }
    for (QString& name : names) {
        name = inOtherCase(name);
    }
    return QJsonArray::fromStringList(names);
}
