#include "find/pc/System.h"

#include <QDir>

#include <windows.h>

#include <shellapi.h>

#include <cstdlib>
#include <string>

namespace Find {

bool setEnvironmentVariable(const char* name, const QString& value) {
    return _wputenv_s(QString::fromLatin1(name).toStdWString().c_str(), value.toStdWString().c_str()) == 0;
}

bool openFile(const QString& file) {
    const std::wstring path = QDir::toNativeSeparators(file).toStdWString();
    const HINSTANCE result = ShellExecuteW(nullptr, L"open", path.c_str(), nullptr, nullptr, SW_SHOWNORMAL);
    return reinterpret_cast<INT_PTR>(result) > 32; // which numbers of faults are not
}

bool isPcItself() {
    return true;
}

} // namespace Find
