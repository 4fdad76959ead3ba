#include "randompcs/World.h"

#include "find/FindProgram.h"
#include "recordings/PcFile.h"

class RandomWorld::Planted {};

RandomWorld::RandomWorld() = default;

RandomWorld::~RandomWorld() = default;

QMap<QChar, QString> RandomWorld::volumes() const {
    return {{'C', "\\\\?\\Volume{C}\\"}, {'D', "\\\\?\\Volume{D}\\"}, {'E', "\\\\?\\Volume{E}\\"}};
}

QStringList RandomWorld::plant(const Recordings::Pc& pc, FindProgram& program) {
    return {"--pc", program.file("pc.json", Recordings::renderPcFile(pc))};
}
