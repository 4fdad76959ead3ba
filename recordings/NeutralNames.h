#pragma once

#include <QString>

#include <vector>

namespace Recordings {

/// A name that tells whose PC it is, and what stands in its place in a recording.
struct PrivateName {
    QString name;
    QString neutral;
    bool isEverywhere = true; ///< false: only as a folder beside the user's profile, where it can mean nothing else
};

/// Puts neutral names in the place of private ones: as whole words, letter case ignored. What is no letter, mark or
/// digit ends a word. The short form of a name ("CHRIST~1") counts as the name, as does one escaped as in JSON and
/// URLs.
class NeutralNames {
public:
    /// Leaves everything as it is.
    NeutralNames() = default;

    /// `profilesFolder` is the name of the folder that holds the users' profiles ("Users").
    NeutralNames(const std::vector<PrivateName>& names, const QString& profilesFolder);

    QString text(const QString& text) const;

private:
    struct Needle {
        QString text;
        QString neutral;
        bool isEverywhere;
    };

    void add(const PrivateName& name);
    const Needle* needleAt(const QString& text, int position) const;
    bool isBelowProfiles(const QString& text, int position) const;

    std::vector<Needle> m_needles; ///< longer ones first
    QString m_profilesFolder;
};

/// Whether `word` is in `text` as NeutralNames understands whole words.
bool containsWord(const QString& text, const QString& word);

/// The form of eight characters that Windows gives a long name, without its number: "CHRIST~". Empty for a name that
/// needs none.
QString shortFormOf(const QString& name);

} // namespace Recordings
