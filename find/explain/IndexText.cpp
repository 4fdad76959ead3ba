#include "find/explain/IndexText.h"

#include "find/explain/EventText.h"
#include "find/explain/TraceTree.h"
#include "find/explain/Words.h"
#include "find/terminal/OneLine.h"

#include <algorithm>

namespace Find {

namespace {

constexpr int mostLines = 20; ///< more are told in brief

/// What was asked of one place. Of a key that was read, all is shown or nothing; of others, the first line always.
struct Block {
    QStringList lines;
    bool isWhole = false;
};

/// What the list's own log file says is told by the events themselves, but for what went wrong.
bool isOfALog(const TraceEvent& event) {
    const auto* const log = std::get_if<Trace::Log>(&event);
    return isOfLogLevel(event) || (log != nullptr && log->level == QLatin1String("A"));
}

std::vector<Block> blocksOf(const TraceSection& index) {
    std::vector<Block> blocks;
    for (const TraceSection::Part& part : index.parts) {
        const auto* const event = std::get_if<TraceEvent>(&part);
        if (event == nullptr || isOfALog(*event)) {
            continue;
        }
        const QStringList lines = describeEvent(*event);
        const bool isValue = std::holds_alternative<Trace::Value>(*event);
        if ((isValue || std::holds_alternative<Trace::SubKeys>(*event)) && !blocks.empty()) {
            blocks.back().lines += lines;
            blocks.back().isWhole = isValue;
        } else if (!lines.isEmpty()) {
            blocks.push_back({lines, std::holds_alternative<Trace::Read>(*event)});
        }
    }
    return blocks;
}

/// The block's lines but for those that are of no interest; `leftOut` counts these.
QStringList inBrief(const Block& block, const QStringList& words, int& leftOut) {
    const auto isOfInterest = [&words](const QString& line) { return mentions(line, words); };
    if (block.isWhole) {
        const bool isShown = std::any_of(block.lines.begin(), block.lines.end(), isOfInterest);
        leftOut += isShown ? 0 : block.lines.size();
        return isShown ? block.lines : QStringList();
    }
    QStringList shown{block.lines.constFirst()};
    std::copy_if(block.lines.begin() + 1, block.lines.end(), std::back_inserter(shown),
                 [&](const QString& line) { return line.contains(QLatin1String(" sub-key")) || isOfInterest(line); });
    leftOut += block.lines.size() - shown.size();
    return shown;
}

} // namespace

QStringList describeIndex(const TraceSection& index, const QStringList& words) {
    const std::vector<Block> blocks = blocksOf(index);
    QStringList all;
    QStringList brief;
    int leftOut = 0;
    for (const Block& block : blocks) {
        all += block.lines;
        brief += inBrief(block, words, leftOut);
    }
    const bool isBrief = !words.isEmpty() && all.size() > mostLines && leftOut > 0;
    const QString name = oneLine(index.name);
    QStringList lines{QStringLiteral("The list %1 is made:").arg(name)};
    const QStringList& shown = isBrief ? brief : all;
    for (const QString& line : shown) {
        lines.append(QStringLiteral("  ") + line);
    }
    if (isBrief) {
        lines.append(QStringLiteral("  … and %1 lines about others (--all shows them)").arg(leftOut));
    }
    lines.append(QStringLiteral("The list %1 has %2.").arg(name, counted(index.entries, "entry", "entries")));
    return lines;
}

QStringList similarNames(const TraceSection& section, const QStringList& words) {
    QStringList names;
    for (const TraceSection::Part& part : section.parts) {
        if (const auto* const inner = std::get_if<std::unique_ptr<TraceSection>>(&part)) {
            names += similarNames(**inner, words);
            continue;
        }
        const auto* const entry = std::get_if<Trace::Entry>(&std::get<TraceEvent>(part));
        if (entry != nullptr && mentions(entry->name, words)) {
            names.append(oneLine(QStringLiteral("%1: \"%2\", %3").arg(section.name, entry->name, entry->folder)));
        }
    }
    names.removeDuplicates();
    return names;
}

} // namespace Find
