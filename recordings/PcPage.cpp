#include "recordings/PcPage.h"

namespace Recordings {

namespace {

// As a browser writes it, too, when it saves the page that it shows.
constexpr const char* pcBegin = "<script type=\"application/json\" id=\"recording\">";
constexpr const char* pcEnd = "</script>";

struct Escape {
    const char* sign;
    const char* inJson;
};

// All of them stand within strings only, where JSON takes them so as well.
constexpr Escape escapes[] = {
    {"&", "\\u0026"}, {"<", "\\u003c"}, {">", "\\u003e"}, {"\xE2\x80\xA8", "\\u2028"}, {"\xE2\x80\xA9", "\\u2029"},
};

} // namespace

QByteArray pcForPage(const QByteArray& json) {
    QByteArray text = json;
    for (const Escape& escape : escapes) {
        text.replace(escape.sign, escape.inJson);
    }
    return text;
}

std::optional<QByteArray> pcInPage(const QByteArray& page, QString& fault) {
    const int at = page.indexOf(pcBegin);
    if (at < 0) {
        fault = QStringLiteral("this page carries no recorded PC");
        return std::nullopt;
    }
    const int begin = at + static_cast<int>(qstrlen(pcBegin));
    const int end = page.indexOf(pcEnd, begin);
    if (end < 0) {
        fault = QStringLiteral("the page is cut off: the recorded PC in it has no end");
        return std::nullopt;
    }
    return QByteArray(page.left(begin).count('\n'), '\n') + page.mid(begin, end - begin);
}

bool isPage(const QByteArray& file) {
    const QByteArray byteOrderMark("\xEF\xBB\xBF");
    return file.mid(file.startsWith(byteOrderMark) ? byteOrderMark.size() : 0).trimmed().startsWith('<');
}

} // namespace Recordings
