#pragma once

#include <string_view>

namespace Recordings {

/// Reads UTF-8 character by character without allocating. Each faulty byte reads as U+FFFD.
class Utf8Reader {
public:
    explicit Utf8Reader(std::string_view text)
        : m_text(text) {}

    bool atEnd() const { return m_text.empty(); }

    /// The next character. Only while not at the end.
    char32_t next() noexcept;

private:
    std::string_view m_text;
};

} // namespace Recordings
