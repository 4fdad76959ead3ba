#pragma once

#include <QString>
#include <QStringList>

namespace Find {

/// The shells whose command lines can be completed.
QStringList shells();

/// What has a shell complete this program's command line, made of the same table as the help; empty for another shell.
QString completionFor(const QString& shell);

/// The manual page, made of the same table.
QString manualPage();

} // namespace Find
