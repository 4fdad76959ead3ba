#include "find/explain/EventText.h"

#include "find/cli/OneLine.h"
#include "find/explain/TraceReader.h"

#include <QByteArray>

#include <algorithm>
#include <cstring>
#include <iterator>

namespace Host {

namespace {

QString quoted(const QString& text) {
    return QLatin1Char('"') + oneLine(text) + QLatin1Char('"');
}

QString place(const TraceEvent& event) {
    return QStringLiteral("%1\\%2 (%3-bit view)")
        .arg(event.text("root"), oneLine(event.text("key")), QString::number(event.number("view")));
}

QString errorText(qint64 error) {
    constexpr qint64 fileNotFound = 2;
    constexpr qint64 accessDenied = 5;
    switch (error) {
    case fileNotFound:
        return QStringLiteral("there is none");
    case accessDenied:
        return QStringLiteral("access is denied");
    default:
        return QStringLiteral("error %1").arg(error);
    }
}

QString utf16(const QByteArray& bytes) {
    QString text(bytes.size() / 2, QChar(u'\0'));
    std::memcpy(text.data(), bytes.constData(), static_cast<std::size_t>(text.size()) * sizeof(QChar));
    const int end = text.indexOf(QChar(u'\0'));
    return end < 0 ? text : text.left(end);
}

/// A value's data as the registry editor would show it.
QString dataText(qint64 type, const QByteArray& bytes) {
    constexpr qint64 text = 1;
    constexpr qint64 textWithVariables = 2;
    constexpr qint64 number = 4;
    if (type == text) {
        return quoted(utf16(bytes));
    }
    if (type == textWithVariables) {
        return quoted(utf16(bytes)) + QStringLiteral(" (REG_EXPAND_SZ)");
    }
    if (type == number && bytes.size() == sizeof(quint32)) {
        quint32 value = 0;
        std::memcpy(&value, bytes.constData(), sizeof value);
        return QString::number(value);
    }
    return QStringLiteral("%1 bytes of type %2").arg(QString::number(bytes.size()), QString::number(type));
}

QString keyText(const TraceEvent& event) {
    const qint64 error = event.number("error");
    return QStringLiteral("registry key %1%2")
        .arg(place(event), error == 0 ? QString() : QStringLiteral(": ") + errorText(error));
}

QString valueText(const TraceEvent& event) {
    const qint64 error = event.number("error");
    const QString name = event.text("name").isEmpty() ? QStringLiteral("(default)") : oneLine(event.text("name"));
    if (error != 0) {
        return QStringLiteral("    %1: %2").arg(name, errorText(error));
    }
    const QByteArray data = QByteArray::fromHex(event.text("data").toLatin1());
    return QStringLiteral("    %1 = %2").arg(name, dataText(event.number("type"), data));
}

QString counted(int count, const char* one, const char* many) {
    return QStringLiteral("%1 %2").arg(QString::number(count), QLatin1String(count == 1 ? one : many));
}

QString existsText(const TraceEvent& event) {
    return QStringLiteral("%1: %2").arg(oneLine(event.text("path")),
                                        event.flag("found") ? QStringLiteral("is there") : QStringLiteral("missing"));
}

QString shellFolderText(const TraceEvent& event) {
    const QString path = event.text("path");
    return QStringLiteral("shell folder %1: %2")
        .arg(QString::number(event.number("csidl")), path.isEmpty() ? QStringLiteral("there is none") : oneLine(path));
}

QString packageText(const TraceEvent& event) {
    const QString family = oneLine(event.text("family"));
    if (!event.flag("supported")) {
        return QStringLiteral("app package %1: this Windows knows no app packages").arg(family);
    }
    if (event.text("fullName").isEmpty()) {
        return QStringLiteral("app package %1: not installed").arg(family);
    }
    const QString application = event.text("applicationId");
    return QStringLiteral("app package %1: %2, %3")
        .arg(family, oneLine(event.text("fullName")),
             application.isEmpty() ? QStringLiteral("without an application") : oneLine(application));
}

QString textOrNone(const TraceEvent& event, const char* field) {
    const QString text = event.text(field);
    return text.isEmpty() ? QStringLiteral("none") : oneLine(text);
}

QString shortcutText(const TraceEvent& event) {
    const QString target = event.text("target");
    return QStringLiteral("shortcut %1: leads to %2")
        .arg(oneLine(event.text("path")), target.isEmpty() ? QStringLiteral("nothing") : oneLine(target));
}

QString readText(const TraceEvent& event) {
    const auto bytes = static_cast<int>(event.number("bytes"));
    return QStringLiteral("file %1: %2").arg(oneLine(event.text("path")), counted(bytes, "byte", "bytes"));
}

QString listText(const TraceEvent& event) {
    return QStringLiteral("%1, files %2: %3")
        .arg(oneLine(event.text("path")), event.text("pattern"), QString::number(event.texts("names").size()));
}

QString walkText(const TraceEvent& event) {
    const int count = event.texts("folders").size() + event.texts("files").size();
    return QStringLiteral("%1: %2").arg(oneLine(event.text("path")), counted(count, "entry", "entries"));
}

QString subKeysText(const TraceEvent& event) {
    return QStringLiteral("    ") + counted(event.texts("names").size(), "sub-key", "sub-keys");
}

QString volumeText(const TraceEvent& event) {
    return QStringLiteral("drive %1: volume %2").arg(event.text("drive"), oneLine(event.text("name")));
}

QString environmentText(const TraceEvent& event) {
    return QStringLiteral("environment variable %1: %2").arg(event.text("name"), textOrNone(event, "value"));
}

QString userLocationText(const TraceEvent& event) {
    return QStringLiteral("the user's folder for %1: %2").arg(quoted(event.text("key")), textOrNone(event, "path"));
}

QString logText(const TraceEvent& event) {
    return QStringLiteral("log: ") + oneLine(event.text("text"));
}

QString noteText(const TraceEvent& event) {
    return QStringLiteral("* ") + oneLine(event.text("text"));
}

struct EventKind {
    const char* event;
    QString (*describe)(const TraceEvent&);
};

constexpr EventKind kinds[] = {
    {"key", keyText},
    {"value", valueText},
    {"subkeys", subKeysText},
    {"exists", existsText},
    {"list", listText},
    {"walk", walkText},
    {"read", readText},
    {"shortcut", shortcutText},
    {"shellFolder", shellFolderText},
    {"volume", volumeText},
    {"environment", environmentText},
    {"package", packageText},
    {"userLocation", userLocationText},
    {"log", logText},
    {"note", noteText},
};

/// The names that come with the event, to be shown below it. Those of sub-keys follow by themselves, as each is opened.
QStringList namesOf(const TraceEvent& event) {
    return event.is("list") ? event.texts("names") : event.texts("folders") + event.texts("files");
}

} // namespace

QStringList describeEvent(const TraceEvent& event) {
    const auto* const kind =
        std::find_if(std::begin(kinds), std::end(kinds), [&event](const EventKind& k) { return event.is(k.event); });
    if (kind == std::end(kinds)) {
        return {};
    }
    QStringList lines{kind->describe(event)};
    const QStringList names = namesOf(event);
    for (const QString& name : names) {
        lines.append(QStringLiteral("    ") + oneLine(name));
    }
    return lines;
}

bool isOfLogLevel(const TraceEvent& event) {
    return event.text("key").startsWith(QLatin1String("Software\\Veltrane\\Quorvan."));
}

} // namespace Host
