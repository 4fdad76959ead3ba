#include "recordings/ShellLink.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

/// A path of shell items that was read and written reads as what it is.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<int>(size));
    QProcessEnvironment environment;
    environment.insert(QStringLiteral("A"), QStringLiteral("C:\\A"));
    if (const auto link = Recordings::parseShellLink(bytes)) {
        targetOf(*link, environment, QStringLiteral("C:/Menu"));
        const QByteArray written = Recordings::renderShellLinkOfItems(link->itemPath);
        const auto again = Recordings::parseShellLink(written);
        if (!written.isEmpty() && (!again || again->itemPath != link->itemPath)) {
            std::abort();
        }
    }
    return 0;
}
