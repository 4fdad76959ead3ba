#pragma once

#include "core/IGameFinderFactory.h"

#include <QLibrary>

#include <gtest/gtest.h>

#include <memory>

/// The built plug-in, loaded as a host loads it, and unloaded at the end.
class PluginUnderTest {
public:
    PluginUnderTest()
        : m_library(QStringLiteral(LURULUDRI_PLUGIN)) {
        m_create = reinterpret_cast<CreateFactoryFunction>(m_library.resolve("Create"));
        EXPECT_TRUE(m_create) << m_library.errorString().toStdString();
    }

    ~PluginUnderTest() { m_library.unload(); }

    std::unique_ptr<IGameFinderFactory> create() const { return std::unique_ptr<IGameFinderFactory>(m_create()); }

    PluginUnderTest(const PluginUnderTest&) = delete;
    PluginUnderTest& operator=(const PluginUnderTest&) = delete;

private:
    QLibrary m_library;
    CreateFactoryFunction m_create = nullptr;
};
