#include "find/terminal/Complaint.h"

#include <QDir>

namespace Find {

QString Complaint::text() const {
    QString place = QDir::toNativeSeparators(file);
    for (const int number : {line, column}) {
        place += number > 0 ? QLatin1Char(':') + QString::number(number) : QString();
    }
    return place.isEmpty() ? message : place + QLatin1String(": ") + message;
}

} // namespace Find
