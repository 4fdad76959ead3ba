#pragma once

#include "recordings/Pc.h"

#include <QByteArray>

/// A PC that is made up by lot, with something for every finder, and a catalogue of games, of which some are there,
/// some nearly and some not.
struct RandomPc {
    Recordings::Pc pc;
    QByteArray catalogue;
};

/// The same PC for the same seed and the same names of volumes, by drive letter, in every build.
RandomPc makeRandomPc(quint32 seed, const QMap<QChar, QString>& volumes);
