#include "recordings/Utf8Reader.h"

namespace Recordings {

namespace {

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

} // namespace

char32_t Utf8Reader::next() noexcept {
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

} // namespace Recordings
