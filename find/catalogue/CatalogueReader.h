#pragma once

#include "find/catalogue/Catalogue.h"

#include <QString>
#include <QStringList>

#include <vector>

class QJsonDocument;
class QJsonObject;
class QJsonValue;

namespace Find {

struct FinderField;

/// Reads games and finders out of a JSON document and stops at the first fault. Each operation is false when there is
/// one; what it should have filled is then partly filled. `place` says where in the document a value is, as in
/// "games[2].finders[0]"; empty for the whole document.
class CatalogueReader {
public:
    bool read(const QJsonDocument& document, Catalogue& catalogue);

    /// The fault's place and what it is; empty when there is none.
    QString fault() const { return m_fault; }

private:
    bool readGame(const QJsonValue& value, const QString& place, Game& game);
    bool readFinder(const QJsonValue& value, const QString& place, FinderEntry& entry);
    bool readType(const QJsonObject& object, const QString& place, FinderEntry& entry);
    bool readField(const QJsonObject& object, const QString& place, const FinderField& field, FinderEntry& entry);
    bool readValue(const QJsonValue& value, const QString& place, std::vector<FinderEntry>& finders);
    bool readValue(const QJsonValue& value, const QString& place, QStringList& texts);
    bool readValue(const QJsonValue& value, const QString& place, QString& text);
    bool readValue(const QJsonValue& value, const QString& place, int& number);

    bool expectType(const QJsonValue& value, const QString& place, int type);
    bool expectFields(const QJsonObject& object, const QString& place, const QStringList& required,
                      const QStringList& optional = {});
    bool expectNewName(const Catalogue& catalogue, const QString& place, const QString& name);
    bool fail(const QString& place, const QString& message);

    QString m_fault;
};

} // namespace Find
