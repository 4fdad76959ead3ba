#include "platform/recorded/RecordedPc.h"

#include <algorithm>

namespace Recorded {

namespace {

constexpr qint64 longestFile = qint64{256} * 1024 * 1024;

QString displayed(const QByteArray& path) {
    return QString::fromUtf8(path);
}

} // namespace

RecordedPc::RecordedPc(const QByteArray& folder)
    : m_isActive(true) {
    const auto info = HostFiles::status(folder);
    if (!info || !S_ISDIR(info->st_mode)) {
        report(folder, QStringLiteral("there is no such folder"));
        return;
    }
    readRegistry(folder + "/registry");
    readDescription(folder + "/pc.json");
    m_drives = Drives(folder + "/drives", m_description.hidden, m_description.system);
}

void RecordedPc::readRegistry(const QByteArray& folder) {
    auto entries = HostFiles::list(folder);
    if (!entries) {
        if (HostFiles::status(folder)) {
            report(folder, QStringLiteral("the folder cannot be read"));
        }
        return;
    }
    std::sort(entries->begin(), entries->end(), [](const auto& a, const auto& b) { return a.name < b.name; });
    for (const HostFiles::Entry& entry : *entries) {
        if (!entry.name.endsWith(QLatin1String(".reg"), Qt::CaseInsensitive)) {
            continue;
        }
        const QByteArray path = folder + '/' + entry.name.toUtf8();
        const std::optional<QByteArray> bytes = HostFiles::readFile(path, longestFile);
        if (!bytes) {
            report(path, QStringLiteral("the file cannot be read"));
            continue;
        }
        const Recordings::RegFile file = Recordings::parseRegFile(*bytes, displayed(path));
        m_registry.apply(file.keys);
        m_problems.insert(m_problems.end(), file.problems.begin(), file.problems.end());
    }
}

void RecordedPc::readDescription(const QByteArray& file) {
    if (!HostFiles::status(file)) {
        return;
    }
    const std::optional<QByteArray> json = HostFiles::readFile(file, longestFile);
    if (json) {
        m_description = Recordings::parsePcDescription(*json, displayed(file), m_problems);
    } else {
        report(file, QStringLiteral("the file cannot be read"));
    }
}

void RecordedPc::report(const QByteArray& path, const QString& message) {
    m_problems.push_back({displayed(path), 0, message});
}

} // namespace Recorded
