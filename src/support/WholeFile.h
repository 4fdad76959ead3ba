#pragma once

#include <QByteArray>
#include <QString>

/// All bytes of a file; empty when it is missing or can't be opened.
QByteArray readWholeFile(const QString& path);
