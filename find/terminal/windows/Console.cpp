#include "find/terminal/Console.h"

#include <windows.h>

#include <algorithm>

namespace Find {

namespace {

HANDLE handleOf(Stream stream) {
    return GetStdHandle(stream == Stream::Output ? STD_OUTPUT_HANDLE : STD_ERROR_HANDLE);
}

/// Lets a stream's terminal obey escape sequences, as long as it lives. Does nothing to a file or pipe, and where the
/// system is too old.
class Escapes {
public:
    explicit Escapes(HANDLE handle)
        : m_handle(handle) {
        const DWORD modes = ENABLE_PROCESSED_OUTPUT | ENABLE_VIRTUAL_TERMINAL_PROCESSING;
        m_isSet = GetConsoleMode(handle, &m_modeBefore) != 0 && SetConsoleMode(handle, m_modeBefore | modes) != 0;
    }

    ~Escapes() {
        if (m_isSet) {
            SetConsoleMode(m_handle, m_modeBefore);
        }
    }

private:
    Q_DISABLE_COPY_MOVE(Escapes)

    HANDLE m_handle;
    DWORD m_modeBefore = 0;
    bool m_isSet = false;
};

} // namespace

/// The code page and the modes belong to the terminal and would outlive the program. Both streams are the same terminal
/// as a rule: the one that was set last is put back first.
struct Console::Before {
    Before() { SetConsoleOutputCP(CP_UTF8); }

    ~Before() {
        if (m_codePage != 0) {
            SetConsoleOutputCP(m_codePage);
        }
    }

private:
    Q_DISABLE_COPY_MOVE(Before)

    UINT m_codePage = GetConsoleOutputCP();
    Escapes m_output{handleOf(Stream::Output)};
    Escapes m_errors{handleOf(Stream::Errors)};
};

Console::Console()
    : m_before(std::make_unique<Before>()) {}

Console::~Console() = default;

TerminalFacts Console::facts(Stream stream) {
    TerminalFacts facts;
    DWORD mode = 0;
    facts.isTerminal = GetConsoleMode(handleOf(stream), &mode) != 0;
    facts.obeysEscapes = (mode & ENABLE_VIRTUAL_TERMINAL_PROCESSING) != 0;
    CONSOLE_SCREEN_BUFFER_INFO info = {};
    if (facts.isTerminal && GetConsoleScreenBufferInfo(handleOf(stream), &info) != 0) {
        // One less than there is, as a character in the last column begins a new line there and then.
        facts.width = std::max(info.srWindow.Right - info.srWindow.Left, 0);
    }
    return facts;
}

bool Console::write(Stream stream, const QString& text) {
    const HANDLE handle = handleOf(stream);
    DWORD mode = 0;
    if (GetConsoleMode(handle, &mode) == 0) {
        return writeUtf8(stream, text);
    }
    // The C library writes to a console byte by byte, and no letter outside ASCII would arrive.
    constexpr int most = 8000; // a console takes so much at once
    for (int start = 0; start < text.size();) {
        QString piece = text.mid(start, most);
        if (piece.size() == most && piece.at(most - 1).isHighSurrogate()) {
            piece.chop(1);
        }
        DWORD written = 0;
        const auto size = static_cast<DWORD>(piece.size());
        if (WriteConsoleW(handle, piece.utf16(), size, &written, nullptr) == 0 || written != size) {
            return false;
        }
        start += piece.size();
    }
    return true;
}

bool Console::isOwnWindow() {
    DWORD mode = 0;
    DWORD processes[2] = {};
    return GetConsoleMode(GetStdHandle(STD_INPUT_HANDLE), &mode) != 0 &&
           GetConsoleMode(handleOf(Stream::Output), &mode) != 0 && GetConsoleProcessList(processes, 2) == 1;
}

QString Console::readLine() {
    wchar_t line[256] = {};
    DWORD length = 0;
    ReadConsoleW(GetStdHandle(STD_INPUT_HANDLE), line, 255, &length, nullptr);
    return QString::fromWCharArray(line, static_cast<int>(length));
}

void Console::waitForKey() {
    HANDLE input = GetStdHandle(STD_INPUT_HANDLE);
    FlushConsoleInputBuffer(input);
    INPUT_RECORD record = {};
    DWORD count = 0;
    bool isKey = false;
    while (!isKey && ReadConsoleInputW(input, &record, 1, &count) != 0) {
        isKey = record.EventType == KEY_EVENT && record.Event.KeyEvent.bKeyDown != FALSE;
    }
}

} // namespace Find
