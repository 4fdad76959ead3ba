#pragma once

#include "recordings/Pc.h"

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

/// The recorded PC that the benchmarks ask, in a temporary folder: drives C and D, both Start menus. Also takes the
/// log files. One a process.
class BenchPc {
public:
    BenchPc();
    ~BenchPc();

    /// A file with the folders on the way; `path` is Windows' own ("C:\\Games\\x.exe").
    void file(const QString& path, const QByteArray& contents = {});

    /// An entry of the Uninstall registry; the key's name and its values.
    void program(const QString& key, const QString& displayName, const QString& installLocation);

    /// Registers the Steam client.
    void steam(const QString& executable);

    /// Makes the library answer from what was added.
    void use();

private:
    Q_DISABLE_COPY_MOVE(BenchPc)

    QTemporaryDir m_folder;
    Recordings::Pc m_pc;
};
