#pragma once

#include <QByteArrayList>
#include <QString>

#include <map>

/// What a program or library for 64-bit Windows gives to others and takes from them, by name.
struct ModuleNames {
    QByteArrayList exports;
    std::map<QByteArray, QByteArrayList> imports; ///< by the DLL that they come from
};

/// Read from the file, by the system's own description of it; empty when there is no such file.
ModuleNames namesOfModule(const QString& path);

/// Whether the name of a function, as GCC or Microsoft's compiler makes it up, tells of a type of the standard library.
bool namesStandardType(const QByteArray& symbol);
