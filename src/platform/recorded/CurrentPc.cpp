#include "platform/recorded/DriveFileEngine.h"

#include <mutex>

namespace Recorded {

namespace {

class DriveFileEngineHandler : public QAbstractFileEngineHandler {
public:
    QAbstractFileEngine* create(const QString& path) const override {
        if (!Recordings::DrivePath::parse(path)) {
            return nullptr;
        }
        std::shared_ptr<const RecordedPc> pc = currentPc();
        return pc->isActive() ? new DriveFileEngine(std::move(pc), path) : nullptr;
    }
};

class Current {
public:
    std::shared_ptr<const RecordedPc> pc() {
        const QByteArray path = qgetenv(Recordings::environmentVariable);
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (!m_pc || path != m_path) {
            m_pc = path.isEmpty() ? std::make_shared<RecordedPc>() : std::make_shared<RecordedPc>(path);
            m_path = path;
        }
        return m_pc;
    }

    void forget() {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_pc.reset();
    }

private:
    std::mutex m_mutex;
    QByteArray m_path;
    std::shared_ptr<const RecordedPc> m_pc;
};

Current& current() {
    static Current current;
    return current;
}

} // namespace

std::shared_ptr<const RecordedPc> currentPc() {
    Current& state = current();
    // A local object, so that Qt forgets it when the library is unloaded.
    static const DriveFileEngineHandler handler;
    return state.pc();
}

void forgetPc() {
    current().forget();
}

} // namespace Recorded
