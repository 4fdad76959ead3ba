#include "recordings/ShellLink.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<int>(size));
    QProcessEnvironment environment;
    environment.insert(QStringLiteral("A"), QStringLiteral("C:\\A"));
    if (const auto link = Recordings::parseShellLink(bytes)) {
        targetOf(*link, environment, QStringLiteral("C:/Menu"));
    }
    return 0;
}
