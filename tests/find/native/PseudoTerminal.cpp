#include "PseudoTerminal.h"

#include <gtest/gtest.h>

#include <array>

#include <fcntl.h>
#include <stdlib.h>
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>

bool PseudoTerminal::areThere() {
    const int master = posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC);
    const bool isThere = master >= 0 && grantpt(master) == 0 && unlockpt(master) == 0;
    close(master);
    return isThere;
}

PseudoTerminal::PseudoTerminal(unsigned short columns)
    : m_master(posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC)) {
    EXPECT_TRUE(m_master >= 0 && grantpt(m_master) == 0 && unlockpt(m_master) == 0);
    m_name = QString::fromLocal8Bit(ptsname(m_master));
    m_slave = open(ptsname(m_master), O_RDWR | O_NOCTTY | O_CLOEXEC);
    winsize size = {};
    size.ws_row = 25;
    size.ws_col = columns;
    EXPECT_EQ(ioctl(m_slave, TIOCSWINSZ, &size), 0);
    termios modes = {};
    EXPECT_EQ(tcgetattr(m_slave, &modes), 0);
    modes.c_oflag &= ~static_cast<tcflag_t>(OPOST);
    EXPECT_EQ(tcsetattr(m_slave, TCSANOW, &modes), 0);
    m_reader = std::thread([this] {
        std::array<char, 4096> buffer;
        ssize_t count = 0;
        // Fails when the other side is closed.
        while ((count = read(m_master, buffer.data(), buffer.size())) > 0) {
            m_bytes.append(buffer.data(), static_cast<int>(count));
        }
    });
}

PseudoTerminal::~PseudoTerminal() {
    text();
    close(m_master);
}

QString PseudoTerminal::text() {
    if (m_reader.joinable()) {
        close(m_slave);
        m_reader.join();
    }
    return QString::fromUtf8(m_bytes);
}
