#include "platform/TextStream.h"

#include "platform/windows/WideText.h"

#include <windows.h>

#include <cstdio>
#include <cstring>
#include <new>
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

} // namespace

std::unique_ptr<TextStream> openShared(const QString& path, const char* mode) {
    Stream stream(::_wfsopen(wide(path), wide(QString::fromLatin1(mode)), _SH_DENYNO));
    if (!stream) {
        return nullptr;
    }
    if (std::strstr(mode, "ccs=UNICODE") != nullptr) {
        return std::make_unique<UnicodeStream>(std::move(stream));
    }
    return std::make_unique<NarrowStream>(std::move(stream));
}

} // namespace Platform
