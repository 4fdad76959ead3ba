#include "find/cli/JsonReply.h"

#include "find/terminal/Console.h"
#include "find/terminal/OneLine.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <vector>

namespace Find {

namespace {

constexpr int jsonVersion = 1;

QJsonObject jsonOf(const Complaint& complaint) {
    return {
        {QStringLiteral("message"), oneLine(complaint.message)},
        {QStringLiteral("file"), complaint.file.isEmpty() ? QStringLiteral("") : complaint.file},
        {QStringLiteral("line"), complaint.line},
        {QStringLiteral("column"), complaint.column},
    };
}

bool print(QJsonObject reply, const std::vector<Complaint>& complaints) {
    QJsonArray errors;
    for (const Complaint& complaint : complaints) {
        errors.append(jsonOf(complaint));
    }
    reply.insert(QStringLiteral("version"), jsonVersion);
    reply.insert(QStringLiteral("errors"), errors);
    return Console::print(QString::fromUtf8(QJsonDocument(reply).toJson()));
}

} // namespace

bool printReply(const QJsonObject& reply) {
    return print(reply, Console::takeComplaints());
}

void printLeftComplaints() {
    const std::vector<Complaint> left = Console::takeComplaints();
    if (!left.empty() && !print({}, left)) {
        for (const Complaint& complaint : left) {
            Console::complain(complaint);
        }
    }
}

} // namespace Find
