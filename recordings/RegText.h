#pragma once

#include "recordings/Problem.h"

#include <QByteArray>
#include <QString>

#include <vector>

namespace Recordings {

/// Counts lines in a text from which a reader moves on from front to back.
class LineCounter {
public:
    explicit LineCounter(const QString& text)
        : m_text(text) {}

    /// The line of `position`, counted from 1. Positions must not go back.
    int lineAt(int position);

private:
    const QString& m_text;
    int m_position = 0;
    int m_line = 1;
};

/// The text of a .reg file: UTF-16LE with a byte-order mark, or UTF-8 with or without one. Bytes that are no text are
/// replaced and reported to `problems` under `file`.
QString decodeRegText(const QByteArray& bytes, const QString& file, std::vector<Problem>& problems);

} // namespace Recordings
