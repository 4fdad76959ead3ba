#pragma once

#include <QString>

namespace Find {

/// One thing that is wrong, and where.
struct Complaint {
    Complaint(const QString& what)
        : message(what) {}

    Complaint(const QString& where, int itsLine, int itsColumn, const QString& what)
        : message(what)
        , file(where)
        , line(itsLine)
        , column(itsColumn) {}

    /// "games.json:12:5: unterminated string", as far as the place is known.
    QString text() const;

    QString message;
    QString file;   ///< empty when it is about no file
    int line = 0;   ///< counts from 1; 0 when unknown
    int column = 0; ///< the same
};

} // namespace Find
