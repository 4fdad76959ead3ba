#include "find/catalogue/Catalogue.h"
#include "find/catalogue/FinderTypes.h"

#include "common/QtPrinters.h"

#include <gtest/gtest.h>

namespace {

using namespace Find;

/// All faults, a line each, with or without their places.
std::string faultsOf(const QByteArray& json, bool withPlaces) {
    CatalogueFaults faults;
    if (parseCatalogue(json, faults)) {
        return "no fault";
    }
    QStringList lines;
    for (const CatalogueFault& fault : faults) {
        const bool isPlaced = withPlaces && fault.line > 0;
        lines.append((isPlaced ? QString("%1:%2: ").arg(fault.line).arg(fault.column) : QString()) + fault.message);
    }
    return lines.join("\n").toStdString();
}

std::string faultOf(const QByteArray& json) {
    return faultsOf(json, false);
}

std::string placedFaultsOf(const QByteArray& json) {
    return faultsOf(json, true);
}

Catalogue parse(const QByteArray& json) {
    CatalogueFaults faults;
    const std::optional<Catalogue> catalogue = parseCatalogue(json, faults);
    EXPECT_TRUE(catalogue.has_value()) << faults.front().message.toStdString();
    return catalogue.value_or(Catalogue());
}

/// A catalogue whose one game has this finder.
QByteArray withFinder(const QByteArray& finder) {
    return R"({"games": [{"name": "G", "finders": [)" + finder + "]}]}";
}

FinderEntry parseFinder(const QByteArray& finder) {
    const Catalogue catalogue = parse(withFinder(finder));
    return catalogue.empty() ? FinderEntry() : catalogue.front().finders.front();
}

std::string typeOf(const FinderEntry& entry) {
    return entry.type != nullptr ? entry.type->name : "none";
}

constexpr const char* folderX = R"({"type": "folder", "folder": "X", "executables": []})";

TEST(Catalogue, GamesAndFindersKeepTheirOrder) {
    const Catalogue catalogue = parse(R"({"games": [
        {"name": "Zebra", "finders": [{"type": "folder", "folder": "D:\\Z", "executables": ["z.exe", "y.exe"]},
                                      {"type": "universalApp", "packageFamily": "Z_1"}]},
        {"name": "Ameise", "finders": []}]})");

    ASSERT_EQ(catalogue.size(), 2u);
    EXPECT_EQ(catalogue[0].name, "Zebra");
    ASSERT_EQ(catalogue[0].finders.size(), 2u);
    EXPECT_EQ(typeOf(catalogue[0].finders[0]), "folder");
    EXPECT_EQ(catalogue[0].finders[0].subject, "D:\\Z");
    EXPECT_EQ(catalogue[0].finders[0].executables, (QStringList{"z.exe", "y.exe"}));
    EXPECT_EQ(typeOf(catalogue[0].finders[1]), "universalApp");
    EXPECT_EQ(catalogue[1].name, "Ameise");
    EXPECT_TRUE(catalogue[1].finders.empty());
}

TEST(Catalogue, MatchModeIsAnyWholeNumberAndZeroWhenLeftOut) {
    const QByteArray finder = R"({"type": "uninstall", "displayName": "X", "executables": [], "matchMode": %})";
    EXPECT_EQ(parseFinder(R"({"type": "uninstall", "displayName": "X", "executables": []})").matchMode, 0);
    EXPECT_EQ(parseFinder(QByteArray(finder).replace('%', "1")).matchMode, 1);
    EXPECT_EQ(parseFinder(QByteArray(finder).replace('%', "-7")).matchMode, -7);
    EXPECT_EQ(parseFinder(QByteArray(finder).replace('%', "2147483647")).matchMode, 2147483647);

    const std::string fault = "games[0].finders[0].matchMode: a whole number of 32 bits is needed";
    EXPECT_EQ(faultOf(withFinder(QByteArray(finder).replace('%', "0.5"))), fault);
    EXPECT_EQ(faultOf(withFinder(QByteArray(finder).replace('%', "2147483648"))), fault);
    EXPECT_EQ(faultOf(withFinder(QByteArray(finder).replace('%', "1e300"))), fault);
    EXPECT_EQ(faultOf(withFinder(QByteArray(finder).replace('%', "true"))),
              "games[0].finders[0].matchMode: a number is needed, not a truth value");
}

