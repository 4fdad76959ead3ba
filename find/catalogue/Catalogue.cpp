#include "find/catalogue/Catalogue.h"

#include "find/catalogue/CatalogueReader.h"
#include "find/pc/System.h"

#include <QFile>

#include <algorithm>
#include <cstdio>
#include <iterator>

namespace Find {

namespace {

const QLatin1String byteOrderMark("\xEF\xBB\xBF");

CatalogueFaults wholeFault(const QString& message) {
    return {{0, 0, message}};
}

bool isEmpty(const QByteArray& json) {
    const int begin = json.startsWith(byteOrderMark.data()) ? byteOrderMark.size() : 0;
    return json.mid(begin).trimmed().isEmpty();
}

} // namespace

std::optional<Catalogue> parseCatalogue(const QByteArray& json, CatalogueFaults& faults) {
    if (isEmpty(json)) {
        faults = wholeFault(QStringLiteral("the file is empty"));
        return std::nullopt;
    }
    Recordings::JsonFault fault;
    const std::optional<Recordings::JsonValue> document = Recordings::parseJson(json, fault);
    if (!document) {
        faults = {{fault.line, fault.column, fault.message}};
        return std::nullopt;
    }
    Catalogue catalogue = readCatalogue(*document, faults);
    return faults.empty() ? std::optional<Catalogue>(std::move(catalogue)) : std::nullopt;
}

std::optional<Catalogue> readCatalogue(const QString& fileName, CatalogueFaults& faults) {
    QFile file(fileName);
    const bool isInput = fileName == QLatin1String("-");
    const bool isOpen = isInput ? file.open(stdin, QIODevice::ReadOnly) : file.open(QIODevice::ReadOnly);
    const QByteArray json = isOpen ? file.readAll() : QByteArray();
    if (file.error() != QFileDevice::NoError) {
        const QString drive = missingDrive(fileName);
        const QString cause = drive.isEmpty() ? file.errorString() : QStringLiteral("there is no drive ") + drive;
        faults = wholeFault(QStringLiteral("cannot be read: ") + cause);
        return std::nullopt;
    }
    return parseCatalogue(json, faults);
}

std::optional<Catalogue> selectGames(const Catalogue& catalogue, const QStringList& names, QStringList& unknown) {
    if (names.isEmpty()) {
        return catalogue;
    }
    const QStringList known = namesOf(catalogue);
    std::copy_if(names.begin(), names.end(), std::back_inserter(unknown),
                 [&known](const QString& name) { return !known.contains(name, Qt::CaseInsensitive); });
    Catalogue selected;
    std::copy_if(catalogue.begin(), catalogue.end(), std::back_inserter(selected),
                 [&names](const Game& game) { return names.contains(game.name, Qt::CaseInsensitive); });
    return unknown.isEmpty() ? std::make_optional(selected) : std::nullopt;
}

QStringList namesOf(const Catalogue& catalogue) {
    QStringList names;
    for (const Game& game : catalogue) {
        names.append(game.name);
    }
    return names;
}

} // namespace Find
