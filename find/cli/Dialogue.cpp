#include "find/cli/Dialogue.h"

#include <QDir>
#include <QFileInfo>

namespace Find {

namespace {

// Lines of at most 78 characters: the window has 80, and wider ones would be broken anywhere.
const char* const introduction = "This program makes a report of the games and VR programs on this PC, for\n"
                                 "whoever asked you for one.\n"
                                 "\n"
                                 "What it reads: which programs are installed, in which folders they are, and\n"
                                 "what starts them. Windows, Steam, Epic and Oculus keep lists of that. It\n"
                                 "does not open your documents, pictures or mails.\n"
                                 "\n"
                                 "What it makes: one file on your Desktop. In it are the names and the folders\n"
                                 "of what is installed. Your name and the name of this PC are replaced by\n"
                                 "\"user\" and \"pc\". Nothing is sent, and nothing else is changed.\n"
                                 "\n"
                                 "Press Enter to make the report.\n"
                                 "(If you do not want that, type n and press Enter, or close this window.)\n";

const char* const waiting = "\nOne moment, please. This can take a minute ...\n";

const char* const ending = "\nPress any key to close this window.\n";

/// Enter alone, or a yes. Whatever else was typed, no report is made of it.
bool isYes(const QString& line) {
    const QString answer = line.trimmed().toLower();
    return answer.isEmpty() ? !line.isEmpty()
                            : QStringLiteral("|y|yes|ok|j|ja|").contains(QStringLiteral("|%1|").arg(answer));
}

QString describe(const QString& file, bool isShown) {
    const QString name = QFileInfo(file).fileName();
    const QString where = QDir::toNativeSeparators(QFileInfo(file).path());
    const QString seen = isShown ? QStringLiteral("Your browser shows it now.")
                                 : QStringLiteral("A double click on the file shows it in your browser.");
    return QStringLiteral("\n"
                          "The report is ready. It is the file\n"
                          "\n"
                          "    %1\n"
                          "\n"
                          "in the folder %2\n"
                          "\n"
                          "%3\n"
                          "\n"
                          "What to do with it: look through it, and when nothing in it is too private,\n"
                          "attach the file to a mail to whoever asked you for it. They need nothing\n"
                          "else. You can delete the file when they have it.\n")
        .arg(name, where, seen);
}

QString describe(const QString& fault) {
    return QStringLiteral("\n"
                          "The report could not be made. This is why:\n"
                          "\n"
                          "    %1\n"
                          "\n"
                          "Please send this text, or a photo of this window, to whoever asked you for\n"
                          "the report.\n")
        .arg(fault);
}

QString describe(const QStringList& notes) {
    return notes.isEmpty()
               ? QString()
               : QLatin1String("\nPlease note:\n\n    ") + notes.join(QLatin1String("\n    ")) + QLatin1Char('\n');
}

ExitStatus makeAndShow(const DialogueParts& parts) {
    parts.say(QLatin1String(waiting));
    const DialogueParts::Made made = parts.makeReport();
    if (!made.fault.isEmpty()) {
        parts.say(describe(made.fault));
        return failed;
    }
    parts.say(describe(made.file, parts.open(made.file)) + describe(made.notes));
    return allFound;
}

} // namespace

ExitStatus talk(const DialogueParts& parts) {
    parts.say(QLatin1String(introduction));
    ExitStatus status = allFound;
    if (isYes(parts.readLine())) {
        status = makeAndShow(parts);
    } else {
        parts.say(QStringLiteral("\nNothing was read, and no file was made.\n"));
    }
    parts.say(QLatin1String(ending));
    parts.waitForKey();
    return status;
}

} // namespace Find
