#include "find/pc/System.h"

#include <QDir>
#include <QFileInfo>

#include <windows.h>

#include <shellapi.h>

#include <cstdlib>
#include <string>

namespace Find {

bool setEnvironmentVariable(const char* name, const QString& value) {
    return _wputenv_s(QString::fromLatin1(name).toStdWString().c_str(), value.toStdWString().c_str()) == 0;
}

QString fileInMemory(const QByteArray& /*contents*/) {
    return {}; // nobody needs it where no recorded PC answers
}

QString missingDrive(const QString& path) {
    const bool hasDrive = path.size() > 1 && path.at(1) == QLatin1Char(':');
    return hasDrive && !QFileInfo::exists(path.left(2) + QLatin1Char('/')) ? path.left(2).toUpper() : QString();
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
