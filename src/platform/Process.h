#pragma once

#include <QProcessEnvironment>
#include <QtGlobal>

/// The process that the library is loaded in.
namespace Platform {

/// GetModuleFileNameW of the process's own executable: the number of characters written, 0 on failure; `size` when
/// the path was cut, which is then not terminated on every system.
quint32 moduleFileName(char16_t* buffer, quint32 size);

quint32 currentProcessId(); // GetCurrentProcessId

/// The environment in which the finders look up variables (QProcessEnvironment::systemEnvironment on Windows).
QProcessEnvironment systemEnvironment();

} // namespace Platform
