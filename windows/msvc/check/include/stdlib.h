#pragma once

#include_next <stdlib.h>

#define MB_CUR_MAX 5

#ifdef __cplusplus
extern "C" {
#endif

float _strtof_l(const char*, char**, _locale_t);
double _strtod_l(const char*, char**, _locale_t);
errno_t _dupenv_s(char**, size_t*, const char*);
errno_t _wputenv_s(const wchar_t*, const wchar_t*);

#ifdef __cplusplus
}
#endif
