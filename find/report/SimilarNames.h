#pragma once

#include "find/report/Installed.h"

#include <QHash>
#include <QString>
#include <QStringList>

#include <vector>

namespace Find {

/// Finds, among all that is installed, the names that mention a word, without going through all for each word: a report
/// asks for thousands of games.
class SimilarNames {
public:
    explicit SimilarNames(const std::vector<InstalledEntry>& entries);

    /// The entries whose names mention one of the words, each once and in their order.
    std::vector<const InstalledEntry*> mentioning(const QStringList& words) const;

private:
    const std::vector<std::size_t>& candidates(const QString& foldedWord) const;

    const std::vector<InstalledEntry>& m_entries; ///< borrowed
    std::vector<QString> m_names;                 ///< folded
    std::vector<std::size_t> m_all;
    QHash<QString, std::vector<std::size_t>> m_byLetters; ///< the entries by each three letters in a row of their names
};

} // namespace Find
