#include "platform/TextStream.h"

#include "platform/windows/WideText.h"

#include <windows.h>

#include <array>
#include <cstdio>
#include <cstring>
#include <new>

#include <io.h>
#include <share.h>

namespace Platform {

namespace {

struct StreamCloser {
    void operator()(std::FILE* stream) const noexcept { std::fclose(stream); }
};

using Stream = std::unique_ptr<std::FILE, StreamCloser>;

struct HandleCloser {
    void operator()(void* handle) const noexcept { ::CloseHandle(handle); }
};

using Handle = std::unique_ptr<void, HandleCloser>;

/// The stream's file once more. With no right but to append, all that is written goes to the file's end, wherever
/// others have written meanwhile.
Handle fileOf(std::FILE* stream, const char* mode) {
    const auto own = reinterpret_cast<HANDLE>(::_get_osfhandle(::_fileno(stream)));
    const DWORD access = *mode == 'a' ? FILE_APPEND_DATA | SYNCHRONIZE : FILE_GENERIC_WRITE;
    HANDLE file = nullptr;
    ::DuplicateHandle(::GetCurrentProcess(), own, ::GetCurrentProcess(), &file, access, FALSE, 0);
    return Handle(file);
}

/// As the runtime locks a stream for each of its own calls, so that threads that share one lose nothing.
class StreamLock {
public:
    explicit StreamLock(std::FILE* stream) noexcept
        : m_stream(stream) {
        ::_lock_file(m_stream);
    }

    ~StreamLock() { ::_unlock_file(m_stream); }

private:
    Q_DISABLE_COPY_MOVE(StreamLock)

    std::FILE* m_stream;
};

/// A plain text-mode stream. The text goes out as bytes, so the runtime's locale has no say in it; and past the
/// runtime, which would look for the file's end before each line, though the system itself can write there.
class NarrowStream final : public TextStream {
public:
    NarrowStream(Stream stream, Handle file)
        : m_stream(std::move(stream))
        , m_file(std::move(file)) {}

    ~NarrowStream() override { writeOut(); }

    void write(std::string_view utf8) noexcept override {
        const StreamLock lock(m_stream.get());
        for (const char byte : utf8) {
            if (byte == '\n') {
                put('\r');
            }
            put(byte);
        }
    }

    void flush() noexcept override {
        const StreamLock lock(m_stream.get());
        writeOut();
    }

private:
    void put(char byte) noexcept {
        if (m_size == m_buffer.size()) {
            writeOut();
        }
        m_buffer[m_size] = byte;
        ++m_size;
    }

    void writeOut() noexcept {
        DWORD written = 0;
        if (m_size > 0) {
            ::WriteFile(m_file.get(), m_buffer.data(), static_cast<DWORD>(m_size), &written, nullptr);
        }
        m_size = 0;
    }

    Stream m_stream;
    Handle m_file;
    std::array<char, 4096> m_buffer;
    std::size_t m_size = 0;
};

/// A stream in the runtime's Unicode text mode, which takes wide text only.
class UnicodeStream final : public TextStream {
public:
    explicit UnicodeStream(Stream stream)
        : m_stream(std::move(stream)) {}

    void write(std::string_view utf8) noexcept override {
        try {
            const QString text = QString::fromUtf8(utf8.data(), static_cast<int>(utf8.size()));
            std::fwprintf(m_stream.get(), L"%ls", wide(text));
        } catch (const std::bad_alloc&) {
            // The line is lost, as it would be on a full disk.
        }
    }

    void flush() noexcept override { std::fflush(m_stream.get()); }

private:
    Stream m_stream;
};

} // namespace

std::unique_ptr<TextStream> openShared(const QString& path, const char* mode) {
    Stream stream(::_wfsopen(wide(path), wide(QString::fromLatin1(mode)), _SH_DENYNO));
    if (!stream) {
        return nullptr;
    }
    if (std::strstr(mode, "ccs=UNICODE") != nullptr) {
        return std::make_unique<UnicodeStream>(std::move(stream));
    }
    Handle file = fileOf(stream.get(), mode);
    return file ? std::make_unique<NarrowStream>(std::move(stream), std::move(file)) : nullptr;
}

} // namespace Platform
