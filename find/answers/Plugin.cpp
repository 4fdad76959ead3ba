#include "find/answers/Plugin.h"

#include "core/IGameFinderFactory.h"

#include <QFileInfo>
#include <QLibrary>

#include <memory>
#include <new>

namespace Find {

namespace {

struct Unloader {
    void operator()(QLibrary* library) const { library->unload(); }
};

/// Null when the file cannot make a factory; `fault` then says why.
std::unique_ptr<IGameFinderFactory> createFactory(QLibrary& library, QString& fault) {
    if (!library.load()) {
        fault = library.errorString();
        return nullptr;
    }
    const auto create = reinterpret_cast<CreateFactoryFunction>(library.resolve("Create"));
    if (create == nullptr) {
        fault = QStringLiteral("%1: no plug-in, as it has no function \"Create\"").arg(library.fileName());
        return nullptr;
    }
    std::unique_ptr<IGameFinderFactory> factory(create());
    if (!factory) {
        fault = QStringLiteral("%1: Create made no factory").arg(library.fileName());
    }
    return factory;
}

} // namespace

void withPlugin(const QString& file, QString& fault, const std::function<void(IGameFinderFactory&)>& ask) {
    // A name without a folder would be searched for among the system's libraries.
    QLibrary library(QFileInfo(file).absoluteFilePath());
    const std::unique_ptr<QLibrary, Unloader> loaded(&library);
    try {
        if (const std::unique_ptr<IGameFinderFactory> factory = createFactory(library, fault)) {
            ask(*factory);
        }
    } catch (const std::bad_alloc&) {
        // Here and not further out: what the plug-in throws is destroyed by code of the plug-in.
        fault = QStringLiteral("out of memory");
    }
}

} // namespace Find
