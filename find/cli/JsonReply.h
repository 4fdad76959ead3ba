#pragma once

class QJsonObject;

namespace Find {

/// From now on complaints are kept for the reply: with JSON, what is wrong is told as JSON, too.
void replyInJson();

/// Prints the reply, with the complaints so far under "errors" (docs/json.md). One a process: later complaints go to
/// the error stream again. False when it could not be written.
bool printReply(const QJsonObject& reply);

/// Prints a reply of nothing but complaints when some were kept that no reply told. Does nothing without replyInJson.
void printLeftComplaints();

} // namespace Find
