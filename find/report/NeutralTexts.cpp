#include "find/report/NeutralTexts.h"

#include "find/record/UsedParts.h"
#include "recordings/RegValues.h"
#include "recordings/Utf16Text.h"

#include <variant>

namespace Find {

namespace {

constexpr QLatin1Char backslash('\\');

QStringList mapAll(const QStringList& texts, const Recordings::NeutralNames& names) {
    QStringList mapped;
    for (const QString& text : texts) {
        mapped.append(names.text(text));
    }
    return mapped;
}

/// The names of what is in a folder or a key. Some are private only there.
QStringList mapNames(const QString& place, const QStringList& namesInPlace, const Recordings::NeutralNames& names) {
    const QString neutralPlace = names.text(place) + backslash;
    QStringList mapped;
    for (const QString& name : namesInPlace) {
        const QString path = names.text(place + backslash + name);
        mapped.append(path.startsWith(neutralPlace) ? path.mid(neutralPlace.size()) : names.text(name));
    }
    return mapped;
}

/// Puts neutral names into an event. Of those without a text of the PC nothing changes.
class Neutralizer {
public:
    explicit Neutralizer(const Recordings::NeutralNames& names)
        : m_names(names) {}

    void operator()(Trace::Key& event) const { map(event.place.key); }

    void operator()(Trace::Value& event) const {
        map(event.place.key);
        event.data = usedValue({event.name, false, event.type, event.data}).data; // as the recording has it
        map(event.name);
        if (event.type == Recordings::RegType::string) {
            event.data = Recordings::toUtf16(m_names.text(Recordings::fromUtf16(event.data)));
        }
    }

    void operator()(Trace::SubKeys& event) const {
        event.names = mapNames(event.place.key, event.names, m_names);
        map(event.place.key);
    }

    void operator()(Trace::Exists& event) const { map(event.path); }

    void operator()(Trace::List& event) const {
        event.names = mapNames(event.path, event.names, m_names);
        map(event.path);
    }

    void operator()(Trace::Walk& event) const {
        for (QStringList* const list : {&event.folders, &event.files, &event.hidden, &event.system}) {
            *list = mapNames(event.path, *list, m_names);
        }
        map(event.path);
    }

    void operator()(Trace::Read& event) const { map(event.path); }

    void operator()(Trace::Shortcut& event) const {
        map(event.path);
        map(event.target);
    }

    void operator()(Trace::ShellFolder& event) const { map(event.path); }

    void operator()(Trace::Environment& event) const {
        if (event.value) {
            map(*event.value);
        }
    }

    void operator()(Trace::UserLocation& event) const { map(event.path); }

    void operator()(Trace::Entry& event) const {
        map(event.name);
        map(event.folder);
    }

    void operator()(Trace::Log& event) const { map(event.text); }

    void operator()(Trace::Note& event) const { map(event.text); }

    // Volumes and app packages have no private names; the others tell of the search.
    void operator()(Trace::Volume&) const {}

    void operator()(Trace::Package&) const {}

    void operator()(Trace::Format&) const {}

    void operator()(Trace::FinderBegin&) const {}

    void operator()(Trace::FinderEnd&) const {}

    void operator()(Trace::IndexBegin&) const {}

    void operator()(Trace::IndexEnd&) const {}

private:
    void map(QString& text) const { text = m_names.text(text); }

    const Recordings::NeutralNames& m_names;
};

std::vector<FinderEntry> neutralFinders(const std::vector<FinderEntry>& finders,
                                        const Recordings::NeutralNames& names) {
    std::vector<FinderEntry> neutral = finders;
    for (FinderEntry& finder : neutral) {
        finder.subject = names.text(finder.subject);
        finder.folderName = names.text(finder.folderName);
        finder.executables = mapAll(finder.executables, names);
        finder.finders = neutralFinders(finder.finders, names);
    }
    return neutral;
}

} // namespace

TraceEvent neutralEvent(const TraceEvent& event, const Recordings::NeutralNames& names) {
    TraceEvent neutral = event;
    std::visit(Neutralizer(names), neutral);
    return neutral;
}

GameAnswer neutralAnswer(const GameAnswer& answer, const Recordings::NeutralNames& names) {
    GameAnswer neutral = answer;
    neutral.location.launchCommand = names.text(answer.location.launchCommand);
    neutral.location.executablePath = names.text(answer.location.executablePath);
    neutral.location.executablePaths = mapAll(answer.location.executablePaths, names);
    neutral.location.installFolder = names.text(answer.location.installFolder);
    return neutral;
}

RuntimeAnswer neutralAnswer(const RuntimeAnswer& answer, const Recordings::NeutralNames& names) {
    RuntimeAnswer neutral = answer;
    neutral.values = mapAll(answer.values, names);
    return neutral;
}

Game neutralGame(const Game& game, const Recordings::NeutralNames& names) {
    return {game.name, neutralFinders(game.finders, names)};
}

} // namespace Find
