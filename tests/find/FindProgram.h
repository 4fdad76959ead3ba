#pragma once

#include "find/terminal/Console.h"

#include <QByteArray>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <functional>

class QProcess;

/// What one run of luruludri-find came to. Line ends are "\n" on every system.
struct FindRun {
    int exitStatus = -1; ///< -1 when the program crashed or did not start
    QString output;
    QString errors;
};

/// Runs luruludri-find as a user does, with the fake plug-in, in a folder of its own whose name is not ASCII. The
/// program's environment is the test's, without a recorded PC, and off Windows logs and settings go to that folder.
class FindProgram {
public:
    FindProgram();

    /// Makes a file in the folder, and the folders on the way; its full path, as the system writes it.
    QString file(const QString& name, const QByteArray& content) const;

    QString folder() const { return m_folder.path(); }

    void setVariable(const QString& name, const QString& value) { m_environment.insert(name, value); }

    void setFakeMode(const char* mode);

    /// Runs with the fake plug-in.
    FindRun run(const QStringList& arguments) const;

    /// Runs with the fake plug-in, in its mode "endless", until it searches; `end` then ends the run from outside.
    void runUntilItSearches(const QStringList& arguments, const std::function<void(QProcess& process)>& end) const;

    /// Runs with nothing but the arguments.
    FindRun runBare(const QStringList& arguments) const;

    /// From now on this is what the program reads from standard input.
    void setInput(const QByteArray& input);

    /// From now on what the program writes goes to these files, terminals for example, and is not part of the run; an
    /// empty name leaves a stream alone.
    void redirect(const QString& outputFile, const QString& errorFile);

    /// What the fake plug-in wrote down in all runs.
    QStringList fakeLog() const;

private:
    Find::Console m_console; // lets this process, too, make files whose names are not ASCII
    QTemporaryDir m_folder;
    QString m_inputFile;
    QString m_outputFile;
    QString m_errorFile;
    QProcessEnvironment m_environment = QProcessEnvironment::systemEnvironment();
};

/// The text of a file below docs. Line ends are "\n" on every system.
QString docText(const QString& name);
