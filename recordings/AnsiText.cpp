#include "recordings/AnsiText.h"

#include <QTextCodec>

#include <algorithm>
#include <iterator>

namespace Recordings {

namespace {

// What Windows-1252 has at 0x80 to 0x9F; 0 where the byte stands for the control character of its number.
constexpr char16_t upperControls[] = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178,
};

char ansiByte(char16_t unit) {
    const auto* const found = std::find(std::begin(upperControls), std::end(upperControls), unit);
    if (unit != 0 && found != std::end(upperControls)) {
        return static_cast<char>(0x80 + (found - std::begin(upperControls)));
    }
    const bool isOverridden = unit >= 0x80 && unit < 0xA0 && upperControls[unit - 0x80] != 0;
    return unit < 0x100 && !isOverridden ? static_cast<char>(unit) : '?';
}

struct CodePage {
    int number;
    const char* codec;
};

constexpr CodePage codePages[] = {
    {874, "TIS-620"},       {932, "Shift_JIS"},     {936, "GBK"},           {949, "EUC-KR"},
    {950, "Big5"},          {1250, "windows-1250"}, {1251, "windows-1251"}, {1253, "windows-1253"},
    {1254, "windows-1254"}, {1255, "windows-1255"}, {1256, "windows-1256"}, {1257, "windows-1257"},
    {1258, "windows-1258"}, {65001, "UTF-8"},
};

// Null for Windows-1252, whose unused bytes Qt does not know, and for what Qt does not know at all.
QTextCodec* codecOf(int codePage) {
    const auto* const found = std::find_if(std::begin(codePages), std::end(codePages),
                                           [codePage](const CodePage& known) { return known.number == codePage; });
    return found != std::end(codePages) ? QTextCodec::codecForName(found->codec) : nullptr;
}

} // namespace

bool isKnownCodePage(int codePage) {
    return codePage == westernCodePage || codecOf(codePage) != nullptr;
}

QByteArray toAnsi(const QString& text, int codePage) {
    if (const QTextCodec* const codec = codecOf(codePage)) {
        return codec->fromUnicode(text);
    }
    QByteArray bytes;
    bytes.reserve(text.size());
    for (const QChar c : text) {
        bytes += ansiByte(c.unicode());
    }
    return bytes;
}

QString fromAnsi(const QByteArray& bytes, int codePage) {
    if (const QTextCodec* const codec = codecOf(codePage)) {
        return codec->toUnicode(bytes);
    }
    QString text = QString::fromLatin1(bytes);
    for (QChar& c : text) {
        const char16_t unit = c.unicode();
        if (unit >= 0x80 && unit < 0xA0 && upperControls[unit - 0x80] != 0) {
            c = QChar(upperControls[unit - 0x80]);
        }
    }
    return text;
}

} // namespace Recordings
