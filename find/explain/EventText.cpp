#include "find/explain/EventText.h"

#include "find/explain/Words.h"
#include "find/terminal/OneLine.h"
#include "recordings/RegValues.h"
#include "recordings/Utf16Text.h"

#include <QByteArray>
#include <QRegularExpression>

#include <algorithm>
#include <cstring>
#include <iterator>
#include <utility>
#include <variant>

namespace Find {

namespace {

QString quoted(const QString& text) {
    return QLatin1Char('"') + text + QLatin1Char('"');
}

/// A text that brings its own quotes needs no others.
QString quotedOnce(const QString& text) {
    return text.contains(QLatin1Char('"')) ? text : quoted(text);
}

/// The path with one backslash where several mean the same; the two before a server or a volume stay.
QString pathText(const QString& path) {
    static const QRegularExpression several(QStringLiteral("(?<!^)\\\\{2,}"));
    return QString(path).replace(several, QStringLiteral("\\"));
}

/// A shell folder by the name that people know it by.
QString shellFolderText(int csidl) {
    const std::pair<int, const char*> names[] = {{5, "Documents"},
                                                 {11, "Start menu"},
                                                 {22, "Start menu of all users"},
                                                 {28, "Local AppData"},
                                                 {35, "ProgramData"}};
    const auto* const known =
        std::find_if(std::begin(names), std::end(names), [csidl](const auto& name) { return name.first == csidl; });
    const QString number = QStringLiteral("shell folder %1").arg(csidl);
    return known == std::end(names) ? number : QStringLiteral("%1 (%2)").arg(QLatin1String(known->second), number);
}

QString placeText(const Trace::KeyPlace& place) {
    return QStringLiteral("%1\\%2 (%3-bit view)").arg(place.root, place.key, QString::number(place.view));
}

QString errorText(quint32 error) {
    constexpr quint32 fileNotFound = 2;
    constexpr quint32 accessDenied = 5;
    switch (error) {
    case fileNotFound:
        return QStringLiteral("there is none");
    case accessDenied:
        return QStringLiteral("access is denied");
    default:
        return QStringLiteral("error %1").arg(error);
    }
}

QString textUntilZero(const QByteArray& bytes) {
    const QString text = Recordings::fromUtf16(bytes);
    return text.left(text.indexOf(QChar(u'\0')));
}

/// A value's data as the registry editor would show it.
QString dataText(quint32 type, const QByteArray& bytes) {
    namespace Type = Recordings::RegType;
    if (type == Type::string) {
        return quotedOnce(textUntilZero(bytes));
    }
    if (type == Type::expandable) {
        return quotedOnce(textUntilZero(bytes)) + QStringLiteral(" (REG_EXPAND_SZ)");
    }
    if (type == Type::dword && bytes.size() == sizeof(quint32)) {
        quint32 value = 0;
        std::memcpy(&value, bytes.constData(), sizeof value);
        return QString::number(value);
    }
    return QStringLiteral("%1 bytes of type %2").arg(QString::number(bytes.size()), QString::number(type));
}

QString textOrNone(const QString& text) {
    return text.isEmpty() ? QStringLiteral("none") : text;
}

QStringList withNames(const QString& line, const QStringList& names) {
    QStringList lines{line};
    for (const QString& name : names) {
        lines.append(QStringLiteral("    ") + name);
    }
    return lines;
}

// One function for each event, so that a new one is not forgotten.

QStringList linesOf(const Trace::Key& event) {
    const QString result = event.error == 0 ? QString() : QStringLiteral(": ") + errorText(event.error);
    return {QStringLiteral("registry key %1%2").arg(placeText(event.place), result)};
}

QStringList linesOf(const Trace::Value& event) {
    const QString name = event.name.isEmpty() ? QStringLiteral("(default)") : event.name;
    if (event.error != 0) {
        return {QStringLiteral("    %1: %2").arg(name, errorText(event.error))};
    }
    return {QStringLiteral("    %1 = %2").arg(name, dataText(event.type, event.data))};
}

/// Without their names, as each is opened next.
QStringList linesOf(const Trace::SubKeys& event) {
    return {QStringLiteral("    ") + counted(event.names.size(), "sub-key", "sub-keys")};
}

QStringList linesOf(const Trace::Exists& event) {
    return {QStringLiteral("%1: %2").arg(pathText(event.path),
                                         event.found ? QStringLiteral("is there") : QStringLiteral("missing"))};
}

QStringList linesOf(const Trace::List& event) {
    return withNames(QStringLiteral("%1, files %2: %3")
                         .arg(pathText(event.path), event.pattern, QString::number(event.names.size())),
                     event.names);
}

QStringList linesOf(const Trace::Walk& event) {
    const QStringList names = event.folders + event.files;
    return withNames(QStringLiteral("%1: %2").arg(pathText(event.path), counted(names.size(), "entry", "entries")),
                     names);
}

QStringList linesOf(const Trace::Read& event) {
    return {QStringLiteral("file %1: %2").arg(pathText(event.path), counted(event.bytes, "byte", "bytes"))};
}

QStringList linesOf(const Trace::Shortcut& event) {
    const QString target = event.target.isEmpty() ? QStringLiteral("nothing") : event.target;
    return {QStringLiteral("shortcut %1: leads to %2").arg(pathText(event.path), target)};
}

QStringList linesOf(const Trace::ShellFolder& event) {
    const QString path = event.path.isEmpty() ? QStringLiteral("there is none") : pathText(event.path);
    return {QStringLiteral("%1: %2").arg(shellFolderText(event.csidl), path)};
}

QStringList linesOf(const Trace::Volume& event) {
    return {QStringLiteral("drive %1: volume %2").arg(event.drive, event.name)};
}

QStringList linesOf(const Trace::Environment& event) {
    return {QStringLiteral("environment variable %1: %2").arg(event.name, textOrNone(event.value.value_or(QString())))};
}

QStringList linesOf(const Trace::Package& event) {
    const QString& family = event.family;
    if (!event.supported) {
        return {QStringLiteral("app package %1: this Windows knows no app packages").arg(family)};
    }
    if (event.fullName.isEmpty()) {
        return {QStringLiteral("app package %1: not installed").arg(family)};
    }
    const QString application =
        event.applicationIds.isEmpty() ? QStringLiteral("without an application") : event.applicationIds.constFirst();
    return {QStringLiteral("app package %1: %2, %3").arg(family, event.fullName, application)};
}

QStringList linesOf(const Trace::UserLocation& event) {
    return {QStringLiteral("the user's folder for %1: %2").arg(quoted(event.key), textOrNone(pathText(event.path)))};
}

QStringList linesOf(const Trace::Log& event) {
    return {QStringLiteral("log: ") + event.text};
}

QStringList linesOf(const Trace::Note& event) {
    return {QStringLiteral("* ") + event.text};
}

// These tell of the search, not of the PC.

QStringList linesOf(const Trace::Format&) {
    return {};
}

QStringList linesOf(const Trace::Entry&) {
    return {};
}

QStringList linesOf(const Trace::FinderBegin&) {
    return {};
}

QStringList linesOf(const Trace::FinderEnd&) {
    return {};
}

QStringList linesOf(const Trace::IndexBegin&) {
    return {};
}

QStringList linesOf(const Trace::IndexEnd&) {
    return {};
}

} // namespace

QStringList describeEvent(const TraceEvent& event) {
    QStringList lines = std::visit([](const auto& one) { return linesOf(one); }, event);
    std::transform(lines.begin(), lines.end(), lines.begin(), oneLine);
    return lines;
}

bool isOfLogLevel(const TraceEvent& event) {
    const QLatin1String loggers("Software\\Veltrane\\Quorvan.");
    if (const auto* const key = std::get_if<Trace::Key>(&event)) {
        return key->place.key.startsWith(loggers);
    }
    const auto* const value = std::get_if<Trace::Value>(&event);
    return value != nullptr && value->place.key.startsWith(loggers);
}

} // namespace Find
