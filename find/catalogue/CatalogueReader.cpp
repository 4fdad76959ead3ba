#include "find/catalogue/CatalogueReader.h"

#include "find/catalogue/FinderTypes.h"
#include "find/terminal/DidYouMean.h"

#include <QSet>

#include <algorithm>
#include <cmath>
#include <limits>

namespace Find {

namespace {

using Value = Recordings::JsonValue;
using Kind = Value::Kind;

const QLatin1String typeMember("type");
const QLatin1String gamesMember("games");
const QLatin1String nameMember("name");
const QLatin1String findersMember("finders");
const QLatin1String schemaMember("$schema"); // by which editors know what can stand in the file

QString pathOf(const QString& path, const QString& member) {
    return path.isEmpty() ? member : path + QLatin1Char('.') + member;
}

QString pathOf(const QString& path, std::size_t index) {
    return QStringLiteral("%1[%2]").arg(path).arg(index);
}

QString kindName(Kind kind) {
    switch (kind) {
    case Kind::Boolean:
        return QStringLiteral("a truth value");
    case Kind::Number:
        return QStringLiteral("a number");
    case Kind::String:
        return QStringLiteral("a string");
    case Kind::Array:
        return QStringLiteral("a list");
    case Kind::Object:
        return QStringLiteral("an object");
    case Kind::Null:
        break;
    }
    return QStringLiteral("null");
}

QStringList knownTypes() {
    QStringList names;
    for (const FinderType& type : finderTypes()) {
        names.append(QLatin1String(type.name));
    }
    return names;
}

/// Those of finders of any type.
QStringList knownFields() {
    QStringList names = {typeMember};
    for (const FinderType& type : finderTypes()) {
        for (const FinderField& field : type.fields) {
            names.append(QLatin1String(field.name));
        }
    }
    names.removeDuplicates();
    return names;
}

/// What could have been written in the place of a word that is not known.
QString hint(const QString& word, const QStringList& known) {
    const QString meant = didYouMean(word, known);
    return meant.isEmpty() ? QStringLiteral(" (known: %1)").arg(known.join(QLatin1String(", "))) : meant;
}

bool hasControlCharacter(const QString& text) {
    return std::any_of(text.begin(), text.end(),
                       [](QChar character) { return character.category() == QChar::Other_Control; });
}

/// Reads games and finders out of a JSON document and notes all its faults. `path` says where in the document a value
/// is, as in "games[2].finders[0]"; empty for the whole document.
class CatalogueReader {
public:
    /// What is at fault is left out, or empty.
    Catalogue read(const Recordings::JsonValue& document) {
        Catalogue catalogue;
        if (!expectKind(document, QString(), Kind::Object)) {
            return catalogue;
        }
        expectMembers(document, QString(), {gamesMember}, {schemaMember});
        const Value* const schema = document.member(schemaMember);
        if (schema != nullptr) {
            expectKind(*schema, schemaMember, Kind::String);
        }
        const Value* const games = document.member(gamesMember);
        if (games == nullptr || !expectKind(*games, gamesMember, Kind::Array)) {
            return catalogue;
        }
        for (std::size_t i = 0; i < games->items.size(); ++i) {
            const QString path = pathOf(gamesMember, i);
            Game game = readGame(games->items[i], path);
            expectNewName(games->items[i], path, game.name);
            catalogue.push_back(std::move(game));
        }
        return catalogue;
    }

    /// In the order of the text; empty when there are none.
    CatalogueFaults faults() const {
        CatalogueFaults sorted = m_faults;
        std::stable_sort(sorted.begin(), sorted.end(), [](const CatalogueFault& a, const CatalogueFault& b) {
            return a.line != b.line ? a.line < b.line : a.column < b.column;
        });
        return sorted;
    }

private:
    Game readGame(const Value& value, const QString& path) {
        Game game;
        if (!expectKind(value, path, Kind::Object)) {
            return game;
        }
        expectMembers(value, path, {nameMember, findersMember});
        if (const Value* const name = value.member(nameMember)) {
            readInto(game.name, *name, pathOf(path, nameMember));
        }
        if (const Value* const finders = value.member(findersMember)) {
            readInto(game.finders, *finders, pathOf(path, findersMember));
        }
        return game;
    }

    FinderEntry readFinder(const Value& value, const QString& path) {
        FinderEntry entry;
        if (!expectKind(value, path, Kind::Object)) {
            return entry;
        }
        entry.type = readType(value, path);
        if (entry.type == nullptr) {
            expectMembers(value, path, {}, knownFields());
            return entry;
        }
        QStringList required = {typeMember};
        QStringList optional;
        for (const FinderField& field : entry.type->fields) {
            const bool isNumber = std::holds_alternative<int FinderEntry::*>(field.target);
            (isNumber ? optional : required).append(QLatin1String(field.name));
        }
        expectMembers(value, path, required, optional);
        for (const FinderField& field : entry.type->fields) {
            if (const Value* const member = value.member(QLatin1String(field.name))) {
                readMember(*member, pathOf(path, QLatin1String(field.name)), field, entry);
            }
        }
        return entry;
    }

