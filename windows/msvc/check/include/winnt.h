#pragma once

// To clang, Wine defines a function that clang has itself.
#pragma push_macro("__clang__")
#undef __clang__
#include_next <winnt.h>
#pragma pop_macro("__clang__")
