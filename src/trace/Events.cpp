#include "trace/Events.h"

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

QByteArray quoted(const QString& text) {
    QString escaped(QLatin1Char('"'));
    for (const QChar character : text) {
        if (character == QLatin1Char('"') || character == QLatin1Char('\\')) {
            escaped += QLatin1Char('\\');
        }
        if (character < QLatin1Char(' ')) {
            escaped += QStringLiteral("\\u%1").arg(character.unicode(), 4, 16, QLatin1Char('0'));
        } else {
            escaped += character;
        }
    }
    return (escaped + QLatin1Char('"')).toUtf8();
}

/// Keeps the fields in their order, and loses none when memory runs out half-way, as QJsonObject does.
class Writer {
public:
    explicit Writer(const EventName& name) {
        (*this)("event", QString::fromLatin1(name.event));
        if (name.what != nullptr) {
            (*this)("what", QString::fromLatin1(name.what));
        }
    }

    void operator()(const char* name, const QString& text) { add(name, quoted(text)); }

    void operator()(const char* name, const QStringList& texts) {
        QByteArray list;
        for (const QString& text : texts) {
            list += (list.isEmpty() ? "" : ",") + quoted(text);
        }
        add(name, '[' + list + ']');
    }

    void operator()(const char* name, bool flag) { add(name, flag ? "true" : "false"); }

    void operator()(const char* name, int number) { add(name, QByteArray::number(number)); }

    void operator()(const char* name, quint32 number) { add(name, QByteArray::number(number)); }

    void operator()(const char* name, const QByteArray& bytes) { (*this)(name, QString::fromLatin1(bytes.toHex())); }

    void operator()(const char* name, const std::optional<QString>& text) {
        if (text) {
            (*this)(name, *text);
        }
    }

    QByteArray line() const { return m_line + "}\n"; }

private:
    void add(const char* name, const QByteArray& value) {
        m_line += (m_line.isEmpty() ? "{\"" : ",\"") + QByteArray(name) + "\":" + value;
    }

    QByteArray m_line;
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
    explicit Reader(const QByteArray& line)
        : m_json(QJsonDocument::fromJson(line).object()) {}

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

    QJsonObject m_json;
};

template <class OneEvent>
bool readAs(const Reader& reader, std::optional<Event>& event) {
    if (reader.isNamed(OneEvent::inTrace)) {
        list(std::get<OneEvent>(event.emplace(OneEvent())), reader);
    }
    return event.has_value();
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
    return readAny(Reader(line), static_cast<const Event*>(nullptr));
}

} // namespace Trace
