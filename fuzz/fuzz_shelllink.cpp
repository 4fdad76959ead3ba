#include "fuzz/Fuzz.h"
#include "recordings/ShellLink.h"

namespace {

void checkAgain(const Recordings::ShellLink& link) {
    if (!link.localPath.isEmpty()) {
        const auto again = Recordings::parseShellLink(Recordings::renderShellLink(link.localPath));
        Fuzz::require(again && again->localPath == link.localPath, "a local path reads as written");
    }
}

} // namespace

/// What a shortcut says about its target is a path as Qt writes them, or nothing; a shortcut written to the same target
/// says the same.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    QProcessEnvironment environment;
    environment.insert(QStringLiteral("A"), QStringLiteral("C:\\A"));
    if (const auto link = Recordings::parseShellLink(Fuzz::bytesOf(data, size))) {
        const QString target = targetOf(*link, environment, QStringLiteral("C:/Menu"));
        Fuzz::require(!target.contains(QLatin1Char('\\')), "a path as Qt writes it");
        checkAgain(*link);
    }
    return 0;
}
