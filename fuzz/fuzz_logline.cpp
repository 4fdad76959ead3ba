#include "fuzz/Fuzz.h"
#include "fuzz/LoggingSystem.h"
#include "support/Logger.h"

/// Any text reaches the log as it is, up to its first 0, and the line goes on behind it.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QString text = Fuzz::utf16Of(Fuzz::bytesOf(data, size));
    Fuzz::LoggingSystem pc;
    Logger logger = Logger::create("Fuzz");
    pc.log.clear();
    logger.logAlways("before %ls, %d, %ls behind", qUtf16Printable(text), 7, qUtf16Printable(text));

    const QByteArray utf8 = text.left(text.indexOf(QChar())).toUtf8();
    const QByteArray line = " A: before " + utf8 + ", 7, " + utf8 + " behind\n";
    constexpr int timeLength = 23;
    Fuzz::require(pc.log.endsWith(line), "the line");
    Fuzz::require(pc.log.size() == timeLength + line.size(), "and nothing else");
    return 0;
}
