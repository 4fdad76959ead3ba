#include "randompcs/RandomPc.h"
#include "randompcs/World.h"

#include "common/QtPrinters.h"
#include "find/FindProgram.h"
#include "find/catalogue/FinderTypes.h"
#include "find/pc/System.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMap>

#include <algorithm>

namespace {

/// How many PCs and from which seed on; the environment can say otherwise, so that another thousand need no other
/// program.
constexpr int usualCount = 50;
constexpr int usualFirst = 1;

int numberIn(const char* variable, int usual) {
    return qEnvironmentVariableIsSet(variable) ? qEnvironmentVariableIntValue(variable) : usual;
}

/// How many searches of a kind found something, and how many did not.
struct Score {
    int found = 0;
    int missed = 0;
};

/// Of every kind of finder, and of every runtime.
using Scores = QMap<QString, Score>;

void count(bool isFound, const QString& kind, Scores& scores) {
    ++(isFound ? scores[kind].found : scores[kind].missed);
}

constexpr int runtimeCount = 8;

/// Wine has no functions for app packages.
bool canBeFound(const QString& kind) {
    return kind != "universalApp" || !Find::isPcItself();
}

void countAnswers(const QByteArray& catalogue, const QString& output, Scores& scores) {
    const QJsonArray games = QJsonDocument::fromJson(catalogue).object()["games"].toArray();
    const QJsonObject answers = QJsonDocument::fromJson(output.toUtf8()).object();
    for (int i = 0; i < games.size(); ++i) {
        const QString kind = games[i].toObject()["finders"].toArray()[0].toObject()["type"].toString();
        count(answers["games"].toArray()[i].toObject()["found"].toBool(), kind, scores);
    }
    const QJsonObject runtimes = answers["runtimes"].toObject();
    for (auto runtime = runtimes.begin(); runtime != runtimes.end(); ++runtime) {
        const bool isFound = !runtime.value().toString().isEmpty() || !runtime.value().toArray().isEmpty();
        count(isFound, runtime.key(), scores);
    }
}

bool asksForAFolder(const QJsonObject& finder) {
    const QJsonArray members = finder["finders"].toArray();
    return finder["type"] == "folder" || std::any_of(members.begin(), members.end(), [](const QJsonValue& member) {
               return asksForAFolder(member.toObject());
           });
}

/// Those games that can be found although nobody knew of them when the PC was recorded: without folders that only the
/// catalogue tells.
QByteArray withoutFolders(const QByteArray& catalogue) {
    QJsonArray games;
    for (const QJsonValue& game : QJsonDocument::fromJson(catalogue).object()["games"].toArray()) {
        if (!asksForAFolder(game.toObject())) {
            games.append(game);
        }
    }
    return QJsonDocument(QJsonObject{{"games", games}}).toJson();
}

/// One PC, there as long as this.
class PcUnderTest {
public:
    explicit PcUnderTest(int seed)
        : m_made(makeRandomPc(static_cast<quint32>(seed), m_world.volumes())) {
        // Names that no answer has, so that all answers must stay as they are.
        m_made.pc.environment.insert("USERNAME", "Ottokar");
        m_made.pc.environment.insert("USERPROFILE", "C:\\Users\\Ottokar");
        m_made.pc.environment.insert("COMPUTERNAME", "LUCHS-PC");
        m_arguments = m_world.plant(m_made.pc, m_program);
        m_catalogue = m_program.file("games.json", m_made.catalogue);
    }

    const QByteArray& catalogue() const { return m_made.catalogue; }

    /// What the program answers here.
    FindRun ask() const { return m_program.runBare(m_arguments + QStringList{"--json", m_catalogue}); }

    /// The file that it makes.
    QString record() const { return record("recording.json", m_catalogue); }

    /// Whether a recording answers as the PC does.
    void expectSameAnswers(const FindRun& answers, const QString& recording) const {
        expectSame(answers, recording, m_catalogue);
    }

    /// The same when nobody knew a game while it was recorded.
    void expectSameAnswersUnasked() const {
        const QString games = m_program.file("without-folders.json", withoutFolders(m_made.catalogue));
        const QString recording = record("unasked.json", m_program.file("none.json", R"({"games": []})"));
        expectSame(m_program.runBare(m_arguments + QStringList{"--json", games}), recording, games);
    }

private:
    QString record(const QString& name, const QString& catalogue) const {
        const QString file = m_program.folder() + '/' + name;
        const FindRun run = m_program.runBare(m_arguments + QStringList{"record", file, catalogue});
        EXPECT_EQ(run.exitStatus, 0) << run.errors.toStdString();
        return file;
    }

    void expectSame(const FindRun& answers, const QString& recording, const QString& catalogue) const {
        const FindRun again = m_program.runBare({"--pc", recording, "--json", catalogue});
        EXPECT_EQ(again.output, answers.output);
        EXPECT_EQ(again.errors, answers.errors);
    }

    FindProgram m_program;
    RandomWorld m_world;
    RandomPc m_made;
    QStringList m_arguments;
    QString m_catalogue;
};

void write(const QString& path, const QByteArray& contents) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
    EXPECT_EQ(file.write(contents), contents.size());
}

/// What it takes to ask again, on another system: the recording, the catalogue and the answers.
void hand(const QString& folder, const PcUnderTest& pc, const QString& recording, const FindRun& answers) {
    EXPECT_TRUE(QFile::copy(recording, folder + "/recording.json"));
    write(folder + "/games.json", pc.catalogue());
    write(folder + "/answers.json", answers.output.toUtf8());
    write(folder + "/complaints.txt", answers.errors.toUtf8());
}

/// The seeds of one run.
class RandomPcsTest : public ::testing::Test {
protected:
    void recordAndReplay(int seed) {
        const PcUnderTest pc(seed);
        const FindRun answers = pc.ask();
        EXPECT_TRUE(answers.exitStatus == 0 || answers.exitStatus == 1) << answers.errors.toStdString();
        countAnswers(pc.catalogue(), answers.output, scores);
        const QString recording = pc.record();
        if (!handedTo.isEmpty()) {
            const QString folder = handedTo + '/' + QString::number(seed);
            EXPECT_TRUE(QDir().mkpath(folder));
            hand(folder, pc, recording, answers);
            return;
        }
        pc.expectSameAnswers(answers, recording);
        pc.expectSameAnswersUnasked();
    }

    const int first = numberIn("LURULUDRI_FIRST_SEED", usualFirst);
    const int count = numberIn("LURULUDRI_RANDOM_PCS", usualCount);

    /// A folder for whoever replays the recordings; empty when this test does.
    const QString handedTo = qEnvironmentVariable("LURULUDRI_RANDOM_PCS_FOLDER");

    Scores scores;
};

TEST_F(RandomPcsTest, AnswerAsTheyDidWhenTheyWereRecorded) {
    for (int seed = first; seed < first + count; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        recordAndReplay(seed);
    }
    std::printf("seeds %d to %d\n", first, first + count - 1);
    for (auto score = scores.begin(); score != scores.end(); ++score) {
        std::printf("  %-26s found %4d, not found %4d\n", qUtf8Printable(score.key()), score->found, score->missed);
        if (count >= usualCount) { // a PC alone has not everything
            EXPECT_EQ(score->found > 0, canBeFound(score.key())) << qUtf8Printable(score.key());
            EXPECT_GT(score->missed, 0) << qUtf8Printable(score.key());
        }
    }
    EXPECT_EQ(scores.size(), static_cast<int>(Find::finderTypes().size()) + runtimeCount);
}

} // namespace
