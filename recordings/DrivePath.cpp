#include "recordings/DrivePath.h"

#include "recordings/WindowsNames.h"

#include <algorithm>

namespace Recordings {

namespace {

constexpr QLatin1Char slash('/');
constexpr QLatin1Char dot('.');

bool isLetter(QChar c) {
    const char16_t unit = c.unicode();
    return (unit >= u'A' && unit <= u'Z') || (unit >= u'a' && unit <= u'z');
}

bool isForbidden(QChar c) {
    return c.unicode() < 0x20 || QStringLiteral("<>:\"/\\|?*").contains(c);
}

bool isDevice(const QString& name) {
    const QString folded = foldName(name);
    if (folded.size() == 4 && (folded.startsWith(QLatin1String("COM")) || folded.startsWith(QLatin1String("LPT")))) {
        return folded.at(3) >= QLatin1Char('1') && folded.at(3) <= QLatin1Char('9');
    }
    return folded == QLatin1String("CON") || folded == QLatin1String("PRN") || folded == QLatin1String("AUX") ||
           folded == QLatin1String("NUL");
}

// A name that a separator follows loses a single dot at its end, the last name of a path all dots and spaces.
QString trimmedName(QString name, bool isLast) {
    if (!isLast) {
        return name.endsWith(dot) && !name.endsWith(QLatin1String("..")) ? name.left(name.size() - 1) : name;
    }
    while (name.endsWith(dot) || name.endsWith(QLatin1Char(' '))) {
        name.chop(1);
    }
    return name;
}

} // namespace

QString withSlashes(const QString& path) {
    QString result = path.startsWith(QLatin1String("\\\\?\\")) ? path.mid(4) : path;
    return result.replace(QLatin1Char('\\'), slash);
}

std::optional<DrivePath> DrivePath::parse(const QString& path) {
    const QString text = withSlashes(path);
    if (text.size() < 2 || !isLetter(text.at(0)) || text.at(1) != QLatin1Char(':')) {
        return std::nullopt;
    }
    DrivePath result;
    result.letter = text.at(0);
    // Qt puts a space at the end of a path back after Windows has removed it, so that such a path leads nowhere.
    result.isValid = !text.endsWith(QLatin1Char(' '));
    result.isFolderOnly = text.endsWith(slash);
    const QStringList parts = text.mid(2).split(slash);
    for (int i = 0; i < parts.size(); ++i) {
        const QString& part = parts.at(i);
        if (part == QLatin1String("..")) {
            if (!result.names.isEmpty()) {
                result.names.removeLast();
            }
            continue;
        }
        const QString name = trimmedName(part, i + 1 == parts.size());
        if (!name.isEmpty()) {
            result.names.append(name);
        }
    }
    // A name with a dot or a space left at its end is one that no program of Windows makes.
    result.isValid = result.isValid && std::all_of(result.names.begin(), result.names.end(), canName);
    return result;
}

bool DrivePath::canName(const QString& name) {
    return trimmedName(name, true) == name && !isDevice(name) && std::none_of(name.begin(), name.end(), isForbidden);
}

QString DrivePath::text() const {
    return letter + QLatin1String(":/") + names.join(slash);
}

} // namespace Recordings
