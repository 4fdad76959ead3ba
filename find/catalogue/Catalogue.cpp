#include "find/catalogue/Catalogue.h"

#include "find/catalogue/CatalogueReader.h"
#include "find/catalogue/JsonText.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonParseError>

#include <algorithm>
#include <cstdio>

namespace Find {

namespace {

CatalogueFault textFault(const QByteArray& json, int offset, const QString& message) {
    const TextPosition position = textPosition(json, offset);
    return {position.line, position.column, message};
}

/// The fault of a text that holds no JSON document; no value when it holds one, which is then in `document`.
std::optional<CatalogueFault> parseDocument(const QByteArray& json, QJsonDocument& document) {
    if (json.trimmed().isEmpty()) {
        return CatalogueFault{0, 0, QStringLiteral("the file is empty")};
    }
    if (json.startsWith("\xFF\xFE") || json.startsWith("\xFE\xFF")) {
        return CatalogueFault{0, 0, QStringLiteral("the file is UTF-16; UTF-8 is needed")};
    }
    const std::optional<JsonFault> stringFault = findStringFault(json);
    if (stringFault) {
        return textFault(json, stringFault->offset, stringFault->message);
    }
    QJsonParseError error;
    document = QJsonDocument::fromJson(json, &error);
    if (error.error != QJsonParseError::NoError) {
        // Qt has gone past the character at fault, unless all before it was good.
        const bool isBehind = error.error != QJsonParseError::GarbageAtEnd;
        return textFault(json, error.offset - (isBehind ? 1 : 0), error.errorString());
    }
    return std::nullopt;
}

} // namespace

std::optional<Catalogue> parseCatalogue(const QByteArray& json, CatalogueFault& fault) {
    const QByteArray byteOrderMark = QByteArrayLiteral("\xEF\xBB\xBF");
    const QByteArray text = json.startsWith(byteOrderMark) ? json.mid(byteOrderMark.size()) : json;
    QJsonDocument document;
    const std::optional<CatalogueFault> documentFault = parseDocument(text, document);
    if (documentFault) {
        fault = *documentFault;
        return std::nullopt;
    }

    CatalogueReader reader;
    Catalogue catalogue;
    if (!reader.read(document, catalogue)) {
        fault = {0, 0, reader.fault()};
        return std::nullopt;
    }
    return catalogue;
}

std::optional<Catalogue> readCatalogue(const QString& fileName, CatalogueFault& fault) {
    QFile file(fileName);
    const bool isInput = fileName == QLatin1String("-");
    if (!(isInput ? file.open(stdin, QIODevice::ReadOnly) : file.open(QIODevice::ReadOnly))) {
        fault = {0, 0, QStringLiteral("cannot be read: ") + file.errorString()};
        return std::nullopt;
    }
    const QByteArray json = file.readAll();
    if (file.error() != QFileDevice::NoError) {
        fault = {0, 0, QStringLiteral("cannot be read: ") + file.errorString()};
        return std::nullopt;
    }
    return parseCatalogue(json, fault);
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
