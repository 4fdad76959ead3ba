#pragma once

#include <QString>

#include <functional>

class IGameFinderFactory;

namespace Find {

/// Has `ask` ask a factory of the plug-in in this file, which may be given without its suffix and is unloaded
/// afterwards: everything that came out of the plug-in must be gone by then, texts included, because they may lie in
/// the file. Says in `fault` why it could not, or that memory ran out meanwhile.
void withPlugin(const QString& file, QString& fault, const std::function<void(IGameFinderFactory&)>& ask);

} // namespace Find
