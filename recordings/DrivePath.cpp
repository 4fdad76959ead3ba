#include "recordings/DrivePath.h"

#include "recordings/WindowsNames.h"
#include "recordings/WindowsPath.h"

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

} // namespace

std::optional<DrivePath> DrivePath::parse(const QString& path) {
    QString text = Path(path).text();
    if (text.startsWith(QLatin1String("//./"))) {
        text.remove(0, 4);
    }
    if (text.size() < 2 || !isLetter(text.at(0)) || text.at(1) != QLatin1Char(':')) {
        return std::nullopt;
    }
    DrivePath result;
    result.letter = text.at(0);
    result.isFolderOnly = text.endsWith(slash);
    result.names = Path::workedOut(text.mid(2));
    // No file has a name with a dot or a space at its end, which no program of Windows makes. At the end of a whole
    // path Qt puts a space back that Windows has removed.
    result.isValid = !text.endsWith(QLatin1Char(' ')) && std::all_of(result.names.begin(), result.names.end(), canName);
    return result;
}

bool DrivePath::canName(const QString& name) {
    return !name.endsWith(dot) && !name.endsWith(QLatin1Char(' ')) && !isDevice(name) &&
           std::none_of(name.begin(), name.end(), isForbidden);
}

QString DrivePath::text() const {
    return letter + QLatin1String(":/") + names.join(slash);
}

} // namespace Recordings
