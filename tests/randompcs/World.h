#pragma once

#include "randompcs/RandomPc.h"

#include <QMap>
#include <QString>
#include <QStringList>

#include <memory>

class FindProgram;

/// The world in which a PC that was made up is there: natively as a recording on paper, in the Windows build for real.
class RandomWorld {
public:
    RandomWorld();
    ~RandomWorld();

    /// The names of the drives' volumes.
    QMap<QChar, QString> volumes() const;

    /// Makes the PC, which is there as long as the RandomWorld, for runs of the program with arguments that begin with
    /// those that are returned.
    QStringList plant(const Recordings::Pc& pc, FindProgram& program);

private:
    Q_DISABLE_COPY_MOVE(RandomWorld)

    class Planted;
    std::unique_ptr<Planted> m_planted;
};
