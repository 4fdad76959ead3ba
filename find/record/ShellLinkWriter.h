#pragma once

#include <QByteArray>
#include <QString>

namespace Host {

/// The contents of a shortcut file to a local target, as the shell writes it: a header and the link information with
/// the path in ANSI and in Unicode (learn.microsoft.com/openspecs/windows_protocols/ms-shllink). Tells nothing else:
/// no dates, no names of the machine and its volumes.
QByteArray shellLinkTo(const QString& target);

} // namespace Host
