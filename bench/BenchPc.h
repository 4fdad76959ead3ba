#pragma once

#include "platform/Registry.h"

#include <QByteArray>
#include <QString>

#include <memory>
#include <utility>
#include <vector>

/// The PC that the benchmarks ask: natively a recorded one in a temporary folder, on Windows the very PC, which must be
/// one to throw away, as nothing is taken off it again. One a process.
class BenchPc {
public:
    using Values = std::vector<std::pair<QString, QString>>;

    /// Ends the process on a PC that nobody has said may be written to.
    BenchPc();
    ~BenchPc();

    /// A registry key with values of type REG_SZ.
    void key(Platform::RootKey root, const QString& path, quint32 view, const Values& values);

    /// A file with the folders on the way; `path` is Windows' own ("C:\\Games\\x.exe").
    void file(const QString& path, const QByteArray& contents = {});

    /// The folder that the user chose for the game `key`.
    void userChoice(const QString& key, const QString& folder);

    /// Where the shell has the folder with this CSIDL value.
    QString shellFolder(int csidl) const;

    /// Makes the library answer from what was added.
    void use();

private:
    Q_DISABLE_COPY_MOVE(BenchPc)

    class World;
    std::unique_ptr<World> m_world;
};
