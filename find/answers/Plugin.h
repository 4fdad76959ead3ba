#pragma once

#include <QLibrary>
#include <QString>
#include <QtGlobal>

#include <functional>
#include <memory>

class IGameFinderFactory;

namespace Find {

/// The plug-in's file in memory. Unloads it at its end: everything that came out of the plug-in must be gone by then,
/// texts included, because they may lie in the file.
class Plugin {
public:
    /// The file may be given without its suffix.
    explicit Plugin(const QString& file);
    ~Plugin();

    /// Loads the file and makes a factory. Null when it cannot; `fault` then says why.
    std::unique_ptr<IGameFinderFactory> createFactory(QString& fault);

private:
    Q_DISABLE_COPY_MOVE(Plugin)

    QLibrary m_library;
};

/// Has `ask` ask a factory of the plug-in in this file, which is unloaded afterwards. Says in `fault` why it could not,
/// or that memory ran out meanwhile.
void withPlugin(const QString& file, QString& fault, const std::function<void(IGameFinderFactory&)>& ask);

} // namespace Find
