#include "platform/TextStream.h"

#include "recordings/DrivePath.h"
#include "recordings/Utf8Reader.h"

#include <QFile>

#include <cstdio>

#include <sys/stat.h>

namespace Platform {

namespace {

struct FileCloser {
    void operator()(std::FILE* file) const noexcept { std::fclose(file); }
};

using FileHandle = std::unique_ptr<std::FILE, FileCloser>;

class Utf8Stream : public TextStream {
public:
    explicit Utf8Stream(FileHandle file)
        : m_file(std::move(file)) {}

    void write(std::string_view utf8) noexcept override {
        while (!utf8.empty()) {
            const size_t end = utf8.find('\n');
            const std::string_view line = utf8.substr(0, end);
            std::fwrite(line.data(), 1, line.size(), m_file.get());
            if (end == std::string_view::npos) {
                return;
            }
            std::fwrite("\r\n", 1, 2, m_file.get());
            utf8.remove_prefix(end + 1);
        }
    }

    void flush() noexcept override { std::fflush(m_file.get()); }

private:
    FileHandle m_file;
};

class Utf16Stream : public TextStream {
public:
    explicit Utf16Stream(FileHandle file)
        : m_file(std::move(file)) {}

    void writeMark() noexcept { put(0xFEFF); }

    void write(std::string_view utf8) noexcept override {
        Recordings::Utf8Reader reader(utf8);
        while (!reader.atEnd()) {
            const char32_t character = reader.next();
            if (character == U'\n') {
                put(u'\r');
            }
            if (character > 0xFFFF) {
                put(QChar::highSurrogate(character));
                put(QChar::lowSurrogate(character));
            } else {
                put(static_cast<char16_t>(character));
            }
        }
    }

    void flush() noexcept override { std::fflush(m_file.get()); }

private:
    void put(char16_t unit) noexcept {
        const unsigned char bytes[] = {static_cast<unsigned char>(unit & 0xFF), static_cast<unsigned char>(unit >> 8)};
        std::fwrite(bytes, 1, sizeof bytes, m_file.get());
    }

    FileHandle m_file;
};

bool isEmpty(std::FILE* file) {
    struct stat info {};

    return ::fstat(::fileno(file), &info) == 0 && info.st_size == 0;
}

} // namespace

std::unique_ptr<TextStream> openShared(const QString& path, const char* mode) {
    if (Recordings::DrivePath::parse(path)) {
        return nullptr;
    }
    const std::string_view wanted(mode);
    FileHandle file(std::fopen(QFile::encodeName(path).constData(), wanted.front() == 'a' ? "abe" : "wbe"));
    if (!file) {
        return nullptr;
    }
    if (wanted.find("ccs=UNICODE") == std::string_view::npos) {
        return std::make_unique<Utf8Stream>(std::move(file));
    }
    const bool isNew = isEmpty(file.get());
    auto stream = std::make_unique<Utf16Stream>(std::move(file));
    if (isNew) {
        stream->writeMark();
    }
    return stream;
}

} // namespace Platform
