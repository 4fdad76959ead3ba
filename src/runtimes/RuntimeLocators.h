#pragma once

#include <QString>

/// Where the VR runtimes are installed. Each question reads one registry value or one environment variable anew, and
/// is answered by an empty text when the runtime is not there. Any thread may ask; nothing is logged.
namespace Runtimes {

/// The folder of the Oculus runtime, as the variable "OculusBase" begins it: its separators are mixed. Empty as well
/// when the runtime's library is not in it.
QString oculusRuntimeFolder();

/// The install folder of the Varjo runtime, as registered; whether it exists is not checked.
QString varjoRuntimeFolder();

/// The manifest file of the active OpenXR runtime, as registered; whether it exists is not checked.
QString openXrActiveRuntime();

/// Where the Lumavex standalone software is, as registered; whether it exists is not checked.
QString lumavexStandaloneLocation();

} // namespace Runtimes
