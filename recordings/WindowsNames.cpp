#include "recordings/WindowsNames.h"

namespace Recordings {

namespace {

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

} // namespace Recordings
