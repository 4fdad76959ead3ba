#include "find/terminal/Complaint.h"

namespace Find {

QString Complaint::text() const {
    QString place = file;
    if (line > 0) {
        place += QStringLiteral(":%1:%2").arg(line).arg(column);
    }
    return place.isEmpty() ? message : place + QLatin1String(": ") + message;
}

} // namespace Find
