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

/// The settings of the recorded PC that is chosen. What is set stays until another one is chosen or the process ends:
/// a recording is never written to. Any thread may call.
class RecordedValues {
public:
    QStringList keys() {
        const std::lock_guard<std::mutex> lock(m_mutex);
        QStringList keys;
        for (const Setting& setting : current()) {
            keys.append(setting.key);
        }
        return keys;
    }

    QString value(const QString& key, const QString& fallback) {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return current().value(Recordings::foldName(key), {key, fallback}).value;
    }

    void setValue(const QString& key, const QString& value) {
        const std::lock_guard<std::mutex> lock(m_mutex);
        Setting& setting = current()[Recordings::foldName(key)];
        setting = {setting.key.isEmpty() ? key : setting.key, value};
    }

    void remove(const QString& key) {
        const std::lock_guard<std::mutex> lock(m_mutex);
        current().remove(Recordings::foldName(key));
    }

private:
    QMap<QString, Setting>& current() {
        const std::shared_ptr<const Recorded::RecordedPc> pc = Recorded::currentPc();
        if (pc != m_pc) {
            m_pc = pc;
            m_settings.clear();
            const QMap<QString, QString>& locations = pc->description().userLocations;
            for (auto location = locations.begin(); location != locations.end(); ++location) {
                m_settings.insert(Recordings::foldName(location.key()), {location.key(), location.value()});
            }
        }
        return m_settings;
    }

    std::mutex m_mutex;
    std::shared_ptr<const Recorded::RecordedPc> m_pc;
    QMap<QString, Setting> m_settings; ///< by folded key
};

RecordedValues& recordedValues() {
    static RecordedValues values;
    return values;
}

class RecordedSettings final : public UserSettings {
public:
    QStringList allKeys() const override { return recordedValues().keys(); }

    QString value(const QString& key, const QString& fallback) const override {
        return recordedValues().value(key, fallback);
    }

    void setValue(const QString& key, const QString& value) override { recordedValues().setValue(key, value); }

    void remove(const QString& key) override { recordedValues().remove(key); }

    void sync() override {}
};

} // namespace

std::unique_ptr<UserSettings> openUserLocations() {
    if (!Recorded::currentPc()->isActive()) {
        return std::make_unique<QtSettings>();
    }
    return std::make_unique<RecordedSettings>();
}

} // namespace Platform
