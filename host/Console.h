#pragma once

#include <QString>
#include <QtGlobal>

namespace Host {

/// Makes arguments, file names and the terminal speak UTF-8, as long as it lives: whatever the system is set to, names
/// of games and folders come in and go out unharmed. One a process, made before anything reads the arguments.
class Console {
public:
    Console();
    ~Console();

    /// To standard output. False when not everything could be written.
    static bool print(const QString& text);

    /// One line to the error stream, after the program's name.
    static void complain(const QString& message);

    /// From now on, warnings and errors in Qt's message log, the plug-in's included, are complaints. The rest of that
    /// log is of no use to who reads the answers.
    static void complainOfQtMessages();

private:
    Q_DISABLE_COPY_MOVE(Console)

    unsigned int m_codePageBefore = 0;
};

} // namespace Host
