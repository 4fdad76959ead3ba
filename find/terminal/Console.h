#pragma once

#include "find/terminal/Complaint.h"
#include "find/terminal/Terminal.h"

#include <QString>
#include <QtGlobal>

#include <memory>
#include <vector>

namespace Find {

enum class Stream { Output, Errors };

/// Makes arguments, file names and the terminal speak UTF-8, as long as it lives: whatever the system is set to, names
/// of games and folders come in and go out unharmed. One a process, made before anything reads the arguments. Its
/// operations are for the main thread.
class Console {
public:
    Console();
    ~Console();

    /// What the stream leads to, and how to write there.
    static Terminal terminal(Stream stream);

    /// To standard output. False when not everything could be written.
    static bool print(const QString& text);

    /// One line to the error stream, after the program's name.
    static void complain(const Complaint& complaint);

    /// From now on complaints are kept, until they are taken.
    static void keepComplaints();

    /// Those that were kept. From now on none are.
    static std::vector<Complaint> takeComplaints();

    /// On the error stream, a line that stays until something else is written. An empty one erases it. Only for a
    /// terminal that rewrites lines, and narrower than that.
    static void showPassingLine(const QString& line);

    /// Whether the terminal is a window of its own that was opened for this program and closes with it: it was started
    /// by a double click.
    static bool isOwnWindow();

    /// The line that the user types, with its end. Empty when no more comes.
    static QString readLine();

    static void waitForKey();

    /// From now on, warnings and errors in Qt's message log, the plug-in's included, are complaints. The rest of that
    /// log is of no use to who reads the answers.
    static void complainOfQtMessages();

private:
    Q_DISABLE_COPY_MOVE(Console)

    struct Before;

    static TerminalFacts facts(Stream stream);
    static bool write(Stream stream, const QString& text);
    static bool writeUtf8(Stream stream, const QString& text);

    std::unique_ptr<Before> m_before; ///< how the terminal was, where it has to be put back
};

} // namespace Find