TEST(Catalogue, MultiFindersNest) {
    const FinderEntry entry = parseFinder(R"({"type": "multi", "finders": [
        {"type": "multi", "finders": [{"type": "folder", "folder": "deep", "executables": []}]}]})");
    ASSERT_EQ(entry.finders.size(), 1u);
    ASSERT_EQ(entry.finders[0].finders.size(), 1u);
    EXPECT_EQ(entry.finders[0].finders[0].subject, "deep");

    EXPECT_EQ(faultOf(withFinder(R"({"type": "multi", "finders": [{"type": "multi", "finders": [{}]}]})")),
              "games[0].finders[0].finders[0].finders[0]: \"type\" is missing");
}

TEST(Catalogue, AGameHasElevenFindersAtMost) {
    const QByteArray ten = QByteArray(folderX).append(',').repeated(10);
    EXPECT_EQ(parse(withFinder(ten + folderX)).front().finders.size(), 11u);

    const std::string more = "12 finders are more than a game can have (11; put some into a \"multi\")";
    EXPECT_EQ(faultOf(withFinder(ten + folderX + ',' + folderX)), "games[0].finders: " + more);
    EXPECT_EQ(faultOf(withFinder(R"({"type": "multi", "finders": [)" + ten + folderX + ',' + folderX + "]}")),
              "games[0].finders[0].finders: " + more);
}

TEST(Catalogue, LettersOutsideAsciiAndAByteOrderMarkPass) {
    const QByteArray json = "\xEF\xBB\xBF{\"games\": [{\"name\": \"Käfer 王\", \"finders\": []}]}";
    EXPECT_EQ(parse(json).front().name, "Käfer 王");
    EXPECT_EQ(placedFaultsOf("\xEF\xBB\xBF{\"games\" []}"), "1:10: \":\" is expected");
}

TEST(Catalogue, AFinderWithoutAKnownTypeHasItsOtherFaultsTold) {
    EXPECT_EQ(faultOf(withFinder(R"({"typ": "steam", "appId": "1"})")),
              "games[0].finders[0]: \"type\" is missing\n"
              "games[0].finders[0]: unknown field \"typ\"; did you mean \"type\"?");
    EXPECT_EQ(faultOf(withFinder(R"({"type": "stem", "appId": "1", "appId": "2"})")),
              "games[0].finders[0]: unknown type \"stem\"; did you mean \"steam\"?\n"
              "games[0].finders[0]: \"appId\" appears twice");
}

TEST(Catalogue, AnUnknownTypeNamesTheOnesThatCanBeMeant) {
    EXPECT_EQ(faultOf(withFinder(R"({"type": "stem"})")),
              "games[0].finders[0]: unknown type \"stem\"; did you mean \"steam\"?");
    EXPECT_EQ(faultOf(withFinder(R"({"type": "zwölf"})")),
              "games[0].finders[0]: unknown type \"zwölf\" (known: uninstall, gameForWindow, steam, multi, startMenu, "
              "folder, oculusStore, epicStore, universalApp, userProvidedLocation)");
    EXPECT_EQ(faultOf(withFinder(R"({"type": 3})")), "games[0].finders[0].type: a string is needed, not a number");
}

TEST(Catalogue, MissingFieldsAreNamed) {
    EXPECT_EQ(faultOf("{}"), "\"games\" is missing");
    EXPECT_EQ(faultOf(R"({"games": [{"finders": []}]})"), "games[0]: \"name\" is missing");
    EXPECT_EQ(faultOf(R"({"games": [{"name": "a", "finders": []}, {"name": "b"}]})"),
              "games[1]: \"finders\" is missing");
    EXPECT_EQ(faultOf(withFinder(R"({"type": "folder", "executables": []})")),
              "games[0].finders[0]: \"folder\" is missing");
}

