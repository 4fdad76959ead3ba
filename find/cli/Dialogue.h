#pragma once

#include "find/cli/Outcome.h"

#include <QString>
#include <QStringList>

#include <functional>

namespace Find {

/// What the dialogue talks to; a test brings its own.
struct DialogueParts {
    struct Made {
        QString file;
        QString fault;     ///< why there is no file; empty when there is one
        QStringList notes; ///< what the user should know of the file
    };

    std::function<void(const QString& text)> say;
    std::function<QString()> readLine; ///< what the user typed, with the line's end; empty when nothing comes any more
    std::function<Made()> makeReport;
    std::function<bool(const QString& file)> open; ///< shows the file in the browser; false when that failed
    std::function<void()> waitForKey;
};

/// What a double click on the program does: says what a report is, makes one when the user agrees, shows it and says
/// what to do with it, in the words of someone who has never seen a console. The window stays until a key is pressed.
ExitStatus talk(const DialogueParts& parts);

} // namespace Find
