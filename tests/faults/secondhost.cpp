#include "core/UserProvidedLocationFinder.h"
#include "support/Logger.h"

#include <QString>

#include <array>
#include <cstdio>
#include <optional>

namespace {

/// Another host of this library, with a log and its user's choices.
class SecondHost {
public:
    explicit SecondHost(const char* name)
        : m_name(QString::fromLatin1(name)) {}

    void obey(const QByteArray& command) {
        if (command == "write") {
            write();
        } else if (command == "close") {
            m_logger.reset();
        } else if (command == "choose") {
            choose();
        } else {
            m_logger.emplace(Logger::create(command));
        }
    }

private:
    void write() {
        for (int line = 0; line < 1'000; ++line) {
            const QString text(line % 200 * 5, m_name.at(0));
            m_logger->logAlways("<%ls%d %ls>", qUtf16Printable(m_name), line, qUtf16Printable(text));
        }
    }

    void choose() {
        for (int game = 0; game < 8; ++game) {
            const QString key = m_name + QString::number(game);
            Finders::UserProvidedLocationFinder(&*m_logger, key, {}).setUserLocation("D:\\" + key);
        }
    }

    QString m_name;
    std::optional<Logger> m_logger;
};

} // namespace

/// Does what each line that comes in says, "write", "close", "choose" or the name of a log to open, and says "done".
int main(int, char** argv) {
    SecondHost host(argv[1]);
    std::array<char, 32> line{};
    while (std::fgets(line.data(), static_cast<int>(line.size()), stdin) != nullptr) {
        host.obey(QByteArray(line.data()).trimmed());
        std::puts("done");
        std::fflush(stdout);
    }
    return 0;
}
