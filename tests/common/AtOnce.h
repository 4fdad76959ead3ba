#pragma once

#include <atomic>
#include <functional>
#include <thread>
#include <vector>

/// Calls `call` on sixteen threads that begin together, and waits for all.
inline void callAtOnce(const std::function<void()>& call) {
    constexpr int count = 16;
    std::atomic<int> ready{0};
    std::vector<std::thread> threads;
    threads.reserve(count);
    for (int i = 0; i < count; ++i) {
        threads.emplace_back([&] {
            ++ready;
            while (ready < count) {
                std::this_thread::yield();
            }
            call();
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
}
