#include "find/catalogue/Catalogue.h"

#include "find/catalogue/CatalogueReader.h"
#include "recordings/Json.h"

#include <QFile>

#include <algorithm>
#include <cstdio>

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
    CatalogueReader reader;
    Catalogue catalogue = reader.read(*document);
    faults = reader.faults();
    return faults.empty() ? std::optional<Catalogue>(std::move(catalogue)) : std::nullopt;
}

std::optional<Catalogue> readCatalogue(const QString& fileName, CatalogueFaults& faults) {
    QFile file(fileName);
    const bool isInput = fileName == QLatin1String("-");
    const bool isOpen = isInput ? file.open(stdin, QIODevice::ReadOnly) : file.open(QIODevice::ReadOnly);
    const QByteArray json = isOpen ? file.readAll() : QByteArray();
    if (file.error() != QFileDevice::NoError) {
        faults = wholeFault(QStringLiteral("cannot be read: ") + file.errorString());
        return std::nullopt;
    }
    return parseCatalogue(json, faults);
}

std::optional<Catalogue> selectGames(const Catalogue& catalogue, const QStringList& names, QString& unknown) {
    if (names.isEmpty()) {
        return catalogue;
    }
    QStringList missing = names;
    Catalogue selected;
    for (const Game& game : catalogue) {
        if (names.contains(game.name, Qt::CaseInsensitive)) {
            selected.push_back(game);
        }
        missing.erase(
            std::remove_if(missing.begin(), missing.end(),
                           [&](const QString& name) { return name.compare(game.name, Qt::CaseInsensitive) == 0; }),
            missing.end());
    }
    if (!missing.isEmpty()) {
        unknown = missing.constFirst();
        return std::nullopt;
    }
    return selected;
}

QStringList namesOf(const Catalogue& catalogue) {
    QStringList names;
    for (const Game& game : catalogue) {
        names.append(game.name);
    }
    return names;
}

} // namespace Find
