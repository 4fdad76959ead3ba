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
    program.setVariable("XDG_DATA_HOME", program.folder());
    program.setVariable("XDG_CONFIG_HOME", program.folder() + "/settings");
    return {"--pc", program.file("pc.json", Recordings::renderPcFile(pc))};
}
