#pragma once

#include <QString>
#include <QtGlobal>

#include <functional>

namespace Find {

/// Shows how far a task is ("asking 12/340: Käferrennen") on one line of the error stream that it rewrites and, at the
/// end, erases. Shows nothing when that is not a terminal, nothing of a quick task, and not every step of a fast one.
class Progress {
public:
    using Clock = std::function<qint64()>; ///< the time in milliseconds
    using Show = std::function<void(const QString& line)>;

    /// The title says what is done: "asking".
    explicit Progress(const QString& title);

    /// For a terminal of this width, 0 for none, and with a clock of one's own. `show` gets an empty line to erase the
    /// one before.
    Progress(const QString& title, int width, Clock clock, Show show);

    ~Progress();

    /// The task now comes to number `done` of `total`; 0 when that is not known.
    void step(int done, int total, const QString& what);

    /// Erases the line. Further steps show nothing.
    void finish();

private:
    Q_DISABLE_COPY_MOVE(Progress)

    QString m_title;
    int m_width;
    Clock m_clock;
    Show m_show;
    qint64 m_nextShow = 0;
    bool m_isShown = false;
};

} // namespace Find
