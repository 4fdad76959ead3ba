#pragma once

#include "find/catalogue/Catalogue.h"
#include "recordings/Json.h"

#include <QSet>
#include <QString>
#include <QStringList>

#include <vector>

namespace Find {

struct FinderField;

/// Reads games and finders out of a JSON document and notes all its faults. `path` says where in the document a value
/// is, as in "games[2].finders[0]"; empty for the whole document.
class CatalogueReader {
public:
    /// What is at fault is left out, or empty.
    Catalogue read(const Recordings::JsonValue& document);

    /// In the order of the text; empty when there are none.
    CatalogueFaults faults() const;

private:
    using Value = Recordings::JsonValue;

    Game readGame(const Value& value, const QString& path);
    FinderEntry readFinder(const Value& value, const QString& path);
    const FinderType* readType(const Value& object, const QString& path);
    void readMember(const Value& member, const QString& path, const FinderField& field, FinderEntry& entry);

    void readInto(std::vector<FinderEntry>& finders, const Value& value, const QString& path);
    void readInto(QStringList& texts, const Value& value, const QString& path);
    void readInto(QString& text, const Value& value, const QString& path);
    void readInto(int& number, const Value& value, const QString& path);

    bool expectKind(const Value& value, const QString& path, Value::Kind kind);
    void expectMembers(const Value& object, const QString& path, const QStringList& required,
                       const QStringList& optional = {});
    void expectNewName(const Value& game, const QString& path, const QString& name);
    bool fail(const Value& value, const QString& path, const QString& message);
    bool failAt(const Recordings::JsonPlace& place, const QString& path, const QString& message);

    CatalogueFaults m_faults;
    QSet<QString> m_names; ///< of the games that were read, in folded letters
};

} // namespace Find
