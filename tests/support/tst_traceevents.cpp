#include "support/TraceEvents.h"

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
     R"({"error":4294967295,"event":"key","key":"Software\\Käfer","root":"HKEY_USERS","view":32})"},
    {Trace::Value{place, "N", 0, 7, QByteArray("\0\xFE", 2)},
     R"({"data":"00fe","error":0,"event":"value","key":"Software\\Käfer","name":"N","root":"HKEY_USERS","type":7,"view":32})"},
    {Trace::Value{place, "", 2, 0, {}},
     R"({"error":2,"event":"value","key":"Software\\Käfer","name":"","root":"HKEY_USERS","view":32})"},
    {Trace::SubKeys{place, {"b", "a"}},
     R"({"event":"subkeys","key":"Software\\Käfer","names":["b","a"],"root":"HKEY_USERS","view":32})"},
    {Trace::Exists{"D:\\競走", true}, R"({"event":"exists","found":true,"path":"D:\\競走"})"},
    {Trace::Exists{"D:\\競走", false}, R"({"event":"exists","found":false,"path":"D:\\競走"})"},
    {Trace::List{"D:\\", "*.acf", {"1.acf"}}, R"({"event":"list","names":["1.acf"],"path":"D:\\","pattern":"*.acf"})"},
    {Trace::Walk{"C:\\M", {"a"}, {"b", "c"}, {"c"}, {"a", "b"}},
     R"({"event":"walk","files":["b","c"],"folders":["a"],"hidden":["c"],"path":"C:\\M","system":["a","b"]})"},
    {Trace::Read{"C:\\x", 3}, R"({"bytes":3,"event":"read","path":"C:\\x"})"},
    {Trace::Shortcut{"C:\\x.lnk", "C:\\x"}, R"({"event":"shortcut","path":"C:\\x.lnk","target":"C:\\x"})"},
    {Trace::ShellFolder{35, "C:\\x"}, R"({"csidl":35,"event":"shellFolder","path":"C:\\x"})"},
    {Trace::Volume{"D:\\", "\\\\?\\Volume{1}\\"}, R"({"drive":"D:\\","event":"volume","name":"\\\\?\\Volume{1}\\"})"},
    {Trace::Environment{"X", QString("")}, R"({"event":"environment","name":"X","value":""})"},
    {Trace::Environment{"X", std::nullopt}, R"({"event":"environment","name":"X"})"},
    {Trace::Package{"F", true, "F1", {"F!A", "F!B"}},
     R"({"applicationIds":["F!A","F!B"],"event":"package","family":"F","fullName":"F1","supported":true})"},
    {Trace::UserLocation{"wal", "D:\\Wal"}, R"({"event":"userLocation","key":"wal","path":"D:\\Wal"})"},
    {Trace::Entry{"Wal", "D:\\Wal"}, R"({"event":"entry","folder":"D:\\Wal","name":"Wal"})"},
    {Trace::Log{"Quorvan.X", "E", "a\nb"}, R"({"event":"log","level":"E","logger":"Quorvan.X","text":"a\nb"})"},
    {Trace::Note{"\"No\""}, R"({"event":"note","text":"\"No\""})"},
    {Trace::FinderBegin{11}, R"({"event":"begin","number":11,"what":"finder"})"},
    {Trace::FinderEnd{11, true}, R"({"event":"end","found":true,"number":11,"what":"finder"})"},
    {Trace::IndexBegin{"StartMenu"}, R"({"event":"begin","name":"StartMenu","what":"index"})"},
    {Trace::IndexEnd{"StartMenu", 12}, R"({"entries":12,"event":"end","name":"StartMenu","what":"index"})"},
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