TEST(Catalogue, EveryFieldButANumberMustBeThere) {
    for (const FinderType& type : finderTypes()) {
        QStringList missing;
        for (const FinderField& field : type.fields) {
            if (!std::holds_alternative<int FinderEntry::*>(field.target)) {
                missing.append(QString("games[0].finders[0]: \"%1\" is missing").arg(field.name));
            }
        }
        EXPECT_EQ(faultOf(withFinder(R"({"type": ")" + QByteArray(type.name) + "\"}")),
                  missing.join("\n").toStdString());
    }
}

TEST(Catalogue, MisspeltFieldsAreNamed) {
    EXPECT_EQ(faultOf(R"({"games": [], "game": []})"), "unknown field \"game\"; did you mean \"games\"?");
    EXPECT_EQ(faultOf(R"({"games": [{"name": "a", "finders": [], "x": 1}]})"),
              "games[0]: unknown field \"x\" (known: name, finders)");
    EXPECT_EQ(faultOf(withFinder(R"({"type": "folder", "folder": "X", "executables": [], "exectuables": []})")),
              "games[0].finders[0]: unknown field \"exectuables\"; did you mean \"executables\"?");
    EXPECT_EQ(faultOf(withFinder(R"({"type": "folder", "folder": "X", "executables": [], "matchMode": 1})")),
              "games[0].finders[0]: unknown field \"matchMode\" (known: type, folder, executables)");
}

TEST(Catalogue, AllFaultsAreToldInOneRunWithTheirPlaces) {
    EXPECT_EQ(placedFaultsOf(R"({
    "games": [
        {"name": "a", "finders": [
            {"type": "stem", "appId": "1"},
            {"type": "folder", "folder": 7,
             "exectuables": []}
        ]},
        {"name": "a", "finders": {}, "name": "b"},
        null
    ],
    "$schema": 1
})"),
              "4:22: games[0].finders[0]: unknown type \"stem\"; did you mean \"steam\"?\n"
              "5:13: games[0].finders[1]: \"executables\" is missing\n"
              "5:42: games[0].finders[1].folder: a string is needed, not a number\n"
              "6:14: games[0].finders[1]: unknown field \"exectuables\"; did you mean \"executables\"?\n"
              "8:18: games[1]: there is a game \"a\" already\n"
              "8:34: games[1].finders: a list is needed, not an object\n"
              "8:38: games[1]: \"name\" appears twice\n"
              "9:9: games[2]: an object is needed, not null\n"
              "11:16: $schema: a string is needed, not a number");
}

TEST(Catalogue, FieldsThatAreThereTwiceAreFaults) {
    EXPECT_EQ(placedFaultsOf("{\"games\": [],\n \"games\": []}"), "2:2: \"games\" appears twice");
    EXPECT_EQ(placedFaultsOf(withFinder("\n"
                                        R"({"type": "folder", "folder": "X", "folder": "Y", "executables": []})")),
              "2:35: games[0].finders[0]: \"folder\" appears twice");
    EXPECT_EQ(faultOf(withFinder(R"({"type": "folder", "type": "folder", "folder": "Y", "executables": []})")),
              "games[0].finders[0]: \"type\" appears twice");
}

TEST(Catalogue, ASchemaCanBeNamed) {
    EXPECT_EQ(parse(R"({"$schema": "catalogue.schema.json", "games": []})").size(), 0u);
}

TEST(Catalogue, WrongJsonTypesAreNamed) {
    EXPECT_EQ(faultOf("[]"), "an object is needed, not a list");
    EXPECT_EQ(faultOf(R"({"games": {}})"), "games: a list is needed, not an object");
    EXPECT_EQ(faultOf(R"({"games": [null]})"), "games[0]: an object is needed, not null");
    EXPECT_EQ(faultOf(R"({"games": [{"name": 1, "finders": []}]})"), "games[0].name: a string is needed, not a number");
    EXPECT_EQ(faultOf(R"({"games": [{"name": "a", "finders": {}}]})"),
              "games[0].finders: a list is needed, not an object");
    EXPECT_EQ(faultOf(withFinder("[]")), "games[0].finders[0]: an object is needed, not a list");
    EXPECT_EQ(faultOf(withFinder(R"({"type": "folder", "folder": "X", "executables": "a.exe"})")),
              "games[0].finders[0].executables: a list is needed, not a string");
    EXPECT_EQ(faultOf(withFinder(R"({"type": "folder", "folder": "X", "executables": ["a", false]})")),
              "games[0].finders[0].executables[1]: a string is needed, not a truth value");
}

