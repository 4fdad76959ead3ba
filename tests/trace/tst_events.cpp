#include "trace/Events.h"

#include "common/QtPrinters.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <tuple>
#include <type_traits>
#include <vector>

namespace {

// A structured binding names all members, so that one that is new has to be compared here.

#define COMPARE_ALL(Type, ...)                                                                                         \
    bool isSame(const Trace::Type& one, const Trace::Type& other) {                                                    \
        const auto all = [](const Trace::Type& event) {                                                                \
            const auto& [__VA_ARGS__] = event;                                                                         \
            return std::make_tuple(__VA_ARGS__);                                                                       \
        };                                                                                                             \
        return all(one) == all(other);                                                                                 \
    }

} // namespace

namespace Trace {

bool operator==(const KeyPlace& one, const KeyPlace& other) {
    const auto& [root, view, key] = one;
    return root == other.root && view == other.view && key == other.key;
}

} // namespace Trace

namespace {

COMPARE_ALL(Format, library, version)
COMPARE_ALL(Key, place, error)
COMPARE_ALL(Value, place, name, error, type, data)
COMPARE_ALL(SubKeys, place, names)
COMPARE_ALL(Exists, path, found)
COMPARE_ALL(List, path, pattern, names)
COMPARE_ALL(Walk, path, folders, files, hidden, system)
COMPARE_ALL(Read, path, bytes)
COMPARE_ALL(Shortcut, path, target)
COMPARE_ALL(ShellFolder, csidl, path)
COMPARE_ALL(Volume, drive, name)
COMPARE_ALL(Environment, name, value)
COMPARE_ALL(Package, family, supported, fullName, applicationIds)
COMPARE_ALL(UserLocation, key, path)
COMPARE_ALL(Entry, name, folder)
COMPARE_ALL(Log, logger, level, text)
COMPARE_ALL(Note, text)
COMPARE_ALL(FinderBegin, number)
COMPARE_ALL(FinderEnd, number, found)
COMPARE_ALL(IndexBegin, name)
COMPARE_ALL(IndexEnd, name, entries)

const Trace::KeyPlace place{"HKEY_USERS", 32, "Software\\Käfer"};

struct Case {
    Trace::Event event;
    const char* line;
};

const Case cases[] = {
    {Trace::Format{}, R"({"event":"trace","library":"Luruludri","version":1})"},
    {Trace::Key{place, 4294967295},
     R"({"event":"key","root":"HKEY_USERS","view":32,"key":"Software\\Käfer","error":4294967295})"},
    {Trace::Value{place, "N", 0, 7, QByteArray("\0\xFE", 2)},
     R"({"event":"value","root":"HKEY_USERS","view":32,"key":"Software\\Käfer","name":"N","error":0,"type":7,"data":"00fe"})"},
    {Trace::Value{place, "", 2, 0, {}},
     R"({"event":"value","root":"HKEY_USERS","view":32,"key":"Software\\Käfer","name":"","error":2})"},
    {Trace::SubKeys{place, {"b", "a"}},
     R"({"event":"subkeys","root":"HKEY_USERS","view":32,"key":"Software\\Käfer","names":["b","a"]})"},
    {Trace::Exists{"D:\\競走", true}, R"({"event":"exists","path":"D:\\競走","found":true})"},
    {Trace::Exists{"D:\\競走", false}, R"({"event":"exists","path":"D:\\競走","found":false})"},
    {Trace::List{"D:\\", "*.acf", {"1.acf"}}, R"({"event":"list","path":"D:\\","pattern":"*.acf","names":["1.acf"]})"},
    {Trace::Walk{"C:\\M", {"a"}, {"b", "c"}, {"c"}, {"a", "b"}},
     R"({"event":"walk","path":"C:\\M","folders":["a"],"files":["b","c"],"hidden":["c"],"system":["a","b"]})"},
    {Trace::Read{"C:\\x", 3}, R"({"event":"read","path":"C:\\x","bytes":3})"},
    {Trace::Shortcut{"C:\\x.lnk", "C:\\x"}, R"({"event":"shortcut","path":"C:\\x.lnk","target":"C:\\x"})"},
    {Trace::ShellFolder{35, "C:\\x"}, R"({"event":"shellFolder","csidl":35,"path":"C:\\x"})"},
    {Trace::Volume{"D:\\", "\\\\?\\Volume{1}\\"}, R"({"event":"volume","drive":"D:\\","name":"\\\\?\\Volume{1}\\"})"},
    {Trace::Environment{"X", QString("")}, R"({"event":"environment","name":"X","value":""})"},
    {Trace::Environment{"X", std::nullopt}, R"({"event":"environment","name":"X"})"},
    {Trace::Package{"F", true, "F1", {"F!A", "F!B"}},
     R"({"event":"package","family":"F","supported":true,"fullName":"F1","applicationIds":["F!A","F!B"]})"},
    {Trace::UserLocation{"wal", "D:\\Wal"}, R"({"event":"userLocation","key":"wal","path":"D:\\Wal"})"},
    {Trace::Entry{"Wal", "D:\\Wal"}, R"({"event":"entry","name":"Wal","folder":"D:\\Wal"})"},
    {Trace::Log{"Quorvan.X", "E", "a\nb"}, R"({"event":"log","logger":"Quorvan.X","level":"E","text":"a\u000ab"})"},
    {Trace::SubKeys{place, {}},
     R"({"event":"subkeys","root":"HKEY_USERS","view":32,"key":"Software\\Käfer","names":[]})"},
    {Trace::SubKeys{place, {"", "["}},
     R"({"event":"subkeys","root":"HKEY_USERS","view":32,"key":"Software\\Käfer","names":["","["]})"},
    {Trace::Note{QString("\t\u001F\u007F ") + QChar(0)},
     "{\"event\":\"note\",\"text\":\"\\u0009\\u001f\x7F \\u0000\"}"},
    {Trace::Note{"\"No\""}, R"({"event":"note","text":"\"No\""})"},
    {Trace::FinderBegin{11}, R"({"event":"begin","what":"finder","number":11})"},
    {Trace::FinderEnd{11, true}, R"({"event":"end","what":"finder","number":11,"found":true})"},
    {Trace::IndexBegin{"StartMenu"}, R"({"event":"begin","what":"index","name":"StartMenu"})"},
    {Trace::IndexEnd{"StartMenu", 12}, R"({"event":"end","what":"index","name":"StartMenu","entries":12})"},
};

TEST(TraceEvents, AreWrittenAsTheirFormatSays) {
    for (const Case& one : cases) {
        EXPECT_EQ(Trace::toLine(one.event), QByteArray(one.line) + '\n');
    }
}

TEST(TraceEvents, AreReadAsTheyWereWritten) {
    for (const Case& one : cases) {
        const std::optional<Trace::Event> read = Trace::fromLine(Trace::toLine(one.event));
        ASSERT_TRUE(read) << one.line;
        ASSERT_EQ(read->index(), one.event.index()) << one.line;
        const bool isAsWritten =
            std::visit([&](const auto& event) { return isSame(event, std::get<std::decay_t<decltype(event)>>(*read)); },
                       one.event);
        EXPECT_TRUE(isAsWritten) << one.line;
    }
}

template <class... Events>
std::vector<std::size_t> kindsOf(const std::variant<Events...>* /*for its types*/) {
    return {Trace::Event(Events()).index()...};
}

TEST(TraceEvents, EachIsTestedHere) {
    for (const std::size_t kind : kindsOf(static_cast<const Trace::Event*>(nullptr))) {
        const auto isOfKind = [kind](const Case& one) { return one.event.index() == kind; };
        EXPECT_TRUE(std::any_of(std::begin(cases), std::end(cases), isOfKind)) << "event " << kind;
    }
}

TEST(TraceEvents, WhatIsMissingOrOfAnotherTypeIsEmpty) {
    for (const char* const line :
         {R"({"event":"value"})",
          R"({"event":"value","root":1,"view":"32","key":[],"name":{},"error":"2","type":true,"data":7})"}) {
        const auto event = Trace::fromLine(line);
        ASSERT_TRUE(event) << line;
        EXPECT_TRUE(isSame(std::get<Trace::Value>(*event), Trace::Value())) << line;
    }
    const auto names = Trace::fromLine(R"({"event":"list","names":"a"})");
    ASSERT_TRUE(names);
    EXPECT_EQ(std::get<Trace::List>(*names).names, QStringList());
}

TEST(TraceEvents, ANumberThatNoFieldCanHoldIsNone) {
    for (const char* const number : {"4294967296", "-1", "1e300", "-1e300"}) {
        const auto key = Trace::fromLine(QByteArray("{\"event\":\"key\",\"error\":") + number + '}');
        ASSERT_TRUE(key) << number;
        EXPECT_EQ(std::get<Trace::Key>(*key).error, 0U) << number;
    }
    const auto negative = Trace::fromLine(R"({"event":"shellFolder","csidl":-2147483648})");
    ASSERT_TRUE(negative);
    EXPECT_EQ(std::get<Trace::ShellFolder>(*negative).csidl, -2147483647 - 1);
}

TEST(TraceEvents, WhatIsNoKnownEventIsNone) {
    for (const char* const line :
         {"", "x", "[]", "{}", R"({"event":"unknown"})", R"({"event":7})", R"({"event":"Key"})", R"({"event":"begin"})",
          R"({"event":"begin","what":"unknown"})", R"({"event":"key")"}) {
        EXPECT_FALSE(Trace::fromLine(line)) << line;
    }
}

} // namespace
