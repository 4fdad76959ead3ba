#include "platform/recorded/PcPaths.h"

#include "recordings/WindowsPath.h"

namespace Recorded {

QChar currentDrive(const RecordedPc& pc) {
    const std::optional<Recordings::DrivePath> host = Recordings::DrivePath::parse(pc.description().hostExecutable);
    return host ? host->letter.toUpper() : QChar(u'C');
}

QString pathOnDrive(const RecordedPc& pc, const QString& path) {
    constexpr QLatin1Char slash('/');
    const QString text = Recordings::Path(path).text();
    if (Recordings::DrivePath::parse(text)) {
        const bool lacksRoot = !text.startsWith(slash) && text.indexOf(slash) != 2;
        return lacksRoot ? text.left(2) + slash + text.mid(2) : text;
    }
    if (text.startsWith(slash) && !text.startsWith(QLatin1String("//"))) {
        return currentDrive(pc) + QLatin1Char(':') + text;
    }
    return QStringLiteral("C:/<elsewhere>");
}

} // namespace Recorded
