#pragma once

#include <QByteArray>
#include <QString>

namespace Find {

struct ReportData;

/// What a report says of itself.
struct ReportOrigin {
    QString made; ///< when
    QString version;
    QString catalogue; ///< the name of its file
    QString replayed;  ///< the page's file, as a shell wants it
    bool areNamesKept = false;
};

/// The report as one HTML page, in UTF-8, that needs nothing else and lets a browser load and run nothing but its own.
/// `recording` is the text of the recorded PC that it carries. Whatever is in the texts, they stay texts.
QByteArray renderReportPage(const ReportData& data, const ReportOrigin& origin, const QByteArray& recording);

/// The text with a picture in the place of each control character, which HTML doesn't take or nobody would see, and the
/// replacement character in that of half a pair.
QString withControlPictures(const QString& text);

} // namespace Find
