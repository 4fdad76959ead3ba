#include "core/AbstractFinder.h"

namespace Finders {

AbstractFinder::AbstractFinder(Logger* logger)
    : m_logger(logger) {}

QString AbstractFinder::userLocation() {
    // Not a QStringLiteral: its text would lie in this library and be gone when the host unloads it.
    return QString(QLatin1String(""));
}

void AbstractFinder::setUserLocation(const QString& path) {
    Q_UNUSED(path)
}

} // namespace Finders
