#include "find/record/SystemCodePage.h"

#include "platform/Registry.h"
#include "recordings/AnsiText.h"

#include <QString>

#include <array>

namespace Find {

int systemCodePage() {
    const QString path = QStringLiteral(R"(SYSTEM\CurrentControlSet\Control\Nls\CodePage)");
    Platform::KeyHandle key;
    Platform::openKey(Platform::RootKey::LocalMachine, path, Platform::keyRead | Platform::keyWow64_64Key, key);
    std::array<char16_t, 16> text{};
    quint32 type = 0;
    quint32 size = sizeof text - sizeof(char16_t);
    const Platform::ErrorCode status = Platform::queryValue(key, QStringLiteral("ACP"), type, text.data(), size);
    const int number = status == Platform::errorSuccess ? QString::fromUtf16(text.data()).toInt() : 0;
    return Recordings::isKnownCodePage(number) ? number : Recordings::westernCodePage;
}

} // namespace Find
