#pragma once

#include "support/scripted/ScriptedSystem.h"

#include <QByteArray>

#include <cstring>
#include <memory>

namespace Fuzz {

/// A system that keeps what is written to its log files, all in one, and has nothing else.
class LoggingSystem {
public:
    LoggingSystem() {
        system.ownFolderPath = [](int, char16_t* buffer) {
            std::memcpy(buffer, u"C:\\Data", sizeof u"C:\\Data");
            return 0;
        };
        system.openShared = [this](const QString&, const char*) { return std::make_unique<Stream>(&log); };
    }

    ScriptedSystem system;
    QByteArray log;

private:
    class Stream final : public Platform::TextStream {
    public:
        explicit Stream(QByteArray* log)
            : m_log(log) {}

        void write(std::string_view utf8) noexcept override {
            m_log->append(utf8.data(), static_cast<int>(utf8.size()));
        }

        void flush() noexcept override {}

    private:
        QByteArray* m_log;
    };
};

} // namespace Fuzz
