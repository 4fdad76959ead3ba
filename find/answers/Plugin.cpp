#include "find/answers/Plugin.h"

#include "core/IGameFinderFactory.h"

#include <QFileInfo>

#include <new>

namespace Find {

Plugin::Plugin(const QString& file)
    // A name without a folder would be searched for among the system's libraries.
    : m_library(QFileInfo(file).absoluteFilePath()) {}

Plugin::~Plugin() {
    m_library.unload();
}

std::unique_ptr<IGameFinderFactory> Plugin::createFactory(QString& fault) {
    if (!m_library.load()) {
        fault = m_library.errorString();
        return nullptr;
    }
    const auto create = reinterpret_cast<CreateFactoryFunction>(m_library.resolve("Create"));
    if (create == nullptr) {
        fault = QStringLiteral("%1: no plug-in, as it has no function \"Create\"").arg(m_library.fileName());
        return nullptr;
    }
    std::unique_ptr<IGameFinderFactory> factory(create());
    if (!factory) {
        fault = QStringLiteral("%1: Create made no factory").arg(m_library.fileName());
    }
    return factory;
}

void withPlugin(const QString& file, QString& fault, const std::function<void(IGameFinderFactory&)>& ask) {
    Plugin plugin(file);
    try {
        if (const std::unique_ptr<IGameFinderFactory> factory = plugin.createFactory(fault)) {
            ask(*factory);
        }
    } catch (const std::bad_alloc&) {
        // Here and not further out: what the plug-in throws is destroyed by code of the plug-in.
        fault = QStringLiteral("out of memory");
    }
}

} // namespace Find
