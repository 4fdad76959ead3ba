#include "find/report/ReportPage.h"

#include "find/report/ReportData.h"
#include "fuzz/Fuzz.h"
#include "recordings/PcFile.h"
#include "recordings/PcPage.h"

#include <algorithm>

namespace {

using Kind = Find::ExplanationLine::Kind;

/// A report in which everything that can be any text is this one.
Find::ReportData reportOf(const QString& text) {
    Find::ReportedGame found;
    found.answer = {text, true, {}};
    found.answer.location.installFolder = found.answer.location.launchCommand = text;
    found.finders = QStringList{text};
    Find::ReportedGame missing;
    missing.answer = {text, false, {}};
    missing.finders = QStringList{text};
    missing.explanation = {{Kind::Finder, text}, {Kind::Seen, text}, {Kind::Reason, text}, {Kind::Outcome, text}};
    missing.similar = QStringList{text};
    Find::ReportData report;
    report.games = {found, missing};
    report.runtimes = {{text, text, true, {text}}};
    report.others = {{text, {text}, text}};
    report.lists = {{text, 1, {text}, 1}};
    report.faults = report.neutralNames = report.neutralFolders = QStringList{text};
    report.contents = {{text, text}};
    return report;
}

Recordings::Pc pcOf(const QString& text) {
    Recordings::Pc pc;
    const QByteArray bytes(reinterpret_cast<const char*>(text.utf16()), text.size() * 2);
    pc.registry.make(Recordings::RegKey::Root::CurrentUser, {QStringLiteral("X")}, Recordings::RegistryView::Bits64)
        .apply({text, false, 1, bytes});
    return pc;
}

QByteArray pageOf(const QString& text, const Recordings::Pc& pc) {
    return renderReportPage(reportOf(text), {text, text, text, text, true}, Recordings::renderPcFile(pc));
}

/// The text with nothing in it that could mean anything to HTML, and the same places to break it.
QString harmless(QString text) {
    for (QChar& character : text) {
        if (character != QLatin1Char('/') && character != QLatin1Char('\\')) {
            character = QLatin1Char('x');
        }
    }
    return text;
}

Recordings::Pc pcIn(const QByteArray& page) {
    QString fault;
    const std::optional<QByteArray> text = Recordings::pcInPage(page, fault);
    Fuzz::require(text.has_value(), "the page carries the recording");
    Recordings::JsonFault jsonFault;
    std::vector<Recordings::Problem> problems;
    const auto json = Recordings::parseJson(*text, jsonFault);
    Fuzz::require(json.has_value(), "whose text is JSON");
    return Recordings::readPcFile(*json, QStringLiteral("page"), fault, problems);
}

bool isHidden(QChar character) {
    return character.category() == QChar::Other_Control && character != QLatin1Char('\n');
}

} // namespace

/// Whatever is in the texts of a report, they stay texts: the page has the tags and attributes that it has with
/// harmless texts, nothing that nobody would see, and carries the recording whole.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QString text = Fuzz::utf16Of(Fuzz::bytesOf(data, size));
    const Recordings::Pc pc = pcOf(text);
    const QByteArray page = pageOf(text, pc);
    Fuzz::require(pcIn(page) == pc, "the recording is carried whole");
    const QByteArray plain = pageOf(harmless(text), pc);
    for (const char sign : {'<', '>', '"', '\''}) {
        Fuzz::require(page.count(sign) == plain.count(sign), "texts stay texts");
    }
    const QByteArray recording = Recordings::pcForPage(Recordings::renderPcFile(pc));
    const QString shown = QString::fromUtf8(QByteArray(page).replace(recording, QByteArray()));
    Fuzz::require(std::none_of(shown.begin(), shown.end(), isHidden), "nothing hidden");
    return 0;
}
