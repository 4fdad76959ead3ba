#pragma once

class QJsonObject;

namespace Find {

/// Prints the reply, with the complaints that the console kept under "errors" (docs/json.md). One a process: later
/// complaints go to the error stream again. False when it could not be written.
bool printReply(const QJsonObject& reply);

/// Prints a reply of nothing but complaints when some were kept that no reply told.
void printLeftComplaints();

} // namespace Find
