#include "find/report/ReportPage.h"

#include "find/explain/Words.h"
#include "find/report/ReportData.h"
#include "recordings/PcPage.h"

#include <kainjow/mustache.hpp>

#include <QCryptographicHash>
#include <QFile>

#include <algorithm>
#include <string>

// A static library's resources are made known by a call, from outside every namespace.
static void makeResourcesKnown() {
    Q_INIT_RESOURCE(page);
}

namespace Find {

namespace {

// Its operator[] takes over what it is given, where its set() copies that with all that is in it.
namespace Mustache = kainjow::mustache;

Mustache::data textData(const QString& text) {
    return withControlPictures(text).toStdString();
}

template <class Items, class MakeData>
Mustache::data listData(const Items& items, MakeData makeData) {
    Mustache::list list;
    list.reserve(static_cast<std::size_t>(items.size()));
    for (const auto& item : items) {
        list.push_back(makeData(item));
    }
    return list;
}

/// Rows in groups, of which a browser lays out only those that are seen.
template <class Items, class MakeData>
Mustache::data groupsData(const Items& items, MakeData makeData) {
    constexpr std::size_t rowsOfGroup = 50;
    Mustache::list groups;
    groups.reserve(items.size() / rowsOfGroup + 1); // as growing copies all that is in it
    for (std::size_t first = 0; first < items.size(); first += rowsOfGroup) {
        Mustache::list rows;
        rows.reserve(rowsOfGroup);
        for (std::size_t i = first; i < std::min(items.size(), first + rowsOfGroup); ++i) {
            rows.push_back(makeData(items[i]));
        }
        groups.emplace_back()["rows"] = rows;
    }
    return groups;
}

Mustache::data textsData(const QStringList& texts, const char* name = "text") {
    return listData(texts, [name](const QString& text) { return Mustache::data(name, textData(text)); });
}

/// A path or an address in parts, between which a line may break.
Mustache::data pathData(const QString& path) {
    QStringList parts{QString()};
    for (const QChar character : withControlPictures(path)) {
        parts.last().append(character);
        if (character == QLatin1Char('\\') || character == QLatin1Char('/')) {
            parts.append(QString());
        }
    }
    return textsData(parts);
}

template <class Number>
Mustache::data numberData(Number number) {
    return std::to_string(number);
}

QByteArray resource(const char* name) {
    QFile file(QLatin1String(":/report/") + QLatin1String(name));
    const QByteArray text = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    return QByteArray(text).replace("\r\n", "\n"); // as a browser reads it, before it takes the hash
}

QString withoutStar(const QString& line) {
    const QLatin1String star("* ");
    return line.startsWith(star) ? line.mid(star.size()) : line;
}

/// As a content security policy names a script or a style that may be used.
std::string hashOf(const QByteArray& text) {
    return ("sha256-" + QCryptographicHash::hash(text, QCryptographicHash::Sha256).toBase64()).toStdString();
}

/// What is said of a search at a glance: why the last finder went on.
QString reasonOf(const ReportedGame& game) {
    const auto last = std::find_if(game.explanation.rbegin(), game.explanation.rend(), [](const ExplanationLine& line) {
        return line.kind == ExplanationLine::Kind::Reason;
    });
    return last == game.explanation.rend() ? QStringLiteral("The catalogue has no finder for it.")
                                           : withoutStar(last->text);
}

const char* sectionOf(ExplanationLine::Kind kind) {
    switch (kind) {
    case ExplanationLine::Kind::Finder:
        return "isFinder";
    case ExplanationLine::Kind::Reason:
        return "isReason";
    case ExplanationLine::Kind::Outcome:
        return "isOutcome";
    case ExplanationLine::Kind::Seen:
        break;
    }
    return "isSeen";
}

/// What was seen in one go stands together.
Mustache::data explanationData(const std::vector<ExplanationLine>& lines) {
    Mustache::list blocks;
    blocks.reserve(lines.size());
    for (auto line = lines.begin(); line != lines.end();) {
        const ExplanationLine::Kind kind = line->kind;
        QStringList texts;
        do {
            texts.append(withControlPictures(withoutStar(line->text)));
            ++line;
        } while (kind == ExplanationLine::Kind::Seen && line != lines.end() && line->kind == kind);
        Mustache::data block("text", texts.join(QLatin1Char('\n')).toStdString());
        block[sectionOf(kind)] = true;
        blocks.push_back(block);
    }
    return blocks;
}

Mustache::data gameData(const ReportedGame& game) {
    Mustache::data data("name", textData(game.answer.name));
    data["isFound"] = game.answer.found;
    data["state"] = game.answer.found ? "found" : "missing";
    data["finders"] = textsData(game.finders, "name");
    if (game.answer.found) {
        data["folder"] = pathData(game.answer.location.installFolder);
        data["launch"] = pathData(game.answer.location.launchCommand);
        return data;
    }
    data["reason"] = textData(reasonOf(game));
    data["explanation"] = explanationData(game.explanation);
    data["hasSimilar"] = !game.similar.isEmpty();
    data["similar"] = textsData(game.similar);
    if (game.moreSimilar > 0) {
        data["moreSimilar"] = Mustache::data("count", numberData(game.moreSimilar));
    }
    return data;
}

Mustache::data runtimeData(const RuntimeAnswer& runtime) {
    Mustache::data data("title", textData(runtime.title));
    data["isFound"] = !runtime.values.isEmpty();
    data.set("values",
             listData(runtime.values, [](const QString& value) { return Mustache::data("path", pathData(value)); }));
    return data;
}

Mustache::data otherData(const InstalledThing& thing) {
    Mustache::data data("name", textData(thing.name));
    data["lists"] = textData(thing.lists.join(QLatin1String(", ")));
    data["place"] = pathData(thing.place);
    return data;
}

Mustache::data madeListData(const ReportedList& list) {
    QStringList lines;
    for (const QString& line : list.lines) {
        lines.append(withControlPictures(line));
    }
    if (list.moreLines > 0) {
        lines.append(QStringLiteral("… and %1 more lines").arg(list.moreLines));
    }
    Mustache::data data("title", textData(list.title));
    data["entries"] = counted(list.entries, "entry", "entries").toStdString();
    data["text"] = lines.join(QLatin1Char('\n')).toStdString();
    return data;
}

Mustache::data amountData(const RecordedAmount& amount) {
    Mustache::data data("title", textData(amount.title));
    data["text"] = textData(amount.text);
    return data;
}

QStringList finderNamesOf(const ReportData& data) {
    QStringList names;
    for (const ReportedGame& game : data.games) {
        names += game.finders;
    }
    names.removeDuplicates();
    names.sort();
    return names;
}

template <class Items, class IsFound>
Mustache::data countFound(const Items& items, IsFound isFound) {
    return numberData(std::count_if(items.begin(), items.end(), isFound));
}

void addSummary(const ReportData& report, Mustache::data& page) {
    page["found"] = countFound(report.games, [](const ReportedGame& game) { return game.answer.found; });
    page["total"] = numberData(report.games.size());
    page["runtimesFound"] =
        countFound(report.runtimes, [](const RuntimeAnswer& runtime) { return !runtime.values.isEmpty(); });
    page["runtimesTotal"] = numberData(report.runtimes.size());
    page["othersTotal"] = numberData(report.others.size());
    page["faultsTotal"] = numberData(report.faults.size());
    page["faultsWord"] = report.faults.size() == 1 ? "fault" : "faults";
    page["hasFaults"] = !report.faults.isEmpty();
}

void addOrigin(const ReportOrigin& origin, Mustache::data& page) {
    page["made"] = textData(origin.made);
    page["version"] = textData(origin.version);
    page["catalogue"] = textData(origin.catalogue);
    page["file"] = textData(origin.replayed);
    page["areNamesKept"] = origin.areNamesKept;
}

void addTables(const ReportData& report, Mustache::data& page) {
    page["gameGroups"] = groupsData(report.games, gameData);
    page["finderNames"] = textsData(finderNamesOf(report), "name");
    page["runtimes"] = listData(report.runtimes, runtimeData);
    page["otherGroups"] = groupsData(report.others, otherData);
    page["faults"] = textsData(report.faults);
    page["lists"] = listData(report.lists, madeListData);
    page["contents"] = listData(report.contents, amountData);
    page["neutralNames"] = textsData(report.neutralNames);
    page["neutralFolders"] = textsData(report.neutralFolders);
    page["hasNames"] = !report.neutralNames.isEmpty() || !report.neutralFolders.isEmpty();
}

void addOwn(const char* name, const char* hashName, const char* file, Mustache::data& page) {
    const QByteArray text = resource(file);
    page[name] = text.toStdString();
    page[hashName] = hashOf(text);
}

QChar pictureOf(QChar character) {
    constexpr ushort firstPicture = 0x2400;
    constexpr ushort deleteCharacter = 0x7F;
    constexpr ushort pictureOfDelete = 0x2421;
    constexpr ushort pictureOfNewline = 0x2424;
    const ushort unit = character.unicode();
    if (unit < u' ') {
        return {static_cast<ushort>(firstPicture + unit)};
    }
    if (unit == deleteCharacter) {
        return {pictureOfDelete};
    }
    if (unit == QChar::LineSeparator || unit == QChar::ParagraphSeparator) {
        return {pictureOfNewline};
    }
    const bool isUnseen = character.category() == QChar::Other_Control || character.isSurrogate();
    return isUnseen ? QChar(QChar::ReplacementCharacter) : character;
}

} // namespace

QString withControlPictures(const QString& text) {
    QString shown = text;
    for (int i = 0; i < shown.size(); ++i) {
        if (shown.at(i).isHighSurrogate() && i + 1 < shown.size() && shown.at(i + 1).isLowSurrogate()) {
            ++i;
        } else {
            shown[i] = pictureOf(shown.at(i));
        }
    }
    return shown;
}

QByteArray renderReportPage(const ReportData& data, const ReportOrigin& origin, const QByteArray& recording) {
    makeResourcesKnown();
    Mustache::data page;
    addSummary(data, page);
    addOrigin(origin, page);
    addTables(data, page);
    addOwn("style", "styleHash", "page.css", page);
    addOwn("script", "scriptHash", "page.js", page);
    page["recording"] = Recordings::pcForPage(recording).toStdString();
    Mustache::mustache form(resource("page.html").toStdString());
    return QByteArray::fromStdString(form.render(page));
}

} // namespace Find
