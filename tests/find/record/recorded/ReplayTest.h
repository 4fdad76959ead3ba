#pragma once

#include "FindProgram.h"

#include "common/QtPrinters.h"

#include <gtest/gtest.h>

#include <QFile>

/// Files that the program makes of a recorded PC in its folder, and the answers that they give.
class ReplayTest : public ::testing::Test {
protected:
    QString path(const QString& name) const { return program.folder() + '/' + name; }

    QString contents(const QString& name) const {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
        return QString::fromUtf8(file.readAll());
    }

    /// The answers for a catalogue on a recorded PC.
    QString answers(const QString& pc, const QString& catalogue) const {
        const FindRun run = program.runBare({"--pc", pc, "--json", catalogue});
        EXPECT_EQ(run.errors, "");
        return run.output;
    }

    const FindProgram program;
    const QString samplePc = LURULUDRI_SAMPLES "/pc";
    const QString sampleCatalogue = LURULUDRI_SAMPLES "/catalogue.json";
};
