#pragma once

#include <QtGlobal>

#include <csignal>
#include <sys/resource.h>

/// Lets no file become larger, as long as it lives: as a disk that fills up, it takes a part of what is written.
class FileLimit {
public:
    explicit FileLimit(qint64 bytes) {
        ::getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limit{static_cast<rlim_t>(bytes), m_before.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }

    ~FileLimit() {
        ::setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }

private:
    Q_DISABLE_COPY_MOVE(FileLimit)

    rlimit m_before{};
    void (*const m_handler)(int) = std::signal(SIGXFSZ, SIG_IGN);
};
