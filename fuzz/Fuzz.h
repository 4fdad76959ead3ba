#pragma once

#include <QByteArray>
#include <QString>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

/// What the fuzzers share.
namespace Fuzz {

inline QByteArray bytesOf(const std::uint8_t* data, std::size_t size) {
    return {reinterpret_cast<const char*>(data), static_cast<int>(size)};
}

/// The bytes as UTF-16, whatever they are: zeros and halves of characters, too. An odd last byte is left out.
inline QString utf16Of(const QByteArray& bytes) {
    QString text(bytes.size() / 2, QChar());
    for (int i = 0; i < text.size(); ++i) {
        text[i] = QChar(static_cast<uchar>(bytes.at(2 * i)), static_cast<uchar>(bytes.at(2 * i + 1)));
    }
    return text;
}

/// Ends the run where something does not hold; libFuzzer then keeps the input that shows it.
inline void require(bool holds, const char* what) {
    if (!holds) {
        std::fprintf(stderr, "Does not hold: %s\n", what);
        std::abort();
    }
}

} // namespace Fuzz
