#include "recordings/PcFile.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

/// What was read and written reads as what it is.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto read = [](const QByteArray& bytes, QString& fault) {
        Recordings::JsonFault jsonFault;
        std::vector<Recordings::Problem> problems;
        const auto json = Recordings::parseJson(bytes, jsonFault);
        return json ? Recordings::readPcFile(*json, QStringLiteral("pc.json"), fault, problems) : Recordings::Pc();
    };
    QString fault;
    const Recordings::Pc pc = read(QByteArray(reinterpret_cast<const char*>(data), static_cast<int>(size)), fault);
    if (!(read(Recordings::renderPcFile(pc), fault) == pc)) {
        std::abort();
    }
    return 0;
}
