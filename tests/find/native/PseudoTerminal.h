#pragma once

#include <QByteArray>
#include <QString>
#include <QtGlobal>

#include <thread>

/// A terminal whose screen is a text: what programs write to it is kept as they wrote it.
class PseudoTerminal {
public:
    /// Whether the system has any: a container without /dev/pts does not.
    static bool areThere();

    explicit PseudoTerminal(unsigned short columns);
    ~PseudoTerminal();

    /// The file that a program's output goes to.
    QString name() const { return m_name; }

    /// All that was written. To be called when the programs have ended; nothing can be written afterwards.
    QString text();

private:
    Q_DISABLE_COPY_MOVE(PseudoTerminal)

    int m_master = -1;
    int m_slave = -1;
    QString m_name;
    QByteArray m_bytes;
    std::thread m_reader; // so that a program never waits for its text to be read
};
