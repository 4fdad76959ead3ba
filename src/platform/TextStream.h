#pragma once

#include <QString>
#include <QtGlobal>

#include <memory>
#include <string_view>

/// Text files to write to.
namespace Platform {

/// A C-runtime stream in text mode: each "\n" reaches the disk as CR LF, in every build. Writing never throws and
/// never loses a line for its characters; errors of the disk are ignored, as nobody could be told.
class TextStream {
public:
    virtual ~TextStream() = default;
    virtual void write(std::string_view utf8) noexcept = 0;
    virtual void flush() noexcept = 0;

protected:
    TextStream() = default;
    Q_DISABLE_COPY_MOVE(TextStream)
};

/// _wfsopen with share flag _SH_DENYNO and one of the modes "at", "wt", "at, ccs=UNICODE", "wt, ccs=UNICODE". Plain
/// modes write UTF-8; the Unicode ones write UTF-16LE after a byte-order mark that a new file begins with. In the mode
/// "at", what several processes flush to one file comes one behind the other. Destroying the stream closes the file.
/// Null when it cannot be opened.
std::unique_ptr<TextStream> openShared(const QString& path, const char* mode);

} // namespace Platform
