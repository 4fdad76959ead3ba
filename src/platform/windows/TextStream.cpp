#include "platform/TextStream.h"

#include "platform/windows/WideText.h"

#include <windows.h>

#include <cstdint>
#include <cstdio>
#include <cstring>
#include <new>

#include <fcntl.h>
#include <io.h>
#include <share.h>

namespace Platform {

namespace {

struct StreamCloser {
    void operator()(std::FILE* stream) const noexcept { std::fclose(stream); }
};

using Stream = std::unique_ptr<std::FILE, StreamCloser>;

/// A plain text-mode stream. The text goes out as bytes, so the runtime's locale has no say in it.
class NarrowStream final : public TextStream {
public:
    explicit NarrowStream(Stream stream)
        : m_stream(std::move(stream)) {}

    void write(std::string_view utf8) noexcept override { std::fwrite(utf8.data(), 1, utf8.size(), m_stream.get()); }

    void flush() noexcept override { std::fflush(m_stream.get()); }

private:
    Stream m_stream;
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

/// As _wfsopen with "at" and _SH_DENYNO, but that the system itself finds the file's end, at each write. The runtime
/// asks for the end and writes there then: over what another process has written in the meantime.
Stream openToAppend(const QString& path) {
    const HANDLE file = ::CreateFileW(wide(path), FILE_APPEND_DATA | SYNCHRONIZE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                      nullptr, OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        return nullptr;
    }
    const int descriptor = ::_open_osfhandle(reinterpret_cast<std::intptr_t>(file), _O_APPEND | _O_TEXT);
    if (descriptor < 0) {
        ::CloseHandle(file);
        return nullptr;
    }
    Stream stream(::_fdopen(descriptor, "at"));
    if (!stream) {
        ::_close(descriptor);
    }
    return stream;
}

} // namespace

std::unique_ptr<TextStream> openShared(const QString& path, const char* mode) {
    const bool appends = std::strcmp(mode, "at") == 0;
    Stream stream(appends ? openToAppend(path)
                          : Stream(::_wfsopen(wide(path), wide(QString::fromLatin1(mode)), _SH_DENYNO)));
    if (!stream) {
        return nullptr;
    }
    if (std::strstr(mode, "ccs=UNICODE") != nullptr) {
        return std::make_unique<UnicodeStream>(std::move(stream));
    }
    return std::make_unique<NarrowStream>(std::move(stream));
}

} // namespace Platform
