#include "support/LogFile.h"

#include <cstdio>

/// Another process that holds the log "Test": writes a line to it, says "ready", and ends when its input does.
int main() {
    LogFile file("Test", 2, {});
    file.writeLine('A', "from another process");
    std::puts("ready");
    std::fflush(stdout);
    while (std::getchar() != EOF) {
    }
    return 0;
}
