#pragma once

#include "find/explain/TraceReader.h"
#include "find/record/NeutralNames.h"

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace Host {

struct RecordedPackage {
    QString family;
    QString fullName;
    QString applicationId; ///< empty when it has none
};

/// What a trace tells of a PC that is neither in the registry nor a file: what a recording has in pc.json.
class PcFacts {
public:
    /// Takes what the event tells of the PC; nothing of any other event.
    void add(const TraceEvent& event);

    /// The text of pc.json, with neutral names in it.
    QByteArray render(const NeutralNames& names) const;

    int packageCount() const;

    int userLocationCount() const { return m_userLocations.size(); }

private:
    void addShellFolder(const Trace::ShellFolder& event);
    void addUserLocation(const Trace::UserLocation& event);
    void addPackage(const Trace::Package& event);
    void addAttributes(const Trace::Walk& event);

    QMap<QString, QString> m_shellFolders;
    QMap<QString, QString> m_volumes;
    QMap<QString, QString> m_environment;
    QMap<QString, QString> m_userLocations;
    std::optional<std::vector<RecordedPackage>> m_packages; ///< empty when the system knows no packages
    QStringList m_hidden;
    QStringList m_system;
};

} // namespace Host
