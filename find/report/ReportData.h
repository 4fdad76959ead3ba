#pragma once

#include "find/answers/Answers.h"
#include "find/explain/Explanation.h"
#include "find/record/RecordingSummary.h"
#include "find/report/Installed.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace Find {

struct NeutralRecording;
struct Survey;

/// A game in a report.
struct ReportedGame {
    GameAnswer answer;
    QStringList finders;                      ///< the one that found it, or all that looked for it
    std::vector<ExplanationLine> explanation; ///< of a game that was not found
    QStringList similar;                      ///< the names in the lists that come near one that was not found
    int moreSimilar = 0;                      ///< how many more there are
};

/// How a list of what is installed was made.
struct ReportedList {
    QString title;
    int entries = 0;
    QStringList lines;
    int moreLines = 0;
};

/// All that a report shows, with neutral names in the place of private ones.
struct ReportData {
    std::vector<ReportedGame> games;
    std::vector<RuntimeAnswer> runtimes;
    std::vector<InstalledThing> others; ///< what is installed besides the games that were found
    std::vector<ReportedList> lists;
    QStringList faults;
    std::vector<RecordedAmount> contents; ///< what the recording holds
    QStringList neutralNames;             ///< that stand in the place of private ones everywhere
    QStringList neutralFolders;           ///< the same, as folders of users only
};

/// Gathers a report. `shown` are the survey's entries as people know them, `problems` the faults of the recorded PC
/// that was asked.
ReportData gatherReport(const Survey& survey, const std::vector<InstalledEntry>& shown, const Catalogue& games,
                        const NeutralRecording& recording, const QStringList& problems);

} // namespace Find