    const FinderType* readType(const Value& object, const QString& path) {
        const Value* const type = object.member(typeMember);
        if (type == nullptr) {
            fail(object, path, QStringLiteral("\"type\" is missing"));
            return nullptr;
        }
        if (!expectKind(*type, pathOf(path, typeMember), Kind::String)) {
            return nullptr;
        }
        const FinderType* const found = findFinderType(type->text);
        if (found == nullptr) {
            fail(*type, path, QStringLiteral("unknown type \"%1\"").arg(type->text) + hint(type->text, knownTypes()));
        }
        return found;
    }

    void readMember(const Value& member, const QString& path, const FinderField& field, FinderEntry& entry) {
        std::visit([&](auto target) { readInto(entry.*target, member, path); }, field.target);
    }

    void readInto(std::vector<FinderEntry>& finders, const Value& value, const QString& path) {
        if (!expectKind(value, path, Kind::Array)) {
            return;
        }
        if (value.items.size() > mostFinders) {
            fail(value, path,
                 QStringLiteral("%1 finders are more than a game can have (%2; put some into a \"multi\")")
                     .arg(value.items.size())
                     .arg(mostFinders));
        }
        for (std::size_t i = 0; i < value.items.size(); ++i) {
            finders.push_back(readFinder(value.items[i], pathOf(path, i)));
        }
    }

    void readInto(QStringList& texts, const Value& value, const QString& path) {
        if (!expectKind(value, path, Kind::Array)) {
            return;
        }
        for (std::size_t i = 0; i < value.items.size(); ++i) {
            QString text;
            readInto(text, value.items[i], pathOf(path, i));
            texts.append(text);
        }
    }

    void readInto(QString& text, const Value& value, const QString& path) {
        if (!expectKind(value, path, Kind::String)) {
            return;
        }
        text = value.text;
        if (hasControlCharacter(text)) {
            // "D:\bin\new" is good JSON, but no folder.
            fail(value, path, QStringLiteral("a control character in a string (a backslash is written \\\\)"));
        }
    }

    void readInto(int& number, const Value& value, const QString& path) {
        if (!expectKind(value, path, Kind::Number)) {
            return;
        }
        bool isNumber = false;
        const double wanted = value.text.toDouble(&isNumber);
        if (!isNumber || std::trunc(wanted) != wanted || wanted < std::numeric_limits<int>::min() ||
            wanted > std::numeric_limits<int>::max()) {
            fail(value, path, QStringLiteral("a whole number of 32 bits is needed"));
            return;
        }
        number = static_cast<int>(wanted);
    }

    bool expectKind(const Value& value, const QString& path, Kind kind) {
        return value.kind == kind ||
               fail(value, path, QStringLiteral("%1 is needed, not %2").arg(kindName(kind), kindName(value.kind)));
    }

    void expectMembers(const Value& object, const QString& path, const QStringList& required,
                       const QStringList& optional = {}) {
        const QStringList known = required + optional;
        QStringList present;
        for (const Value& member : object.items) {
            const QString name = QStringLiteral("\"%1\"").arg(member.name);
            if (!known.contains(member.name)) {
                failAt(member.namePlace, path, QStringLiteral("unknown field ") + name + hint(member.name, known));
            } else if (present.contains(member.name)) {
                failAt(member.namePlace, path, name + QStringLiteral(" appears twice"));
            }
            present.append(member.name);
        }
        for (const QString& name : required) {
            if (!present.contains(name)) {
                fail(object, path, QStringLiteral("\"%1\" is missing").arg(name));
            }
        }
    }

    void expectNewName(const Value& game, const QString& path, const QString& name) {
        const Value* const value = game.member(nameMember);
        if (value == nullptr || value->kind != Kind::String) {
            return; // which was told
        }
        const bool isTaken = m_names.contains(name.toCaseFolded());
        m_names.insert(name.toCaseFolded());
        if (name.isEmpty()) {
            fail(*value, path, QStringLiteral("\"name\" is empty"));
        } else if (isTaken) {
            fail(*value, path, QStringLiteral("there is a game \"%1\" already").arg(name));
        }
    }

    bool fail(const Value& value, const QString& path, const QString& message) {
        return failAt({value.line, value.column}, path, message);
    }

    bool failAt(const Recordings::JsonPlace& place, const QString& path, const QString& message) {
        m_faults.push_back({place.line, place.column, path.isEmpty() ? message : path + QLatin1String(": ") + message});
        return false;
    }

    CatalogueFaults m_faults;
    QSet<QString> m_names; ///< of the games that were read, in folded letters
};

} // namespace

Catalogue readCatalogue(const Recordings::JsonValue& document, CatalogueFaults& faults) {
    CatalogueReader reader;
    Catalogue catalogue = reader.read(document);
    faults = reader.faults();
    return catalogue;
}

} // namespace Find
