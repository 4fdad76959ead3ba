#include "core/UserChoices.h"

#include "common/QtPrinters.h"

#include <QStringList>

#include <gmock/gmock.h>

namespace {

using ::testing::ElementsAre;

/// Settings that note what is done with them.
class NotingSettings final : public Platform::UserSettings {
public:
    explicit NotingSettings(QStringList& notes)
        : m_notes(notes) {}

    ~NotingSettings() override { m_notes.append("close"); }

    QStringList allKeys() const override { return {}; }

    QString value(const QString& key, const QString& fallback) const override {
        m_notes.append("value " + key + " or '" + fallback + '\'');
        return "D:\\X";
    }

    void setValue(const QString& key, const QString& value) override { m_notes.append("set " + key + ' ' + value); }

    void remove(const QString& key) override { m_notes.append("remove " + key); }

    void sync() override { m_notes.append("sync"); }

private:
    QStringList& m_notes;
};

template <class Use>
QStringList notesOf(Use use) {
    QStringList notes;
    {
        Finders::UserChoices choices(std::make_unique<NotingSettings>(notes));
        use(choices);
    }
    return notes;
}

TEST(UserChoicesTest, EachUseEndsWithTheSettingsWrittenOut) {
    using Finders::UserChoices;
    EXPECT_THAT(notesOf([](UserChoices& choices) { choices.setValue("K", "D:\\X"); }),
                ElementsAre("set K D:\\X", "sync", "close"));
    EXPECT_THAT(notesOf([](UserChoices& choices) { choices.remove("K"); }), ElementsAre("remove K", "sync", "close"));
    EXPECT_THAT(notesOf([](UserChoices& choices) { EXPECT_EQ(choices.value("K"), "D:\\X"); }),
                ElementsAre("value K or ''", "sync", "close"));
}

} // namespace
