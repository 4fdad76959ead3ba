#include "trace/Events.h"

#include "trace/JsonLine.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonValue>

#include <limits>

namespace Trace {

namespace {

// The fields of each event by their names in a trace: for telling and for reading.

template <class Fields>
void list(Format& event, Fields& fields) {
    fields("library", event.library);
    fields("version", event.version);
}

template <class Fields>
void list(KeyPlace& place, Fields& fields) {
    fields("root", place.root);
    fields("view", place.view);
    fields("key", place.key);
}

template <class Fields>
void list(Key& event, Fields& fields) {
    list(event.place, fields);
    fields("error", event.error);
}

template <class Fields>
void list(Value& event, Fields& fields) {
    list(event.place, fields);
    fields("name", event.name);
    fields("error", event.error);
    if (event.error == 0) {
        fields("type", event.type);
        fields("data", event.data);
    }
}

template <class Fields>
void list(SubKeys& event, Fields& fields) {
    list(event.place, fields);
    fields("names", event.names);
}

template <class Fields>
void list(Exists& event, Fields& fields) {
    fields("path", event.path);
    fields("found", event.found);
}

template <class Fields>
void list(List& event, Fields& fields) {
    fields("path", event.path);
    fields("pattern", event.pattern);
    fields("names", event.names);
}

template <class Fields>
void list(Walk& event, Fields& fields) {
    fields("path", event.path);
    fields("folders", event.folders);
    fields("files", event.files);
    fields("hidden", event.hidden);
    fields("system", event.system);
}

template <class Fields>
void list(Read& event, Fields& fields) {
    fields("path", event.path);
    fields("bytes", event.bytes);
}

template <class Fields>
void list(Shortcut& event, Fields& fields) {
    fields("path", event.path);
    fields("target", event.target);
}

template <class Fields>
void list(ShellFolder& event, Fields& fields) {
    fields("csidl", event.csidl);
    fields("path", event.path);
}

template <class Fields>
void list(Volume& event, Fields& fields) {
    fields("drive", event.drive);
    fields("name", event.name);
}

template <class Fields>
void list(Environment& event, Fields& fields) {
    fields("name", event.name);
    fields("value", event.value);
}

template <class Fields>
void list(Package& event, Fields& fields) {
    fields("family", event.family);
    fields("supported", event.supported);
    fields("fullName", event.fullName);
    fields("applicationIds", event.applicationIds);
}

template <class Fields>
void list(UserLocation& event, Fields& fields) {
    fields("key", event.key);
    fields("path", event.path);
}

template <class Fields>
void list(Entry& event, Fields& fields) {
    fields("name", event.name);
    fields("folder", event.folder);
}

template <class Fields>
void list(Log& event, Fields& fields) {
    fields("logger", event.logger);
    fields("level", event.level);
    fields("text", event.text);
}

template <class Fields>
void list(Note& event, Fields& fields) {
    fields("text", event.text);
}

template <class Fields>
void list(FinderBegin& event, Fields& fields) {
    fields("number", event.number);
}

template <class Fields>
void list(FinderEnd& event, Fields& fields) {
    fields("number", event.number);
    fields("found", event.found);
}

template <class Fields>
void list(IndexBegin& event, Fields& fields) {
    fields("name", event.name);
}

template <class Fields>
void list(IndexEnd& event, Fields& fields) {
    fields("name", event.name);
    fields("entries", event.entries);
}

class Writer {
public:
    explicit Writer(const EventName& name) {
        m_line.add("event", QString::fromLatin1(name.event));
        if (name.what != nullptr) {
            m_line.add("what", QString::fromLatin1(name.what));
        }
    }

    void operator()(const char* name, const QString& text) { m_line.add(name, text); }

    void operator()(const char* name, const QStringList& texts) { m_line.add(name, texts); }

    void operator()(const char* name, bool flag) { m_line.add(name, flag); }

    void operator()(const char* name, int number) { m_line.add(name, qint64{number}); }

    void operator()(const char* name, quint32 number) { m_line.add(name, qint64{number}); }

    void operator()(const char* name, const QByteArray& bytes) { m_line.add(name, QString::fromLatin1(bytes.toHex())); }

    void operator()(const char* name, const std::optional<QString>& text) {
        if (text) {
            m_line.add(name, *text);
        }
    }

    QByteArray line() const { return m_line.end(); }

private:
    JsonLine m_line;
};

/// 0 for a number that the type can't hold.
template <class Number>
Number numberIn(const QJsonValue& value) {
    using Limits = std::numeric_limits<Number>;
    const double number = value.toDouble();
    const bool fits = number >= double{Limits::min()} && number <= double{Limits::max()};
    return fits ? static_cast<Number>(number) : 0;
}

class Reader {
public:
    explicit Reader(const QJsonObject& json)
        : m_json(json) {}

    bool isNamed(const EventName& name) const {
        return at("event").toString() == QLatin1String(name.event) &&
               (name.what == nullptr || at("what").toString() == QLatin1String(name.what));
    }

    void operator()(const char* name, QString& text) const { text = at(name).toString(); }

    void operator()(const char* name, bool& flag) const { flag = at(name).toBool(); }

    void operator()(const char* name, int& number) const { number = numberIn<int>(at(name)); }

    void operator()(const char* name, quint32& number) const { number = numberIn<quint32>(at(name)); }

    void operator()(const char* name, QByteArray& bytes) const {
        bytes = QByteArray::fromHex(at(name).toString().toLatin1());
    }

    void operator()(const char* name, QStringList& texts) const {
        const QJsonArray items = at(name).toArray();
        for (const QJsonValue item : items) {
            texts.append(item.toString());
        }
    }

    void operator()(const char* name, std::optional<QString>& text) const {
        if (at(name).isString()) {
            text = at(name).toString();
        }
    }

private:
    QJsonValue at(const char* name) const { return m_json.value(QLatin1String(name)); }

    const QJsonObject& m_json;
};

template <class OneEvent>
bool readAs(const Reader& reader, std::optional<Event>& event) {
    OneEvent one{};
    if (!reader.isNamed(OneEvent::inTrace)) {
        return false;
    }
    list(one, reader);
    event = std::move(one);
    return true;
}

template <class... Events>
std::optional<Event> readAny(const Reader& reader, const std::variant<Events...>* /*for its types*/) {
    std::optional<Event> event;
    static_cast<void>((readAs<Events>(reader, event) || ...));
    return event;
}

} // namespace

QByteArray toLine(const Event& event) {
    return std::visit(
        [](auto one) { // a copy, as one list serves those who change the fields, too
            Writer writer(decltype(one)::inTrace);
            list(one, writer);
            return writer.line();
        },
        event);
}

std::optional<Event> fromLine(const QByteArray& line) {
    const QJsonObject json = QJsonDocument::fromJson(line).object();
    return readAny(Reader(json), static_cast<const Event*>(nullptr));
}

} // namespace Trace
