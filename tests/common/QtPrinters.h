#pragma once

#include <QByteArray>
#include <QString>

#include <ostream>

/// So that a failed expectation shows the text.
inline void PrintTo(const QString& text, std::ostream* stream) {
    *stream << (text.isNull() ? "(null) " : "") << '"' << text.toStdString() << '"';
}

inline void PrintTo(const QByteArray& bytes, std::ostream* stream) {
    *stream << '"' << bytes.toStdString() << '"';
}
