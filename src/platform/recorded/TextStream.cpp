#include "platform/TextStream.h"

#include "recordings/DrivePath.h"

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

constexpr char32_t replacement = 0xFFFD;

struct Form {
    unsigned char mask;
    unsigned char lead;
    unsigned short length;
    char32_t least; // smaller numbers have a shorter form
};

constexpr Form forms[] = {
    {0x80, 0x00, 1, 0x0},
    {0xE0, 0xC0, 2, 0x80},
    {0xF0, 0xE0, 3, 0x800},
    {0xF8, 0xF0, 4, 0x10000},
};

bool isCharacter(char32_t c) {
    return c <= 0x10FFFF && !(c >= 0xD800 && c <= 0xDFFF);
}

/// The character of `form` that `text` begins with; `replacement` when it doesn't.
char32_t decode(std::string_view text, const Form& form) {
    if (text.size() < form.length) {
        return replacement;
    }
    char32_t character = static_cast<unsigned char>(text.front()) & static_cast<unsigned char>(~form.mask);
    for (size_t i = 1; i < form.length; ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        if ((byte & 0xC0U) != 0x80U) {
            return replacement;
        }
        character = (character << 6U) | (byte & 0x3FU);
    }
    return character >= form.least && isCharacter(character) ? character : replacement;
}

/// Reads UTF-8 character by character without allocating. Each faulty byte reads as U+FFFD.
class Utf8Reader {
public:
    explicit Utf8Reader(std::string_view text)
        : m_text(text) {}

    bool atEnd() const { return m_text.empty(); }

    /// The next character. Only while not at the end.
    char32_t next() noexcept {
        const auto lead = static_cast<unsigned char>(m_text.front());
        for (const Form& form : forms) {
            if ((lead & form.mask) != form.lead) {
                continue;
            }
            const char32_t character = decode(m_text, form);
            m_text.remove_prefix(character == replacement ? 1 : form.length);
            return character;
        }
        m_text.remove_prefix(1);
        return replacement;
    }

private:
    std::string_view m_text;
};

class Utf16Stream : public TextStream {
public:
    explicit Utf16Stream(FileHandle file)
        : m_file(std::move(file)) {}

    void writeMark() noexcept { put(0xFEFF); }

    void write(std::string_view utf8) noexcept override {
        Utf8Reader reader(utf8);
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
