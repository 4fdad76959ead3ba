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

/// Whether the process has more rights than its user has without being asked: one that an administrator of Windows
/// allowed to change the PC ("Run as administrator"), one of another user's or group's rights elsewhere. What its
/// environment says may then come from somebody who has fewer.
bool isElevated();

} // namespace Platform
