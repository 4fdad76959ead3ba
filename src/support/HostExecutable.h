#pragma once

#include <QString>
#include <QtGlobal>

/// The executable of the process that loaded this library. Worked out at the first call and kept for the process.
/// Empty when the system does not tell.
QString hostExecutablePath();
QString hostExecutableFileName();

/// Both as one function of the system tells them: Platform::moduleFileName, or one like it.
struct HostExecutable {
    using ModuleFileName = quint32 (*)(char16_t* buffer, quint32 size);

    static HostExecutable from(ModuleFileName moduleFileName);

    QString path;
    QString fileName;
};
