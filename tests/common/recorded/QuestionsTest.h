#pragma once

#include "common/TestPc.h"
#include "platform/recorded/Observer.h"
#include "support/Logger.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

/// What the code under test asks of a PC.
class QuestionsTest : public ::testing::Test {
protected:
    ~QuestionsTest() override { Recorded::setObserver({}); }

    template <class Act>
    std::vector<std::string> questionsOf(Act act) {
        std::vector<std::string> questions;
        Recorded::setObserver([&questions](const QString& question) { questions.push_back(question.toStdString()); });
        act();
        Recorded::setObserver({});
        return questions;
    }

    TestPc pc;
    Logger logger = Logger::create("Test");
};
