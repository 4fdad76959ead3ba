#include "platform/recorded/Observer.h"

#include <atomic>
#include <mutex>
#include <utility>

namespace Recorded {

namespace {

struct State {
    std::mutex mutex;
    std::atomic<bool> isSet{false};
    Observer observer;
};

State& state() {
    static State state;
    return state;
}

} // namespace

void setObserver(Observer observer) {
    const std::lock_guard<std::mutex> lock(state().mutex);
    state().observer = std::move(observer);
    state().isSet = static_cast<bool>(state().observer);
}

bool isObserved() noexcept {
    return state().isSet;
}

void observe(const QString& question) {
    const std::lock_guard<std::mutex> lock(state().mutex);
    if (state().observer) {
        state().observer(question);
    }
}

} // namespace Recorded
