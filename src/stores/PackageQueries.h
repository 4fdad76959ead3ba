#pragma once

#include <string>

struct PackageFunctions;

/// The full name of the first installed package of a family. Empty when there is none, and when the system does not
/// know packages.
std::u16string packageFullNameOf(const std::u16string& family, const PackageFunctions& functions);

/// The user model ID of the first application in a package. Empty when there is none, and when the system does not
/// know packages.
std::u16string applicationIdOf(const std::u16string& fullName, const PackageFunctions& functions);
