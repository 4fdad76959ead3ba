#pragma once

/// What not every Windows has.
namespace Platform {

/// A function of the system's kernel library, looked up by name (LoadLibraryW, GetProcAddress). Null when this system
/// lacks it. The caller casts it to the type that Windows documents.
using SystemFunction = void (*)();
SystemFunction kernelFunction(const char* name);

} // namespace Platform
