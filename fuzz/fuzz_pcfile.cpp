#include "fuzz/Fuzz.h"
#include "recordings/PcFile.h"

namespace {

Recordings::Pc read(const QByteArray& bytes) {
    QString fault;
    Recordings::JsonFault jsonFault;
    std::vector<Recordings::Problem> problems;
    const auto json = Recordings::parseJson(bytes, jsonFault);
    return json ? Recordings::readPcFile(*json, QStringLiteral("pc.json"), fault, problems) : Recordings::Pc();
}

} // namespace

/// What was read and written reads as what it is, and is written the same again.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const Recordings::Pc pc = read(Fuzz::bytesOf(data, size));
    const QByteArray written = Recordings::renderPcFile(pc);
    const Recordings::Pc again = read(written);
    Fuzz::require(again == pc, "read as written");
    Fuzz::require(Recordings::renderPcFile(again) == written, "written the same again");
    return 0;
}