TEST(Catalogue, NamesAreThereAndDiffer) {
    EXPECT_EQ(faultOf(R"({"games": [{"name": "", "finders": []}]})"), "games[0]: \"name\" is empty");
    EXPECT_EQ(faultOf("{\"games\": [{\"name\": \"Käfer\", \"finders\": []},"
                      " {\"name\": \"KÄFER\", \"finders\": []}]}"),
              "games[1]: there is a game \"KÄFER\" already");
}

TEST(Catalogue, ABackslashThatIsNotDoubledIsNoted) {
    EXPECT_EQ(placedFaultsOf("{\"games\": [\n  \"D:\\Games\"]}"), "2:6: a backslash in a string must be doubled");
    EXPECT_EQ(faultOf(withFinder(R"({"type": "folder", "folder": "D:\bin\new", "executables": []})")),
              "games[0].finders[0].folder: a control character in a string (a backslash is written \\\\)");
}

TEST(Catalogue, BrokenJsonHasALineAndAColumn) {
    EXPECT_EQ(placedFaultsOf("{\"games\": [\n    \"K\xC3\xA4\", \"abc\n]}"), "2:11: the string is not closed");
    EXPECT_EQ(placedFaultsOf("{\"games\": [\n]"), "2:2: \",\" or \"}\" is expected");
    EXPECT_EQ(placedFaultsOf("{\"games\": []}\n}"), "2:1: something follows the end");
    EXPECT_EQ(placedFaultsOf("games"), "1:1: a value is expected");
    EXPECT_EQ(placedFaultsOf("\"games\""), "1:1: an object is needed, not a string");
    EXPECT_EQ(placedFaultsOf("{\n  games: []}"), "2:3: a name in quotes is expected");
    EXPECT_EQ(placedFaultsOf("{\"games\": \"a\tb\"}"), "1:13: a control character in a string");
}

TEST(Catalogue, ATextThatCanBeNoCatalogueIsRefused) {
    EXPECT_EQ(faultOf(""), "the file is empty");
    EXPECT_EQ(faultOf(" \r\n"), "the file is empty");
    EXPECT_EQ(faultOf("\xEF\xBB\xBF"), "the file is empty");
    EXPECT_EQ(faultOf("\xE4"), "the file is not UTF-8");
    EXPECT_EQ(faultOf(QByteArray("\xFF\xFE{\0", 4)), "the file is UTF-16; it must be saved as UTF-8");
}

TEST(Catalogue, DeepNestingIsAFaultAndNoCrash) {
    QByteArray finder = folderX;
    for (int i = 0; i < 2000; ++i) {
        finder = R"({"type":"multi","finders":[)" + finder + "]}";
    }
    EXPECT_NE(faultOf(withFinder(finder)).find("too deep"), std::string::npos);
}

TEST(SelectGames, WithoutNamesAllAreSelected) {
    QStringList unknown;
    const Catalogue catalogue = {{"a", {}}, {"b", {}}};
    EXPECT_EQ(selectGames(catalogue, {}, unknown)->size(), 2u);
}

TEST(SelectGames, NamesAreMatchedWholeAndIgnoringCaseInTheCataloguesOrder) {
    QStringList unknown;
    const Catalogue catalogue = {{"Käfer", {}}, {"Käferrennen", {}}, {"Wal", {}}};
    const QStringList names = {"WAL", "KÄFER", "wal"};
    const std::optional<Catalogue> games = selectGames(catalogue, names, unknown);
    ASSERT_TRUE(games.has_value());
    ASSERT_EQ(games->size(), 2u);
    EXPECT_EQ((*games)[0].name, "Käfer");
    EXPECT_EQ((*games)[1].name, "Wal");
}

TEST(SelectGames, AllUnknownNamesAreTold) {
    QStringList unknown;
    const Catalogue catalogue = {{"Wal", {}}};
    const QStringList names = {"Wal", "Wa", "x"};
    EXPECT_FALSE(selectGames(catalogue, names, unknown).has_value());
    EXPECT_EQ(unknown, (QStringList{"Wa", "x"}));
}

} // namespace
