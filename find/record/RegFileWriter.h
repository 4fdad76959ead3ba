#pragma once

#include "find/record/NeutralNames.h"
#include "find/record/RegistryRecord.h"

#include <QByteArray>
#include <QStringList>

namespace Host {

/// The record as a registry file of version 5.00, as regedit writes it, with neutral names in it. A key whose name
/// can't stand in such a file is left out and added to `leftOut`.
QByteArray renderRegFile(const RegistryRecord& record, const NeutralNames& names, QStringList& leftOut);

} // namespace Host
