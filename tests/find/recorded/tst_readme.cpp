#include "FindProgram.h"

#include "common/QtPrinters.h"

#include <gtest/gtest.h>

namespace {

/// Expects a block of the README to be what the real plug-in prints of the sample PC.
void expectShown(const QStringList& arguments) {
    const FindProgram program;
    const FindRun run = program.runBare(QStringList{"--pc", LURULUDRI_SAMPLES "/pc"} + arguments);
    EXPECT_EQ(run.errors, "");
    EXPECT_FALSE(run.output.isEmpty());
    EXPECT_TRUE(docText("../README.md").contains("\n```\n" + run.output + "```\n")) << "The README does not show:\n"
                                                                                    << run.output.toStdString();
}

TEST(Readme, ShowsWhatTheProgramPrintsOfTheSamples) {
    expectShown({LURULUDRI_SAMPLES "/catalogue.json"});
}

TEST(Readme, ShowsWhatIsExplainedOfAGameOfTheSamples) {
    expectShown({"explain", "Tiefseelicht", LURULUDRI_SAMPLES "/catalogue.json"});
}

TEST(Readme, ShowsWhatIsSaidOfARecordingOfTheSamples) {
    expectShown({"record", "my-pc", LURULUDRI_SAMPLES "/catalogue.json"});
}

} // namespace
