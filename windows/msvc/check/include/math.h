#pragma once

#include_next <math.h>

#ifdef __cplusplus
extern "C" {
#endif

float erfcf(float), nexttowardf(float, long double);
double erfc(double), nexttoward(double, long double);

#define FUNCTIONS(of)                                                                                                  \
    of(acos) of(acosh) of(asin) of(asinh) of(atan) of(atanh) of(cbrt) of(ceil) of(cos) of(cosh) of(erf) of(erfc)       \
        of(exp) of(exp2) of(expm1) of(fabs) of(floor) of(lgamma) of(log) of(log10) of(log1p) of(log2) of(logb)         \
            of(nearbyint) of(sin) of(sinh) of(sqrt) of(tan) of(tanh) of(tgamma)
#define DECLARED(name) long double name##l(long double);
FUNCTIONS(DECLARED)
#undef DECLARED
#undef FUNCTIONS
long double atan2l(long double, long double), fdiml(long double, long double), fmaxl(long double, long double),
    fminl(long double, long double), fmodl(long double, long double), hypotl(long double, long double),
    nextafterl(long double, long double), nexttowardl(long double, long double), powl(long double, long double),
    remainderl(long double, long double);
long double frexpl(long double, int*), ldexpl(long double, int), modfl(long double, long double*),
    remquol(long double, long double, int*), scalblnl(long double, long), scalbnl(long double, int);
int ilogbl(long double);

#ifdef __cplusplus
}
#endif
