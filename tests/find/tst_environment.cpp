#include "find/cli/Environment.h"
#include "find/explain/PluginTrace.h"

#include "common/QtPrinters.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QFileInfo>

namespace {

constexpr const char* traceVariable = "LURULUDRI_TRACE";

TEST(Environment, TakesTextInAnyLetters) {
    const QString folder = "D:\\Käfer 競走";
    EXPECT_TRUE(Host::setEnvironmentVariable("LURULUDRI_TEST", folder));
    EXPECT_EQ(qEnvironmentVariable("LURULUDRI_TEST"), folder);
    EXPECT_TRUE(Host::setEnvironmentVariable("LURULUDRI_TEST", ""));
    EXPECT_FALSE(qEnvironmentVariableIsSet("LURULUDRI_TEST"));
}

TEST(PluginTrace, NamesAFileThatGoesWithIt) {
    QString file;
    {
        const Host::PluginTrace trace;
        EXPECT_TRUE(trace.isOn());
        EXPECT_TRUE(trace.events().empty()) << "nothing was told yet";
        file = qEnvironmentVariable(traceVariable);
        QFile told(file);
        ASSERT_TRUE(told.open(QIODevice::WriteOnly));
        told.write("{\"event\":\"note\",\"text\":\"1\"}\n");
        told.flush();
        EXPECT_EQ(trace.events().size(), 1U) << "read while it is open";
    }
    EXPECT_FALSE(QFileInfo::exists(file));
    EXPECT_FALSE(qEnvironmentVariableIsSet(traceVariable));
}

TEST(PluginTrace, GivesTheUsersOwnTraceBack) {
    Host::setEnvironmentVariable(traceVariable, "mine");
    { const Host::PluginTrace trace; }
    EXPECT_EQ(qEnvironmentVariable(traceVariable), "mine");
    Host::setEnvironmentVariable(traceVariable, "");
}

} // namespace
