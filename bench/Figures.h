#pragma once

#include <QString>

#include <functional>

/// How the figures are taken, and where they go: a line of JSON each to stdout, as soon as they are there.
///
/// A time says little on a machine that does other things too, so a time is set against another in the same moment:
/// work and floor take turns, and the median of their ratios counts.
class Figures {
public:
    using Step = std::function<void()>;

    /// `entries` of what are asked; `seconds` is how long a figure is taken, 0 for once.
    Figures(int entries, double seconds)
        : m_entries(entries)
        , m_seconds(seconds) {}

    /// The same for so many entries.
    Figures of(int entries) const { return Figures(entries, m_seconds); }

    int entries() const { return m_entries; }

    /// How often work takes what its floor takes. `before`, which is not timed, comes before each of both. `times` is
    /// how many of what is told of one step does.
    void ratio(
        const QString& name, const Step& work, const Step& floor, const Step& before = [] {}, int times = 1) const;

    /// What one step takes, divided by `times`.
    void time(const QString& name, const Step& work, double times = 1) const;

    /// Anything else that was counted.
    void number(const QString& name, double number, const QString& unit) const;

private:
    int m_entries;
    double m_seconds;
};
