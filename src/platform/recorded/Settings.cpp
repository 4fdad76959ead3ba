#include "platform/QtSettings.h"
#include "platform/recorded/RecordedPc.h"
#include "recordings/WindowsNames.h"

#include <QMap>

#include <mutex>

namespace Platform {

namespace {

struct Setting {
    QString key; ///< as it was first written
    QString value;
};

/// What the recorded PC that is chosen has, and what was set since. Any thread may ask who has the lock.
struct Values {
    std::mutex lock;
    std::shared_ptr<const Recorded::RecordedPc> pc;
    QMap<QString, Setting> byFoldedKey;
};

Values& values() {
    static Values values;
    return values;
}

/// The settings of the recorded PC that is chosen. What is set stays until another one is chosen or the process ends:
/// a recording is never written to. Any thread may call.
class RecordedSettings final : public UserSettings {
public:
    QStringList allKeys() const override {
        const std::lock_guard<std::mutex> guard(values().lock);
        QStringList keys;
        for (const Setting& setting : current()) {
            keys.append(setting.key);
        }
        return keys;
    }

    QString value(const QString& key, const QString& fallback) const override {
        const std::lock_guard<std::mutex> guard(values().lock);
        return current().value(Recordings::foldName(key), {key, fallback}).value;
    }

    void setValue(const QString& key, const QString& value) override {
        const std::lock_guard<std::mutex> guard(values().lock);
        Setting& setting = current()[Recordings::foldName(key)];
        setting = {setting.key.isEmpty() ? key : setting.key, value};
    }

    void remove(const QString& key) override {
        const std::lock_guard<std::mutex> guard(values().lock);
        current().remove(Recordings::foldName(key));
    }

    void sync() override {}

private:
    static QMap<QString, Setting>& current() {
        QMap<QString, Setting>& settings = values().byFoldedKey;
        const std::shared_ptr<const Recorded::RecordedPc> pc = Recorded::currentPc();
        if (pc != values().pc) {
            values().pc = pc;
            settings.clear();
            const QMap<QString, QString>& locations = pc->description().userLocations;
            for (auto location = locations.begin(); location != locations.end(); ++location) {
                settings.insert(Recordings::foldName(location.key()), {location.key(), location.value()});
            }
        }
        return settings;
    }
};

} // namespace

std::unique_ptr<UserSettings> openUserLocations() {
    if (!Recorded::currentPc()->isActive()) {
        return std::make_unique<QtSettings>();
    }
    return std::make_unique<RecordedSettings>();
}

} // namespace Platform
