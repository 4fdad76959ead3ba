#include "find/report/SimilarNames.h"

#include <algorithm>

namespace Find {

namespace {

constexpr int lettersInARow = 3;

} // namespace

SimilarNames::SimilarNames(const std::vector<InstalledEntry>& entries)
    : m_entries(entries) {
    for (std::size_t i = 0; i < entries.size(); ++i) {
        m_all.push_back(i);
        m_names.push_back(entries[i].name.toCaseFolded());
        const QString& name = m_names.back();
        for (int at = 0; at + lettersInARow <= name.size(); ++at) {
            std::vector<std::size_t>& places = m_byLetters[name.mid(at, lettersInARow)];
            if (places.empty() || places.back() != i) {
                places.push_back(i);
            }
        }
    }
}

/// The entries with the rarest three letters of the word; all of them for a shorter word.
const std::vector<std::size_t>& SimilarNames::candidates(const QString& foldedWord) const {
    static const std::vector<std::size_t> none;
    const std::vector<std::size_t>* fewest = &m_all;
    for (int at = 0; at + lettersInARow <= foldedWord.size(); ++at) {
        const auto found = m_byLetters.constFind(foldedWord.mid(at, lettersInARow));
        if (found == m_byLetters.constEnd()) {
            return none;
        }
        if (found->size() < fewest->size()) {
            fewest = &*found;
        }
    }
    return *fewest;
}

std::vector<const InstalledEntry*> SimilarNames::mentioning(const QStringList& words) const {
    std::vector<std::size_t> places;
    for (const QString& word : words) {
        const QString folded = word.toCaseFolded();
        for (const std::size_t place : candidates(folded)) {
            if (m_names[place].contains(folded)) {
                places.push_back(place);
            }
        }
    }
    std::sort(places.begin(), places.end());
    places.erase(std::unique(places.begin(), places.end()), places.end());
    std::vector<const InstalledEntry*> entries;
    entries.reserve(places.size());
    for (const std::size_t place : places) {
        entries.push_back(&m_entries[place]);
    }
    return entries;
}

} // namespace Find
