#pragma once

#include <QString>
#include <QtGlobal>

/// A file version in four numbers, all 0 when there is none.
struct FileVersion {
    quint16 major = 0;
    quint16 minor = 0;
    quint16 build = 0;
    quint16 revision = 0;
};

/// The version in the version resource of an executable or library. All 0 when the file has none.
FileVersion readFileVersion(const QString& path);
