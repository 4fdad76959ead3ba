#pragma once

#include_next <ctype.h>

#ifdef __cplusplus
extern "C" {
#endif

int _islower_l(int, _locale_t), _isupper_l(int, _locale_t);

#ifdef __cplusplus
}
#endif
