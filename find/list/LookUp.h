#pragma once

#include "find/list/ListedGame.h"

#include <QString>

#include <vector>

namespace Find {

/// Of what is installed, what bears this name, letter case ignored, or else what is called alike.
std::vector<ListedGame> installedLike(const std::vector<ListedGame>& installed, const QString& name);

} // namespace Find
