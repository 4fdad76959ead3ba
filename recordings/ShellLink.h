#pragma once

#include "recordings/AnsiText.h"

#include <QByteArray>
#include <QProcessEnvironment>
#include <QString>

#include <optional>

namespace Recordings {

/// What a shortcut file (.lnk) says about its target. What it doesn't say is empty.
struct ShellLink {
    QString expandable;  ///< may hold environment variables, "%ProgramFiles%\X\X.exe"
    QString localPath;   ///< "C:\Games\X\X.exe"
    QString networkPath; ///< "\\server\share\X.exe"
    QString itemPath;    ///< "C:\Games\X\X.exe", as the list of shell items has it
    QString relativePath;
};

/// Reads a shortcut as learn.microsoft.com/openspecs/windows_protocols/ms-shllink describes it. Empty when `bytes` are
/// none or are damaged.
std::optional<ShellLink> parseShellLink(const QByteArray& bytes, int codePage = westernCodePage);

/// Where `link` leads, as Qt writes it on Windows: "C:/Games/X/X.exe". `folder` is the one in which the shortcut lies.
/// Empty when it leads nowhere.
QString targetOf(const ShellLink& link, const QProcessEnvironment& environment, const QString& folder);

/// The contents of a shortcut file to a local target, as the shell writes it: a header and the link information with
/// the path in ANSI and in Unicode. Tells nothing else: no dates, no names of the machine and its volumes.
QByteArray renderShellLink(const QString& target);

} // namespace Recordings
