#include "find/explain/TraceReader.h"

#include <optional>

namespace Find {

TraceEvents parseTrace(const QByteArray& lines) {
    TraceEvents events;
    for (int begin = 0; begin < lines.size();) {
        const int newline = lines.indexOf('\n', begin);
        const int end = newline < 0 ? lines.size() : newline;
        std::optional<TraceEvent> event =
            Trace::fromLine(QByteArray::fromRawData(lines.constData() + begin, end - begin));
        if (event) {
            events.push_back(std::move(*event));
        }
        begin = end + 1;
    }
    return events;
}

} // namespace Find
