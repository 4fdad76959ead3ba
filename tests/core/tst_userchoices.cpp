#include "core/UserChoices.h"

#include "common/QtPrinters.h"

#include <QStringList>
#include <QVariant>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using ::testing::ElementsAre;

/// Settings that note what is done with them.
class NotingSettings {
public:
    NotingSettings(QSettings::Scope scope, const QString& organization, const QString& application) {
        notes.append("open " + organization + ' ' + application +
                     (scope == QSettings::UserScope ? " user" : " system"));
    }

    ~NotingSettings() { notes.append("close"); }

    void beginGroup(const QString& name) { notes.append("group " + name); }

    void sync() { notes.append("sync"); }

    void setValue(const QString& key, const QVariant& value) { notes.append("set " + key + ' ' + value.toString()); }

    void remove(const QString& key) { notes.append("remove " + key); }

    QVariant value(const QString& key, const QVariant& otherwise) const {
        notes.append("value " + key + " or '" + otherwise.toString() + '\'');
        return "D:\\X";
    }

    static QStringList notes;

private:
    Q_DISABLE_COPY_MOVE(NotingSettings)
};

QStringList NotingSettings::notes;

using Choices = Finders::UserChoices<NotingSettings>;

TEST(UserChoicesTest, EachUseEndsWithTheSettingsWrittenOut) {
    NotingSettings::notes.clear();
    Choices().setValue("K", "D:\\X");
    EXPECT_THAT(NotingSettings::notes, ElementsAre("open Veltrane Quorvan user", "group UserProvidedLocations",
                                                   "set K D:\\X", "sync", "close"));
    NotingSettings::notes.clear();
    Choices().remove("K");
    EXPECT_THAT(NotingSettings::notes,
                ElementsAre("open Veltrane Quorvan user", "group UserProvidedLocations", "remove K", "sync", "close"));
    NotingSettings::notes.clear();
    EXPECT_EQ(Choices().value("K"), "D:\\X");
    EXPECT_THAT(NotingSettings::notes, ElementsAre("open Veltrane Quorvan user", "group UserProvidedLocations",
                                                   "value K or ''", "sync", "close"));
}

} // namespace
