#pragma once

#include <string>
#include <vector>

struct PackageFunctions;

/// The full name of the first installed package of a family. Empty when there is none, and when the system does not
/// know packages.
std::u16string packageFullNameOf(const std::u16string& family, const PackageFunctions& functions);

/// The user model IDs of the applications in a package. Empty when there is none, and when the system does not know
/// packages.
std::vector<std::u16string> applicationIdsOf(const std::u16string& fullName, const PackageFunctions& functions);

/// The first of them, or an empty text.
std::u16string applicationIdOf(const std::u16string& fullName, const PackageFunctions& functions);
