// A library that loads well and is no plug-in: it has no "Create".

#include <QtGlobal>

extern "C" Q_DECL_EXPORT int makeNothing();

int makeNothing() {
    return 0;
}
