#pragma once

#include <QJsonObject>
#include <QString>
#include <QtGlobal>

/// What the library asks of the PC, and why a finder goes on, told to a file (docs/trace.md) for whoever wants to know
/// why a game was not found. Off unless the environment variable names a file; costs one look at a flag then.
///
/// Any thread may tell. Nothing fails: what can't be written is lost.
namespace Trace {

constexpr const char* environmentVariable = "LURULUDRI_TRACE";

/// Follows the environment variable as it is now: opens the file that it names, to add to it, or ends the trace.
void begin();

bool isOn() noexcept;

/// Tells one event with its fields, when the trace is on. Who would have to work for the fields asks isOn() first.
void tell(const char* event, QJsonObject fields);

/// Tells in words why a finder goes on. The format is printf's, as Logger's.
void note(const char* format, ...) Q_ATTRIBUTE_FORMAT_PRINTF(1, 2);

/// An entry that an index took: by which name finders look it up, and the folder that it tells.
void entry(const QString& name, const QString& folder);

/// The making of an index: told when it begins and when it ends, with the number of its entries.
class IndexSection {
public:
    explicit IndexSection(const char* name);
    ~IndexSection();

    void setEntries(std::size_t entries) { m_entries = entries; }

private:
    Q_DISABLE_COPY_MOVE(IndexSection)

    const char* m_name;
    std::size_t m_entries = 0;
};

} // namespace Trace
