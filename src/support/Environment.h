#pragma once

#include <QString>

/// An environment variable of the PC on which games are looked for, letter case ignored. Empty when there is none.
QString environmentVariable(const QString& name);
