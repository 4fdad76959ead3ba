#pragma once

#include <QByteArray>
#include <QString>

namespace Recordings {

/// Reads the pieces of a .reg file's lines from front to back. A function that returns false leaves the cursor at or
/// behind the fault, and `fault` says where and what it is.
class RegCursor {
public:
    struct Fault {
        int position = 0;
        QString message;
    };

    explicit RegCursor(const QString& text)
        : m_text(text) {}

    bool atEnd() const { return m_position >= m_text.size(); }

    int position() const { return m_position; }

    /// The next character; null at the end.
    QChar peek() const { return at(m_position); }

    const Fault& fault() const { return m_fault; }

    void skipBlanks();
    void toNextLine();
    /// Whether only blanks or a comment follow in the line; the blanks are skipped.
    bool atLineEnd();
    /// The rest of the line; the cursor moves to the next line.
    QString takeLine();
    /// Moves past `word`, written in any letter case; false and unmoved when something else follows.
    bool take(QLatin1String word);

    /// Text in quotes. `mayWrap`: it may hold line breaks, as regedit writes them.
    bool takeQuoted(bool mayWrap, QString& text);
    /// A number of 1 to 8 hexadecimal digits.
    bool takeNumber(quint32& number);
    /// Bytes with commas between them, on any number of lines that end in a backslash.
    bool takeBytes(QByteArray& bytes);

    bool fail(int position, const QString& message);

private:
    QChar at(int position) const { return position < m_text.size() ? m_text.at(position) : QChar(); }

    int skipBlanks(int position) const;
    bool takeLineBreak();
    bool takeContinuation();
    bool failInBytes(const QString& message);
    bool beginsKeyOrValue(int position) const;

    const QString& m_text;
    int m_position = 0;
    Fault m_fault;
};

} // namespace Recordings
