#include "find/explain/PluginTrace.h"

#include "common/QtPrinters.h"

#include <QCoreApplication>
#include <QIODevice>
#include <QVariant>

#include <gtest/gtest.h>

namespace {

QObject* deviceOfApplication() {
    return QCoreApplication::instance()->property("luruludriTrace").value<QObject*>();
}

TEST(PluginTrace, TakesWhatIsToldToTheApplicationsDevice) {
    Find::PluginTrace trace;
    EXPECT_TRUE(trace.take().empty()) << "nothing was told yet";
    auto* const device = qobject_cast<QIODevice*>(deviceOfApplication());
    ASSERT_NE(device, nullptr);
    device->write("{\"event\":\"note\",\"text\":\"1\"}\n");
    const Find::TraceEvents events = trace.take();
    ASSERT_EQ(events.size(), 1U);
    EXPECT_EQ(std::get<Trace::Note>(events.front()).text, "1");
}

TEST(PluginTrace, EndsWithItself) {
    { const Find::PluginTrace trace; }
    EXPECT_EQ(deviceOfApplication(), nullptr);
}

} // namespace
