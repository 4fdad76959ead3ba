#include "fuzz/Fuzz.h"
#include "support/RegistryKey.h"
#include "support/scripted/ScriptedSystem.h"

#include <fuzzer/FuzzedDataProvider.h>

#include <algorithm>
#include <cstring>
#include <optional>
#include <vector>

namespace {

using Platform::ErrorCode;
using Platform::errorMoreData;
using Platform::errorSuccess;

/// What a value is at one of the questions for it.
struct State {
    ErrorCode error = errorSuccess;
    quint32 type = 0;
    QByteArray bytes;
};

/// Mostly around the sizes at which something changes.
State anyState(FuzzedDataProvider& input) {
    State state;
    if (input.ConsumeIntegralInRange(0, 7) == 0) {
        state.error = input.ConsumeIntegral<quint32>();
    }
    state.type = input.ConsumeBool() ? Platform::regSz : input.ConsumeIntegralInRange<quint32>(0, 12);
    const int size = input.ConsumeBool() ? input.ConsumeIntegralInRange(500, 1100) : input.ConsumeIntegralInRange(0, 9);
    const auto filling = input.ConsumeIntegral<char>();
    const std::vector<char> begin = input.ConsumeBytes<char>(static_cast<std::size_t>(size));
    state.bytes = QByteArray(begin.data(), static_cast<int>(begin.size())).leftJustified(size, filling);
    return state;
}

/// As Windows answers: the value when it fits, otherwise its size, and anything in the buffer.
ErrorCode answer(const State& state, quint32& type, void* data, quint32& size) {
    type = state.type;
    const quint32 room = size;
    size = static_cast<quint32>(state.bytes.size());
    if (state.error != errorSuccess || size > room) {
        std::memset(data, 0xA5, room);
        return state.error != errorSuccess ? state.error : errorMoreData;
    }
    std::memcpy(data, state.bytes.constData(), size);
    return errorSuccess;
}

QString upToZero(const QByteArray& bytes) {
    const QString text = Fuzz::utf16Of(bytes);
    return text.left(text.indexOf(QChar()));
}

/// What readString makes of a value that is `first` at the first question and `second` at one after it; no value when
/// it reads nothing.
std::optional<QString> expected(const State& first, const State& second) {
    constexpr int shortSize = 510;
    const bool isLong = first.error == errorSuccess && first.bytes.size() > shortSize;
    if ((isLong || first.error == errorMoreData) && first.type == Platform::regSz) {
        const int room = first.bytes.size() / 2 * 2 + 2;
        const bool fits = second.error == errorSuccess && second.bytes.size() <= room;
        return fits ? std::optional(upToZero(second.bytes.leftJustified(room, '\0').left(room - 2))) : std::nullopt;
    }
    if (isLong || first.error != errorSuccess) {
        return std::nullopt;
    }
    if (first.type == Platform::regSz) {
        return upToZero(first.bytes);
    }
    if (first.type != Platform::regDword) {
        return QStringLiteral("?");
    }
    quint32 number = 0;
    for (int i = 0; i < std::min(4, first.bytes.size()); ++i) {
        number |= quint32{static_cast<uchar>(first.bytes.at(i))} << (8 * i);
    }
    return QString::number(number);
}

void checkString(ScriptedSystem& system, FuzzedDataProvider& input) {
    const State first = anyState(input);
    const State second = anyState(input);
    int questions = 0;
    system.queryValue = [&](const QString&, quint32& type, void* data, quint32& size) {
        return answer(questions++ == 0 ? first : second, type, data, size);
    };
    const std::optional<QString> wanted = expected(first, second);
    RegistryKey key = RegistryKey::open(QStringLiteral("Any"), Hive::localMachine, View::view64);
    QString value = QStringLiteral("untouched");
    Fuzz::require(key.readString(QStringLiteral("Value"), value) == wanted.has_value(), "read or not");
    Fuzz::require(value == wanted.value_or(QStringLiteral("untouched")), "the value");
    Fuzz::require(questions <= 2, "asked no third time");

    questions = 0;
    const QString text = key.text(QStringLiteral("Value"));
    Fuzz::require(text == (first.type == Platform::regSz ? wanted.value_or(QString()) : QString()), "plain text alone");
}

void checkDword(ScriptedSystem& system, FuzzedDataProvider& input) {
    const State state = anyState(input);
    system.queryValueNarrow = [&](const QString&, quint32& type, void* data, quint32& size) {
        return answer(state, type, data, size);
    };
    RegistryKey key = RegistryKey::open("Any", Hive::currentUser, View::view32);
    quint32 number = 0xFFFFFFFF;
    const bool fits = state.error == errorSuccess && state.bytes.size() <= 4;
    Fuzz::require(key.readDword("Value", number) == fits, "a number that fits");
    Fuzz::require(fits || number == 0xFFFFFFFF, "or the caller's own");
}

void checkSubKeys(ScriptedSystem& system, FuzzedDataProvider& input) {
    std::vector<int> lengths(input.ConsumeIntegralInRange<std::size_t>(0, 20));
    for (int& length : lengths) {
        length = input.ConsumeBool() ? input.ConsumeIntegralInRange(250, 300) : input.ConsumeIntegralInRange(0, 3);
    }
    const auto failing = input.ConsumeIntegralInRange<std::size_t>(0, 40);
    system.enumKey = [&](quint32 index, char16_t* name, quint32& length) -> ErrorCode {
        if (index == failing) {
            return 5;
        }
        if (index >= lengths.size()) {
            return Platform::errorNoMoreItems;
        }
        const auto wanted = static_cast<quint32>(lengths[index]);
        if (wanted >= length) {
            return errorMoreData;
        }
        std::fill_n(name, wanted, static_cast<char16_t>(u'a' + index));
        name[wanted] = u'\0';
        length = wanted;
        return errorSuccess;
    };
    QStringList wanted;
    for (std::size_t i = 0; i < std::min(failing, lengths.size()); ++i) {
        if (lengths[i] <= 255) {
            wanted.append(QString(lengths[i], QChar(static_cast<ushort>('a' + i))));
        }
    }
    QStringList names;
    RegistryKey key = RegistryKey::open(QStringLiteral("Any"), Hive::users, View::view64);
    Fuzz::require(key.subKeyNames(names) && names == wanted, "the sub-keys' names");
}

} // namespace

/// Values of any type, size and bytes, that change between two questions, and names of any length are read by the
/// rules, and every key is closed.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzedDataProvider input(data, size);
    ScriptedSystem system;
    system.openKey = system.openKeyNarrow = [](Platform::RootKey, const QString&, quint32) { return errorSuccess; };
    checkString(system, input);
    checkDword(system, input);
    checkSubKeys(system, input);
    Fuzz::require(system.openKeys == 0, "every key is closed");
    return 0;
}
