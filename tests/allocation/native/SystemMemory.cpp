#include "allocation/SystemMemory.h"

#include <private/qabstractfileengine_p.h>

#include <QFile>

#include <cerrno>
#include <cstdlib>

// The program's own malloc, calloc and realloc come before the C library's, for every library in the process. They
// hand on to the functions that LURULUDRI_MALLOC_PREFIX names: the C library's or the sanitizer's.

#define LURULUDRI_JOIN_AGAIN(prefix, name) prefix##name
#define LURULUDRI_JOIN(prefix, name) LURULUDRI_JOIN_AGAIN(prefix, name)
#define LURULUDRI_REAL(name) LURULUDRI_JOIN(LURULUDRI_MALLOC_PREFIX, name)

extern "C" {
// The dynamic linker keeps its lists where the leak checker doesn't look. It knows them by who called malloc, which
// here is the function below.
__attribute__((visibility("default"))) const char* __lsan_default_suppressions() {
    return "leak:_dl_map_object_deps\n";
}

void* LURULUDRI_REAL(malloc)(std::size_t size);
void* LURULUDRI_REAL(calloc)(std::size_t count, std::size_t size);
void* LURULUDRI_REAL(realloc)(void* memory, std::size_t size);
int __lsan_do_recoverable_leak_check() __attribute__((weak));

__attribute__((visibility("default"))) void* malloc(std::size_t size) {
    if (SystemMemory::mayAllocate()) {
        return LURULUDRI_REAL(malloc)(size);
    }
    errno = ENOMEM;
    return nullptr;
}

__attribute__((visibility("default"))) void* calloc(std::size_t count, std::size_t size) {
    if (SystemMemory::mayAllocate()) {
        return LURULUDRI_REAL(calloc)(count, size);
    }
    errno = ENOMEM;
    return nullptr;
}

__attribute__((visibility("default"))) void* realloc(void* memory, std::size_t size) {
    if (SystemMemory::mayAllocate()) {
        return LURULUDRI_REAL(realloc)(memory, size);
    }
    errno = ENOMEM;
    return nullptr;
}
}

void SystemMemory::prepare() {}

void SystemMemory::spareQt(bool /*isSpared*/) {} // whose settings, which need it, no recorded PC has

void* SystemMemory::allocate(std::size_t size) noexcept {
    return std::malloc(size);
}

void SystemMemory::release(void* memory) noexcept {
    std::free(memory);
}

long SystemMemory::blocks() {
    return 0;
}

// The lock of Qt's file engines takes memory, and without any is held for ever, which the process would wait for when
// it ends. A thread that holds it already needs none: as while it asks for an engine.
void SystemMemory::run(const std::function<void()>& work) {
    const QString path(QStringLiteral("work of a test"));

    class Worker : public QAbstractFileEngineHandler {
    public:
        Worker(const QString& file, const std::function<void()>& toDo)
            : m_file(file)
            , m_toDo(toDo) {}

        QAbstractFileEngine* create(const QString& file) const override {
            if (file == m_file) {
                m_toDo();
            }
            return nullptr;
        }

    private:
        const QString& m_file;
        const std::function<void()>& m_toDo;
    };

    const Worker worker(path, work);
    QFile::exists(path);
}

bool SystemMemory::nothingLeaked() {
    return __lsan_do_recoverable_leak_check == nullptr || __lsan_do_recoverable_leak_check() == 0;
}
