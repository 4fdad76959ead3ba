#include "recordings/WindowsNames.h"

#include <QStringList>

namespace Recordings {

namespace {

/// Name, version, architecture, resource and the publisher's hash; the resource is empty as a rule.
constexpr int partsOfFullName = 5;

constexpr char16_t finalSigma = 0x03C2;
constexpr char16_t capitalSigma = 0x03A3;

// Windows leaves a letter alone whose capital belongs to another small letter (dotless i, long s, micro sign), but
// for the final sigma.
char16_t upperUnit(char16_t unit) {
    if (unit < 0x80) {
        return unit >= u'a' && unit <= u'z' ? static_cast<char16_t>(unit - u'a' + u'A') : unit;
    }
    if (unit == finalSigma) {
        return capitalSigma;
    }
    const uint upper = QChar::toUpper(uint{unit});
    return QChar::toLower(upper) == unit ? static_cast<char16_t>(upper) : unit;
}

} // namespace

QString foldName(const QString& name) {
    QString folded = name;
    for (int i = 0; i < name.size(); ++i) {
        const char16_t upper = upperUnit(name.at(i).unicode());
        if (upper != name.at(i).unicode()) {
            folded[i] = QChar(upper);
        }
    }
    return folded;
}

QString packagesKey() {
    return QStringLiteral(R"(Software\Classes\Local Settings\Software\Microsoft\Windows\CurrentVersion)"
                          R"(\AppModel\Repository\Packages)");
}

QString familyOfPackage(const QString& fullName) {
    const QStringList parts = fullName.split(QLatin1Char('_'));
    return parts.size() == partsOfFullName && !parts.first().isEmpty() && !parts.last().isEmpty()
               ? parts.first() + QLatin1Char('_') + parts.last()
               : QString();
}

} // namespace Recordings
