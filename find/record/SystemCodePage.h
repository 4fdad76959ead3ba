#pragma once

namespace Find {

/// The ANSI code page of the PC that the program runs on; Windows-1252 when it is not known.
int systemCodePage();

} // namespace Find
